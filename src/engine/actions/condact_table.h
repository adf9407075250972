#pragma once

#include <span>
#include <string_view>

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// Runs a condact with the numbers of its entry; one that it does not take is 0. A condition returns
/// whether it holds, an action whether its entry goes on.
using Routine = bool (*)(Game& game, int p1, int p2);

/// One condition or action: its number in the entries, its name, and how the trace begins its line. How
/// many parameters it takes stands in the adventure's own catalogue.
struct CondActRoutine {
    int number;
    std::string_view name;
    std::string_view trace;
    Routine run;
    /// For the word conditions: what the trace puts between the parameter and the flag, and that flag.
    std::string_view traceFlagText = {};
    FlagNumber traceFlag = {};
    /// It waits for the player: YESNO, QUIT, END, ANYKEY.
    bool asks = false;

    /// A number of 200 or more is an action.
    constexpr bool IsAction() const { return number >= 200; }
};

/// All of them, by number.
std::span<const CondActRoutine> AllCondActs();

inline constexpr int kFirstCondAct = 101;
inline constexpr int kLastCondAct = 294;

}  // namespace fabula::engine
