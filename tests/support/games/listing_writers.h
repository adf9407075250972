#pragma once

#include <cstdint>
#include <string>

#include "support/games/listed_game.h"

namespace fabula::test {

// The listings that the two decompilers would write of a game. They follow the description of the listings
// and share nothing with the readers.

/// The listing of UnMarlo; the game must be one of the older engine. Addresses and hexadecimal tails are
/// made from `seed`, and so is where a text is broken.
std::string UnMarloListing(const ListedGame& game, std::uint32_t seed,
                           const std::string& version = "0.9.0");

/// The listing of UnVels.
std::string UnVelListing(const ListedGame& game, const std::string& extracted = "Extracted by UnVELS v2.0");

}  // namespace fabula::test
