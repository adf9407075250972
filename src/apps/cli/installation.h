#pragma once

#include <filesystem>

namespace fabula::cli {

/// The file of default data, beside the program or in one of the data folders; empty when it is nowhere.
std::filesystem::path FindDefaultData();
/// The same; throws fabula::Error when it is nowhere.
std::filesystem::path DefaultDataFile();

/// The engine that is installed beside the program; empty when there is none.
std::filesystem::path InstalledEngine();

}  // namespace fabula::cli
