#pragma once

#include "interchange/listing/listing_job.h"

namespace fabula::interchange {

/// Gives an imported game the words and entries that control the script and the pictures of this system.
/// What the game has already is not added again. Words of the game must have been read.

/// For a game of type Marlo.
void AddMarloCommands(ListingJob& job, bool graphics);
/// For a game of type VEL.
void AddVelCommands(ListingJob& job);

}  // namespace fabula::interchange
