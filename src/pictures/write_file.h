#pragma once

#include <filesystem>
#include <string_view>

namespace fabula::pictures {

/// Writes a file whole: a file that is there already is replaced when the new one is complete. Throws
/// fabula::Error and leaves it as it was.
void WriteFile(const std::filesystem::path& file, std::string_view bytes);

}  // namespace fabula::pictures
