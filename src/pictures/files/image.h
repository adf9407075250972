#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "pictures/canvas.h"

namespace fabula::pictures {

/// Pixels in rows from the top left.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels;

    Image() = default;
    Image(int imageWidth, int imageHeight, Colour colour);

    Colour& At(int x, int y) { return pixels[IndexOf(x, y)]; }
    Colour At(int x, int y) const { return pixels[IndexOf(x, y)]; }

  private:
    std::size_t IndexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

inline constexpr int kLargestScale = 16;

/// A plane with every pixel as a square of `scale` by `scale`, 1 to kLargestScale.
Image ImageOf(const Plane& plane, int scale = 1);

/// The bytes of a Windows bitmap with 24 bits a pixel, and of a PNG file.
std::string EncodeBmp(const Image& image);
std::string EncodePng(const Image& image);

/// Writes the image in the form that the file's extension names, ".bmp" or ".png" in any case. A file that
/// is there already is replaced when the new one is complete. Throws fabula::Error for another extension
/// and when writing fails; the file is then as it was.
void WriteImage(const std::filesystem::path& file, const Image& image);

}  // namespace fabula::pictures
