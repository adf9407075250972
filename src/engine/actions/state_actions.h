#pragma once

#include <string_view>

#include "engine/game_window.h"
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

/// The question for a file that SAVE (`forWriting`) and LOAD ask.
const FileRequest& SavedGameRequest(bool forWriting);

/// What LOAD does with a saved game: false, with nothing changed, when it is none of this adventure.
bool RestoreFrom(Game& game, std::string_view savedGame);
/// What is told of one that is none.
inline constexpr const char* kInvalidSave = "Invalid Save File for this Adventure";

}  // namespace fabula::engine
