#pragma once

#include <string>

#include "packages/cover.h"
#include "packages/game_facts.h"

namespace fabula::packages {

/// The record by which libraries of games know a game: XML in the form that the Treaty of Babel calls
/// iFiction. `cover` may be nullptr. Throws fabula::Error for a game without an IFID.
std::string IFictionRecord(const GameFacts& facts, const Cover* cover);

}  // namespace fabula::packages
