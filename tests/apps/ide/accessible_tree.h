#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace fabula::test {

/// What is wrong with what screen readers are told of a window and of all that is seen in it, a line each:
/// controls and pictures without a name, labels whose name hides their text, lists that do not tell what is
/// chosen, markup in names and descriptions, and what paints without being told of as a picture.
std::vector<std::string> WrongInAccessibleTree(QWidget& window);

}  // namespace fabula::test
