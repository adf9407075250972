#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace fabula::platform {

/// A name that any file system takes for a file or folder, made of the first bytes of `name`: what no name
/// may hold becomes "_", and blanks and dots at its ends go; "Untitled" when nothing is left.
std::string SafeFileName(std::string_view name);
inline constexpr std::size_t kLongestFileName = 64;

/// 16 hexadecimal digits that stand for the place of a file, links followed: the same on every machine, at
/// every start and in every build.
std::string PlaceCode(const std::filesystem::path& file);

}  // namespace fabula::platform
