#pragma once

#include <functional>
#include <string>

class QPushButton;
class QString;

namespace fabula::ide {

/// What can be done with the text of a status box.
struct StatusActions {
    std::function<std::string()> text;
    std::function<void()> save;
};

/// A button "Print Status" whose menu copies and saves the status (the actions "copyStatus" and
/// "saveStatus"). Printing is in its place, switched off.
QPushButton* NewStatusButton(const QString& caption, const StatusActions& actions);

}  // namespace fabula::ide
