#pragma once

#include <QIcon>
#include <string_view>

namespace fabula::qt {

/// The icon of a name: those of the tree ("map", "map-open") and those of the commands ("undo"). It is
/// drawn in the colours of the windows whenever it is painted, sharp at any size. A name that has no shape
/// gives an icon that draws nothing.
QIcon IconOf(std::string_view name);

/// Whether the name has a shape.
bool HasIcon(std::string_view name);

}  // namespace fabula::qt
