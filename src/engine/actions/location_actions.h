#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions that move the player, under their names (condact_table.cpp).

bool GoTo(Game& game, PlaceNumber location);
/// False when the location of the flag has no exit for the verb of the sentence; the entry then ends.
bool Move(Game& game, FlagNumber flag);
bool Desc(Game& game);
bool Reset(Game& game, PlaceNumber location);

/// What a search of the exits came to.
enum class ExitSearch { Moved, NoExit, NoDirection };

/// `SearchConnections`: goes where the exits of a location lead for the verb of the sentence, and asks for
/// the description there. Without such an exit the answer depends on the verb: below 14 it is a direction.
ExitSearch SearchConnections(Game& game, PlaceNumber location);

}  // namespace fabula::engine
