#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "packages/package_list.h"
#include "packages/zip_file.h"

namespace fabula::packages {

/// The engine that is installed with this program, for packages of games whose folder has none.
struct InstalledEngine {
    std::filesystem::path file;  ///< empty when there is none
};

/// The names of the engine in a game's folder and of the installed one.
inline constexpr std::string_view kEngineOfFolder = "FabulaEngine.exe";

/// How a game is packed.
struct PackageOrder {
    std::string version;
    std::string readMeText;   ///< what the author adds to the ReadMe
    std::string productPage;  ///< where the ReadMe says that the engine is found
    InstalledEngine engine;
};

/// The files of a package in their order: the rows that are included, the iFiction record and the cover.
struct Package {
    std::vector<PackedFile> files;
    std::string readMe;
    std::vector<std::string> notes;  ///< what it lacks that libraries of games expect, sentences
};

/// Reads the files of a list. Throws fabula::Error, which names it, for a file that is not there any more,
/// that lies outside of the game's folder, itself or by a link, or that can't be read.
Package GatherPackage(store::Adventure& adventure, const PackageList& list, const PackageOrder& order);

/// Writes the ReadMe into the game's folder. Throws fabula::Error when it can't be.
void WriteReadMe(const store::Adventure& adventure, const PackageList& list, const Package& package);

/// Ticks the engine: finds it in the game's folder, of version 6.0 or above, or takes the installed one.
/// Gives the message that refuses it, or "".
std::string IncludeEngine(store::Adventure& adventure, PackageList& list, const InstalledEngine& installed);

/// The largest file that is packed, in bytes.
inline constexpr std::uintmax_t kLargestPackedFile = 512 * 1024 * 1024;

}  // namespace fabula::packages
