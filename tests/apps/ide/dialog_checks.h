#pragma once

#include <QDialog>
#include <string>
#include <vector>

namespace fabula::test {

/// The widgets of a window that take the keyboard and have no name for those who can't see them.
std::vector<std::string> WidgetsWithoutName(const QWidget& window);

/// Saves a picture of a window into the folder FABULA_GRABS, if there is one, in light and in dark: for
/// those who want to look at it.
void GrabInBothThemes(QWidget& window, const char* name);

}  // namespace fabula::test
