#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "pictures/files/image.h"

namespace fabula::pictures {

/// The largest image file that is read, in bytes, and the largest image, in pixels a side and in all.
inline constexpr std::uintmax_t kLargestImageFile = 32 * 1024 * 1024;
inline constexpr int kLargestImageSide = 8192;
inline constexpr std::int64_t kLargestImageArea = 32 * 1024 * 1024;

/// The image that `bytes` hold, told from the first of them: PNG, JPEG or a Windows bitmap that is not
/// compressed. What is transparent becomes white. Throws fabula::Error, naming `fileName`, when they hold
/// none, are broken or exceed a limit.
Image DecodeImage(std::string_view bytes, std::string_view fileName);

/// The image of a file, by the same rules.
Image ReadImage(const std::filesystem::path& file);

}  // namespace fabula::pictures
