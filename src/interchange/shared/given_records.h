#pragma once

#include <string>
#include <string_view>

#include "store/adventure.h"

namespace fabula::interchange {

/// The last system messages of every game that is imported, which tell of the record of a game being on or
/// off. Sources of the older engines lack them.
inline constexpr std::string_view kScriptMessages[] = {"Script IS on.", "Script IS off."};

/// An entry of process table 0 that every game which is imported is given, unless it has it.
struct GivenEntry {
    const char* w1;
    const char* w2;
    const char* condActs;
};

/// By these a player turns the record of a game off and on, and plays what was recorded. Games of type
/// "Marlo" have others: their parser knows no prepositions.
inline constexpr GivenEntry kScriptEntries[] = {
    {"TURN", "SCRIP", "PREP OFF SCRIPT 0"},
    {"TURN", "SCRIP", "PREP ON SCRIPT 1"},
    {"LOAD", "SCRIP", "SCRIPT 2"},
};

/// Whether the game has that very entry.
bool HasEntry(store::Adventure& adventure, const GivenEntry& entry);

/// Gives the game the name that its source tells, as far as the field has room; "" changes nothing.
void NameGame(store::Adventure& adventure, std::string_view name);

}  // namespace fabula::interchange
