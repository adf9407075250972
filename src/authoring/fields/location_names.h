#pragma once

#include <string>
#include <vector>

#include "authoring/fields/controls.h"
#include "condacts/numbers.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// All locations by number, with what an author knows them by: the short description or, without one, the
/// first line of the description.
std::vector<ListItem> LocationNames(store::Adventure& adventure);

/// The name in such a list; "" for a number that is not in it.
std::string NameIn(const std::vector<ListItem>& locations, condacts::PlaceNumber number);

}  // namespace fabula::authoring
