#pragma once

#include <filesystem>

#include "store/setup.h"

namespace fabula::bench {

/// Two rooms and a lamp to carry between them.
void BuildTwoRooms(const std::filesystem::path& file, store::AdventureKind kind);

/// The same two rooms in a game of type Fabula as large as one gets: 999 locations, 999 messages, 500
/// objects and 5,000 process entries, of which 4,000 answer to words, 500 are tried at each turn and 500
/// stand in tables of their own. The same each time.
void BuildLargeGame(const std::filesystem::path& file);

/// The commands that are measured, in turn: take, walk, drop, and back.
inline constexpr const char* kTour[] = {"take lamp", "north", "drop lamp",
                                        "take lamp", "south", "drop lamp"};

}  // namespace fabula::bench
