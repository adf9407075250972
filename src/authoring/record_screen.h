#pragma once

#include <string>
#include <string_view>

#include "authoring/session.h"
#include "store/cursor.h"

namespace fabula::authoring {

/// What the screens of one record have in common. A screen opens on a record or on a key for a new one;
/// each field is checked when it is left, and Update checks them all again and stores. Without a change
/// Update stores nothing, a new record neither.
class RecordScreen {
  public:
    RecordScreen(const RecordScreen&) = delete;
    RecordScreen& operator=(const RecordScreen&) = delete;

    ScreenKey Key() const { return key_; }

    /// Where the screen, and the window that shows it, tells and asks.
    platform::Dialogs& Dialogs() const { return session_.dialogs; }

    /// The name of the control that was refused last, to which the focus goes back; "" before the first.
    std::string_view Refused() const { return refused_; }

    store::Adventure& Adventure() const { return session_.document.Adventure(); }

  protected:
    /// `noun` is what the table's records are called in the name of a change: "location". The record must
    /// be there unless the key is new: throws Error.
    RecordScreen(Session& session, store::TableNum table, ScreenKey key, std::string_view noun);
    ~RecordScreen() = default;

    bool IsMarlo() const { return Adventure().AdventureTypeLower() == "marlo"; }

    /// The table's cursor on the record that is edited. Throws Error when it has gone.
    store::Cursor& OpenRecord() const;
    /// The table's cursor on the record that Update writes: the same, or a new one with its key.
    store::Cursor& RecordToStore() const;
    /// "add location 3", "edit location 3".
    std::string ChangeName() const;

    /// Tells why `control`, a text constant, is refused. False, so that a check can end with it.
    bool RefuseField(std::string_view control, std::string_view message, std::string_view title = "Error");
    /// The same where the author has answered a question with no: nothing more is told.
    bool KeepFocus(std::string_view control);
    /// Checks a text that the game shows; the fault is told.
    bool CheckText(std::string_view control, std::string_view typed, bool tagsAllowed);

    Session& session_;

  private:
    std::string Criterion() const;

    store::TableNum table_;
    ScreenKey key_;
    std::string noun_;
    std::string_view refused_;
};

}  // namespace fabula::authoring
