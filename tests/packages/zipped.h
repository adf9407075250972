#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace fabula::packages {

/// The files of a zip by name, as the library reads them. Empty when there is no such zip.
std::map<std::string, std::string> Unzipped(const std::filesystem::path& zip);

}  // namespace fabula::packages
