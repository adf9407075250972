#pragma once

#include <array>
#include <string>

#include "pictures/files/image.h"

namespace fabula::pictures {

/// An image as a picture can show it: 256 by 176 in palette colours, with at most two of one brightness in
/// each cell of 8 by 8.
struct CellImage {
    /// Palette numbers in rows from the top.
    std::array<std::uint8_t, static_cast<std::size_t>(kCanvasWidth) * kCanvasHeight> numbers{};

    std::uint8_t& At(int x, int line) { return numbers[IndexOf(x, line)]; }
    std::uint8_t At(int x, int line) const { return numbers[IndexOf(x, line)]; }

    Image ToImage() const;

    static std::size_t IndexOf(int x, int line) {
        return static_cast<std::size_t>(line) * kCanvasWidth + static_cast<std::size_t>(x);
    }
};

/// How colours that the palette lacks are shown: by the nearer of the cell's two, or by a mixture of both
/// that looks like them from afar.
enum class Dithering { Off, On };

/// Makes a picture of any image. It is scaled until it covers the whole picture; what stands out on two
/// sides is cut off evenly. Each cell gets the two colours that come nearest to what it shows.
CellImage FitToCells(const Image& image, Dithering dithering);

/// A drawstring that draws the image, every pixel of it, in a picture with the default paper `paper`:
/// blocks for what is plain, lines and points for the rest. It passes the check and stays within the most
/// commands that one draw may run.
std::string DrawstringOf(const CellImage& image, int paper);

}  // namespace fabula::pictures
