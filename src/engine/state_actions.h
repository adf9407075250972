#pragma once

#include <filesystem>

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// The actions that keep and bring back the state of the game, and that write and play scripts, under their
/// names (condact_table.cpp).

bool Save(Game& game);
bool Load(Game& game);
bool RamSave(Game& game);
bool RamLoad(Game& game, FlagNumber lastFlag);
bool Oops(Game& game, int slot);
bool Again(Game& game);
bool ScriptAction(Game& game, int value);

/// What LOAD does with a file: false, with nothing changed, when it is no save of this adventure. Throws
/// fabula::Error.
bool RestoreFrom(Game& game, const std::filesystem::path& file);

}  // namespace fabula::engine
