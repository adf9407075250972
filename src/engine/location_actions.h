#pragma once

namespace fabula::engine {

class Game;

/// The actions that move the player, under their names (condact_table.cpp).

bool GoTo(Game& game, int location, int);
/// False when the location of the flag has no exit for the verb of the sentence; the entry then ends.
bool Move(Game& game, int flag, int);
bool Desc(Game& game, int, int);
bool Reset(Game& game, int location, int);

/// What a search of the exits came to.
enum class ExitSearch { Moved, NoExit, NoDirection };

/// `SearchConnections`: goes where the exits of a location lead for the verb of the sentence, and asks for
/// the description there. Without such an exit the answer depends on the verb: below 14 it is a direction.
ExitSearch SearchConnections(Game& game, int location);

}  // namespace fabula::engine
