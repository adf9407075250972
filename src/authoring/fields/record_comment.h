#pragma once

#include <string>
#include <string_view>

#include "authoring/document/screen_context.h"
#include "store/query/cursor.h"

namespace fabula::authoring {

/// The author's comment to the record of a screen: any text, which no check refuses.
class RecordComment {
  public:
    /// Reads it; a new record has none.
    RecordComment(store::Adventure& adventure, store::TableNum table, ScreenKey key);

    std::string text;  ///< with "\n" for line ends

    /// Whether it differs from what is stored.
    bool Changed() const { return text != stored_; }
    /// Puts it into the record that is being stored.
    void Put(store::Cursor& record) const;
    /// It is in the file now.
    void Stored() { stored_ = text; }

    /// What was typed, as the field holds it: null for nothing.
    static text::Value ValueOf(std::string_view typed);

  private:
    std::string stored_;
};

}  // namespace fabula::authoring
