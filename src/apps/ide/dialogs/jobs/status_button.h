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
    std::function<void()> print;
};

/// A button "Print Status" whose menu prints, copies and saves the status (the actions "printStatus",
/// "copyStatus" and "saveStatus").
QPushButton* NewStatusButton(const QString& caption, const StatusActions& actions);

}  // namespace fabula::ide
