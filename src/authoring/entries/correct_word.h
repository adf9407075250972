#pragma once

#include <string>

#include "condacts/words.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// Lets the texts that name a word follow its corrected spelling: entries, exits and objects that have the
/// spelling `before` with its number get `now`. Conditions on words are compiled anew by whoever stored the
/// word. Where another word of the old spelling and number is left, the uses stay with that. Gives the
/// number of uses that followed, the exits of a location as one.
///
/// Opens the cursor Free22. Belongs into the change that stores the word, behind it.
int FollowCorrection(store::Adventure& adventure, const condacts::Word& before, const std::string& now);

}  // namespace fabula::authoring
