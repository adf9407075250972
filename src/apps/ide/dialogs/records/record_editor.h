#pragma once

#include <optional>

#include "authoring/fields/named_record.h"

namespace fabula::ide {

/// What a pane beside the rows asks of the dialog of a record that stands in it.
class RecordEditor {
  public:
    /// Whether something was typed that is not stored.
    virtual bool HasChanges() = 0;
    /// As Update does: accepts the dialog when all is stored; what is refused is told and has the focus.
    virtual void Store() = 0;
    /// What Esc closes before it takes anything back, such as a list; false when there is nothing.
    virtual bool CloseList() { return false; }
    /// The record that the token at the cursor names; nullopt where there is none.
    virtual std::optional<authoring::NamedRecord> NamedAtCursor() { return std::nullopt; }
    /// Shows the record that its screen has gone on to, as if it had been made for it.
    virtual void ShowRecord() = 0;
    /// It stands in a pane from now on: what goes to other records is the business of the rows.
    virtual void StandBeside() {}

  protected:
    ~RecordEditor() = default;
};

}  // namespace fabula::ide
