#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/controls.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// The longest name, in characters.
inline constexpr int kLongestLocationName = 60;

/// What an author knows a location by: its short description or, without one, the beginning of its
/// description; on one line and without markup.
std::string LocationName(std::string_view shortDescription, std::string_view description);

/// All locations by number, with their names.
std::vector<ListItem> LocationNames(store::Adventure& adventure);

/// The name in such a list; "" for a number that is not in it.
std::string NameIn(const std::vector<ListItem>& locations, int number);

}  // namespace fabula::authoring
