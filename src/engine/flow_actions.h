#pragma once

namespace fabula::engine {

class Game;

/// The actions that steer the tables, under their names (condact_table.cpp).

bool Done(Game& game, int, int);
bool NotDone(Game& game, int, int);
bool Ok(Game& game, int, int);
bool Process(Game& game, int process, int);
bool DoAll(Game& game, int location, int);
bool NewText(Game& game, int, int);
bool Nothing(Game& game, int, int);  ///< condacts kept for old games

}  // namespace fabula::engine
