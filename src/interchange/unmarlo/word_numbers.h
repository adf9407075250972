#pragma once

#include "interchange/listing/game_words.h"
#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

/// The closing pass over a game that came in from an UnMarlo listing: adds the default words, fills every
/// number of a word from its text, and adds the entries that control script and pictures.
void LoadWordNums(ListingJob& job, const DefaultWords& defaults, bool graphics);

}  // namespace fabula::interchange
