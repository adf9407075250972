#pragma once

#include <optional>
#include <string>

#include "condacts/numbers.h"
#include "store/adventure.h"

namespace fabula::authoring {

// Records that a screen of another table makes along with its own, within its change. They open the cursor
// Free22.

/// A location without exits that has a name for a short description and nothing else.
void AddPlace(store::Adventure& adventure, condacts::PlaceNumber number, const std::string& name);

/// The number of a noun for an object: above those of all nouns and of the directions, so that IT may mean
/// it, or else the lowest free one; nullopt when there is none left.
std::optional<condacts::WordNumber> NumberOfNewNoun(store::Adventure& adventure);

/// A noun, in capitals. Conditions on words are compiled anew by whoever adds it.
void AddNoun(store::Adventure& adventure, const std::string& word, condacts::WordNumber number);

}  // namespace fabula::authoring
