#pragma once

#include <filesystem>
#include <string_view>

#include "pictures/files/image.h"

namespace fabula::pictures {

/// The image that `bytes` hold, told from the first of them: PNG, JPEG or a Windows bitmap that is not
/// compressed. What is transparent becomes white. Throws fabula::Error, naming `fileName`, when they hold
/// none, are broken or exceed a limit (platform/image_limits.h).
Image DecodeImage(std::string_view bytes, std::string_view fileName);

/// The image of a file, by the same rules.
Image ReadImage(const std::filesystem::path& file);

}  // namespace fabula::pictures
