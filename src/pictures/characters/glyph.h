#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace fabula::pictures {

/// Pixels of a character, across and down.
inline constexpr int kGlyphSide = 8;

/// A bitmap of 8 by 8 pixels: one byte a row from the top, bit 7 the left pixel. A character of a set, and
/// the pattern of a fill.
using Glyph = std::array<std::uint8_t, kGlyphSide>;

constexpr bool HasBit(const Glyph& glyph, int column, int row) {
    return (glyph[static_cast<std::size_t>(row)] >> (kGlyphSide - 1 - column) & 1) != 0;
}

/// The bitmap of a `charvals` text, eight numbers separated by blanks. Never fails: a number above 255
/// counts as 255, and one that is missing or is no number as 0.
Glyph ParseCharVals(std::string_view charVals);

/// The `charvals` text of a bitmap.
std::string FormatCharVals(const Glyph& glyph);

/// Two shades laid over one another.
Glyph CombineGlyphs(const Glyph& a, const Glyph& b);

/// The pattern of a shade byte of QSHADE and BSHADE, 1 to 255: its high four bits, mirrored and repeated,
/// are the even rows, its low four the odd ones.
Glyph MarloShadePattern(int shade);

}  // namespace fabula::pictures
