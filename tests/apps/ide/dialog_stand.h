#pragma once

#include <QDialog>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "authoring/desk.h"

namespace fabula::test {

/// A dialog of the authoring tool, to be shown on a small game.
struct DialogStand {
    const char* name;        ///< in the name of the test: "Location"
    const char* title;       ///< of its window
    const char* firstFocus;  ///< the control that has the keyboard when it opens
    /// The dialog and the logic that it shows. `desk` outlives it.
    std::function<std::shared_ptr<QDialog>(Desk& desk)> open;

    friend void PrintTo(const DialogStand& stand, std::ostream* out);
};

/// Every dialog, in the order in which an author would meet them. A dialog that is added to the tool is
/// added here.
const std::vector<DialogStand>& EveryDialog();

/// Gives the game what the dialogs show: a few locations with exits, messages, objects, words and entries.
void Furnish(Desk& desk);

}  // namespace fabula::test
