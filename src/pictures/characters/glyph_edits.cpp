#include "pictures/characters/glyph_edits.h"

#include <algorithm>
#include <bit>

namespace fabula::pictures {
namespace {

/// The character whose pixel at a column and a row is that of `source(column, row)`.
template <typename Source>
Glyph Made(Source source) {
    Glyph made{};
    for (int row = 0; row < kGlyphSide; ++row) {
        for (int column = 0; column < kGlyphSide; ++column)
            made = WithPixel(made, column, row, source(column, row));
    }
    return made;
}

Glyph ByRow(Glyph glyph, std::uint8_t (*change)(std::uint8_t row)) {
    std::transform(glyph.begin(), glyph.end(), glyph.begin(), change);
    return glyph;
}

}  // namespace

Glyph WithPixel(Glyph glyph, int column, int row, bool set) {
    std::uint8_t& bits = glyph[static_cast<std::size_t>(row)];
    const int bit = 1 << (7 - column);
    bits = static_cast<std::uint8_t>(set ? bits | bit : bits & ~bit);
    return glyph;
}

Glyph ShiftLeft(const Glyph& glyph) {
    return ByRow(glyph, [](std::uint8_t row) { return std::rotl(row, 1); });
}

Glyph ShiftRight(const Glyph& glyph) {
    return ByRow(glyph, [](std::uint8_t row) { return std::rotr(row, 1); });
}

Glyph ShiftUp(const Glyph& glyph) {
    Glyph shifted = glyph;
    std::rotate(shifted.begin(), shifted.begin() + 1, shifted.end());
    return shifted;
}

Glyph ShiftDown(const Glyph& glyph) {
    Glyph shifted = glyph;
    std::rotate(shifted.begin(), shifted.end() - 1, shifted.end());
    return shifted;
}

Glyph Rotate(const Glyph& glyph) {
    return Made([&](int column, int row) { return HasBit(glyph, row, 7 - column); });
}

Glyph MirrorSideways(const Glyph& glyph) {
    return Made([&](int column, int row) { return HasBit(glyph, 7 - column, row); });
}

Glyph MirrorUpsideDown(const Glyph& glyph) {
    Glyph mirrored = glyph;
    std::reverse(mirrored.begin(), mirrored.end());
    return mirrored;
}

Glyph Invert(const Glyph& glyph) {
    return ByRow(glyph, [](std::uint8_t row) { return static_cast<std::uint8_t>(~row); });
}

}  // namespace fabula::pictures
