#pragma once

#include <cstdint>

namespace fabula::platform {

// What is read of images that come from elsewhere, whoever decodes them.

/// The largest image file, in bytes.
inline constexpr std::uintmax_t kLargestImageFile = 32 * 1024 * 1024;

/// The largest image, in pixels a side and in all.
inline constexpr int kLargestImageSide = 8192;
inline constexpr std::int64_t kLargestImageArea = 32 * 1024 * 1024;

/// Whether an image of that many pixels is within the limits; neither number is negative.
constexpr bool IsImageWithinLimits(std::int64_t width, std::int64_t height) {
    return width <= kLargestImageSide && height <= kLargestImageSide && width * height <= kLargestImageArea;
}

}  // namespace fabula::platform
