#pragma once

#include <filesystem>
#include <string>

#include "support/games/game_builder.h"

namespace fabula::test {

std::string ReadState(const std::filesystem::path& file);
void WriteState(const std::filesystem::path& file, const std::string& content);

/// A game with SAVE, LOAD, KEEP (RAMSAVE) and BACK (RAMLOAD 255) as sentences. STEP counts in the flags 200
/// and 300 and goes to room 1, and TAKE carries object 1.
GameBuilder SavedWorld();

/// Types SAVE and names a file; what it holds then.
std::string Save(GameRun& run, const char* name = "one.sav");
/// Types LOAD and names a file; the text of the box, or "".
std::string Load(GameRun& run, const char* name = "one.sav");

}  // namespace fabula::test
