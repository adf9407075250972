#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace fabula::store {

class Adventure;

// The name by which libraries of games know an adventure: an IFID, an upper-case UUID that is made once and
// stays with the file and its copies. It is kept in the one record of `System`, which is so small that the
// database keeps it in one piece: the bytes UUID://...// stand in the file as they are, where programs that
// don't know its form look for them.

/// A random UUID, "5B1F0A6C-8E0D-4C53-9A77-0F2D6B1E43C9".
std::string NewIfid();
/// What makes IFIDs for adventures that have none.
using IfidMaker = std::function<std::string()>;

/// Whether a text is such a name, in capitals.
bool IsIfid(std::string_view text);

/// As the field `ifid` holds it: "UUID://" and the name and "//".
std::string MarkedIfid(std::string_view ifid);

/// The adventure's name; "" for a file of an older program that has none, and for anything else in its
/// place.
std::string IfidOf(Adventure& adventure);

}  // namespace fabula::store
