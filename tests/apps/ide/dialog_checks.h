#pragma once

#include <QDialog>
#include <string>
#include <vector>

namespace fabula::test {

/// The widgets of a window that take the keyboard and have no name for those who can't see them.
std::vector<std::string> WidgetsWithoutName(const QWidget& window);

/// What Alt and one letter would do twice in a window: "p: &Picture: / &Print".
std::vector<std::string> MnemonicsTwice(const QWidget& window);

/// The names of the widgets that Tab comes to, from the first one on. The window must be the active one.
std::vector<std::string> TabOrder(QWidget& window);
/// Those that Tab should come to but does not. Of the options of a group Tab comes to one.
std::vector<std::string> WidgetsThatTabMisses(QWidget& window);
/// The steps of the tab order that go back against the order of reading: "exits before shortDescription".
std::vector<std::string> StepsBack(QWidget& window);

/// How many points of a form lie beside its window, to be scrolled to.
int ScrollsSideways(const QWidget& window);

/// Expects a window to be drawn in light and in dark: its paper, and something that stands out from it.
/// Saves both pictures into the folder FABULA_GRABS, if there is one, for those who want to look at them.
void GrabInBothThemes(QWidget& window, const QString& name);

}  // namespace fabula::test
