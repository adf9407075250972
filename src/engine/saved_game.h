#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

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

/// The state with its history, as a saved game holds it.
std::string SavedGameText(const GameData& data, RunState& state);
/// Writes a saved game, atomically. Throws fabula::Error; an existing file is then as it was.
void WriteSavedGame(const std::filesystem::path& file, std::string_view text);

/// What a file holds, at most as much as a saved game of this state can be; "" when it is longer. Throws
/// fabula::Error when it can't be read.
std::string ReadSavedGame(const std::filesystem::path& file, const RunState& state);
/// Takes a saved game into the state. False, with nothing changed, when it is not one of this adventure:
/// cut, with something that is no number, with a number out of range, or with the player in a location
/// that does not exist; or when `fits` refuses the flags of a slot.
using FlagsFit = std::function<bool(std::span<const std::int16_t> flags)>;
bool TakeSavedGame(std::string_view text, const GameData& data, RunState& state, const FlagsFit& fits);

}  // namespace fabula::engine
