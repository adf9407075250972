#pragma once

namespace fabula::engine {

class Game;

/// The condacts that wait for the player, under their names (condact_table.cpp). Each is visited twice: the
/// first visit asks and sets flag 1017, and the tables are left; after the answer the turn cycle enters the
/// table at the same cell, and the second visit, which finds the flag set, finishes.

bool YesNo(Game& game, int message, int);
bool Quit(Game& game, int, int);
bool AnyKey(Game& game, int, int);
bool End(Game& game, int, int);

}  // namespace fabula::engine
