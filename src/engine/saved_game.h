#pragma once

#include <filesystem>

#include "engine/game_data.h"
#include "engine/run_state.h"

namespace fabula::engine {

/// A saved game is a text file of 35 lines with values separated by ",":
///
///     1         "Fabula", the adventure's `savename`, 10, 10, the highest flag
///     2         10, the highest history slot
///     3 to 13   visited marks of all locations, one line for each slot from 0
///     14 to 24  locations of all objects
///     25 to 35  all flags

/// Writes the state with its history, atomically. Throws fabula::Error; an existing file is then as it was.
void WriteSavedGame(const std::filesystem::path& file, const GameData& data, RunState& state);

/// Reads a saved game into the state. False, with nothing changed, when the file is not one of this
/// adventure: cut, with something that is no number, with a number out of range, or with the player in a
/// location that does not exist. Throws fabula::Error when the file can't be read.
bool ReadSavedGame(const std::filesystem::path& file, const GameData& data, RunState& state);

}  // namespace fabula::engine
