#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The condacts that wait for the player, under their names (condact_table.cpp). Each is visited twice: the
/// first visit asks and sets flag 1017, and the tables are left; after the answer the turn cycle enters the
/// table at the same cell, and the second visit, which finds the flag set, finishes.

bool YesNo(Game& game, MessageNumber message);
bool Quit(Game& game);
bool AnyKey(Game& game);
bool End(Game& game);

}  // namespace fabula::engine
