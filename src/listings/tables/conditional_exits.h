#pragma once

#include <map>
#include <string>
#include <vector>

#include "condacts/numbers.h"
#include "listings/tables/condition_texts.h"
#include "store/adventure.h"

namespace fabula::listings {

/// A way from a location that the process tables open: the words of an entry, where its GOTO leads, and
/// what must hold.
struct ConditionalExit {
    condacts::WordNumber verb;
    std::string words;  ///< "NORTH", or with a noun "GO BARN"
    condacts::PlaceNumber destination;
    std::string condition;  ///< the conditions before the GOTO, "NOTZERO 14"; "" for none
};

/// The exits of all locations, by location, in the order of the process tables. An entry belongs to the
/// location that its AT names; entries without an AT lead from no location that could be told.
std::map<condacts::PlaceNumber, std::vector<ConditionalExit>> LoadConditionalExits(
    store::Adventure& adventure, const ConditionTexts& texts);

}  // namespace fabula::listings
