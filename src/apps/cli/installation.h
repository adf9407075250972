#pragma once

#include <filesystem>

namespace fabula::cli {

/// The file of default data: in share/fabula beside the folder that the program lies in.
/// Throws fabula::Error when it is not there.
std::filesystem::path DefaultDataFile();

}  // namespace fabula::cli
