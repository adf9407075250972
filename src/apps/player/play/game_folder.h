#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace fabula::player {

/// Where the files of one game's players lie: saved games, scripts, transcripts, and the state that is kept
/// by itself after each turn.
struct GameFolder {
    std::filesystem::path folder;
    std::filesystem::path autosave;
};

/// The folder of a game below the person's data folder. `saveName` is the game's `savename`, in which what
/// no folder's name may hold becomes "_"; two adventure files with the same name share the folder, but each
/// has an autosave of its own, by its place. Nothing is created.
GameFolder FolderOfGame(const std::filesystem::path& dataFolder, std::string_view saveName,
                        const std::filesystem::path& adventureFile);

}  // namespace fabula::player
