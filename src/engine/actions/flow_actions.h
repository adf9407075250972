#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions that steer the tables, under their names (condact_table.cpp).

bool Done(Game& game);
bool NotDone(Game& game);
bool Ok(Game& game);
bool Process(Game& game, ProcessNumber process);
bool DoAll(Game& game, PlaceNumber location);
bool NewText(Game& game);
bool Nothing(Game& game);  ///< condacts kept for old games

}  // namespace fabula::engine
