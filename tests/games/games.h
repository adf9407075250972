#pragma once

#include <filesystem>

#include "support/games/starter_game.h"

namespace fabula::test {

// The games of the golden transcripts. A change of a game or of the starters changes transcripts; look at
// the difference before they are recorded again.

/// A ferryman who wants two coins for his work: light, containers, weights, speech and time.
void BuildFerryHouse(const std::filesystem::path& file, store::AdventureKind kind);

/// A signal that must be lit before the train comes, in a game of type Marlo.
void BuildSignalBox(const std::filesystem::path& file);

}  // namespace fabula::test
