#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fabula::platform {

/// What the environment says about the folders of a user and of the system; empty where it says nothing.
struct Environment {
    std::string home;       ///< HOME
    std::string dataDirs;   ///< XDG_DATA_DIRS, folders with ":" between them
    std::string dataHome;   ///< XDG_DATA_HOME
    std::string stateHome;  ///< XDG_STATE_HOME

    /// That of the running program.
    static Environment OfTheProgram();
};

/// The file that is running, links followed. Throws fabula::Error when the system does not say.
std::filesystem::path RunningProgram();

/// Where the files that come with the program (default data, starters, templates, help) may lie, in the
/// order in which they are looked for: beside `program`, in ../share/fabula of its folder, in "fabula" of
/// each installed data folder, and in the user's. A folder need not exist; relative ones of the environment
/// don't count.
std::vector<std::filesystem::path> ProgramDataFolders(const std::filesystem::path& program,
                                                      const Environment& environment);

/// The user's folders of the program: for what is worth keeping, and for what may be lost. Empty when the
/// environment tells of no home.
std::filesystem::path UserDataFolder(const Environment& environment);
std::filesystem::path UserStateFolder(const Environment& environment);

/// The first of `folders` that holds the file `name`, with the name; nullopt when none does.
std::optional<std::filesystem::path> FindFile(const std::vector<std::filesystem::path>& folders,
                                              const std::filesystem::path& name);

}  // namespace fabula::platform
