#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "pictures/files/image.h"

namespace fabula::pictures {

/// The image of a Windows bitmap of 1, 4, 8, 24 or 32 bits a pixel that is not compressed. Throws
/// fabula::Error, naming `fileName`, for any other.
Image DecodeBmp(std::string_view bytes, std::string_view fileName);

/// Throws fabula::Error: the image of that file can't be read, and why, a sentence.
[[noreturn]] void FailToRead(std::string_view fileName, std::string_view why);
/// Why an image of that size is not read, a sentence; empty when it is.
std::string SizeFault(std::int64_t width, std::int64_t height);

}  // namespace fabula::pictures
