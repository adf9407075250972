#pragma once

#include <filesystem>

namespace fabula::cli {

/// The file of default data, beside the program or in one of the data folders.
/// Throws fabula::Error when it is nowhere.
std::filesystem::path DefaultDataFile();

}  // namespace fabula::cli
