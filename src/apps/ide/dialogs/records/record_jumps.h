#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "authoring/desk/search/navigator.h"
#include "ide/dialogs/screens.h"

class QWidget;

namespace fabula::ide {

/// Lets the author choose one of several places by a part of its text; nullopt when none was chosen.
std::optional<authoring::Jump> ChoosePlace(const QString& title,
                                           const std::vector<authoring::JumpLine>& places, QWidget* parent);

/// The record that is named, and for `uses` the one of its uses that the author chooses. Where there is no
/// such record, or it has no uses, the author is told.
std::optional<authoring::Jump> FollowNamed(const authoring::NamedRecord& named, bool uses,
                                           authoring::Navigator& navigator, platform::Dialogs& dialogs,
                                           QWidget* parent);

/// F12 and Shift+F12 in the dialog of a record: go to what the token at the cursor names or, where none is,
/// to what the record names; or to one of its uses. The dialog is left as by Exit, with its question where
/// something was changed.
class RecordJumps {
  public:
    /// All of it outlives it. The record is the context's current entry, which a screen that goes to other
    /// records moves.
    RecordJumps(OpenedRecord& opened, const authoring::ScreenRequest& request,
                authoring::ScreenContext& context, authoring::Navigator& navigator);
    RecordJumps(const RecordJumps&) = delete;
    RecordJumps& operator=(const RecordJumps&) = delete;

    /// Where the dialog was left for; nullopt when it was closed otherwise.
    const std::optional<authoring::Jump>& Wanted() const { return wanted_; }

  private:
    void Press(bool uses);
    std::optional<authoring::Jump> Target(bool uses);

    OpenedRecord& opened_;
    const authoring::ScreenRequest& request_;
    authoring::ScreenContext& context_;
    authoring::Navigator& navigator_;
    std::optional<authoring::Jump> wanted_;
};

}  // namespace fabula::ide
