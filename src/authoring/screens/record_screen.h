#pragma once

#include <string>
#include <string_view>

#include "authoring/fields/edit_screen.h"
#include "authoring/fields/record_comment.h"
#include "store/query/cursor.h"

namespace fabula::authoring {

/// What the screens of one record have in common. A screen opens on a record or on a key for a new one;
/// each field is checked when it is left, and Update checks them all again and stores. Without a change
/// Update stores nothing, a new record neither. A comment that alone was changed is stored without a check.
class RecordScreen : public EditScreen {
  public:
    ScreenKey Key() const { return key_; }

    RecordComment* Comment() final { return &comment_; }
    bool Changed() const final { return comment_.Changed() || FieldsChanged(); }

    /// True when the screen can close: what was changed is stored.
    bool Update();

  protected:
    /// Whether anything but the comment differs from what the screen opened with.
    virtual bool FieldsChanged() const = 0;
    /// Checks all fields and stores the record, its comment with it. False when a field was refused.
    virtual bool UpdateFields() = 0;

    /// `noun` is what the table's records are called in the name of a change: "location". The record must
    /// be there unless the key is new: throws Error.
    RecordScreen(ScreenContext& context, store::TableNum table, ScreenKey key, std::string_view noun);
    ~RecordScreen() = default;

    /// Another record of the table is the one that is edited from now on. Throws Error when it is not
    /// there.
    void SetKey(int key);
    /// The table's cursor on the record that is edited. Throws Error when it has gone.
    store::Cursor& OpenRecord() const;
    /// The table's cursor on the record that Update writes, with its comment: the same, or a new one with
    /// its key. Throws Error when another program has added one with that key meanwhile.
    store::Cursor& RecordToStore() const;
    /// The same for tables that number their records: a new record whose key was taken meanwhile gets the
    /// next free one, and `change` its name.
    store::Cursor& RecordToStore(Change& change);
    /// "add location 3", "edit location 3".
    std::string ChangeName() const;

  private:
    std::string Criterion() const;

    store::TableNum table_;
    ScreenKey key_;
    std::string noun_;
    RecordComment comment_;
};

}  // namespace fabula::authoring
