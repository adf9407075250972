#pragma once

#include <QIcon>
#include <string_view>

namespace fabula::qt {

/// The icon of a name: those of the tree ("map", "map-open") and those of the commands ("undo"). It is
/// drawn in the colours of the windows whenever it is painted, sharp at any size, from the file of its name
/// in icons/: black stands for the colour of texts, blue (#0000ff) for that of links. A tree icon's open
/// form is that of the closed one unless it has a file of its own. A name without a file gives an icon that
/// draws nothing.
QIcon IconOf(std::string_view name);

/// Whether the name has a drawing.
bool HasIcon(std::string_view name);

}  // namespace fabula::qt
