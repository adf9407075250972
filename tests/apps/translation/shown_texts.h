#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace fabula::test {

/// What a window shows or says in letters outside of the brackets of the test's language, one a line, such
/// as "QPushButton update: text 'Exit'": captions, lines of its boxes with a choice, headings of columns,
/// tabs, tips, hints in empty fields, names for those who can't see, and the actions of its menus. Texts
/// that fit a pattern of `names` are content and no captions. Names in capital letters, fonts, and Qt's own
/// words on its standard buttons are neither.
std::string UntranslatedTexts(const QWidget& window, const std::vector<std::string>& names);

/// The visible labels, buttons, options, groups and headings of columns of a window whose text is larger
/// than their room, as the window stands, one a line. A label that is to give way, to a least width of 1,
/// may be cut.
std::string CutTexts(const QWidget& window);

}  // namespace fabula::test
