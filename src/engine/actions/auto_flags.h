#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// Flags that change by themselves. Each flag has a kind, negative for counting down and positive for
/// counting up; 0 leaves the flag alone.
///
///     1  every turn                   4  at each description
///     2  every turn in the dark       5  at each description in the dark
///     3  as 2, without object 0       6  as 5, without object 0
///     7  every turn while object 0 is not at 252
///
/// The dark is flag 0 being non-zero.

/// The kinds at the start of a game: flags 2 to 10 count down.
void SetAutoFlags(Game& game);

/// Throws RunFailure for a flag that does not exist.
void SetAutoFlag(Game& game, FlagNumber flag, int kind);

/// Changes the flags that are due, at a description or at a turn. A flag at 0 is not counted down; the
/// others stay within 0 to 999.
void DoAutoFlags(Game& game, bool isDescribe);

}  // namespace fabula::engine
