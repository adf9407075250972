#pragma once

#include <filesystem>

namespace fabula::engine {

class Game;

/// The actions that keep and bring back the state of the game, and that write and play scripts, under their
/// names (condact_table.cpp).

bool Save(Game& game, int, int);
bool Load(Game& game, int, int);
bool RamSave(Game& game, int, int);
bool RamLoad(Game& game, int lastFlag, int);
bool Oops(Game& game, int slot, int);
bool Again(Game& game, int, int);
bool ScriptAction(Game& game, int value, int);

/// What LOAD does with a file: false, with nothing changed, when it is no save of this adventure. Throws
/// fabula::Error.
bool RestoreFrom(Game& game, const std::filesystem::path& file);

}  // namespace fabula::engine
