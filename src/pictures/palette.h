#pragma once

#include <cstdint>

namespace fabula::pictures {

/// A colour of a pixel, red, green and blue of 8 bits each: 0xRRGGBB.
enum class Colour : std::uint32_t {};

constexpr Colour MakeColour(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return Colour{static_cast<std::uint32_t>(red) << 16 | static_cast<std::uint32_t>(green) << 8 | blue};
}
constexpr std::uint8_t Red(Colour colour) {
    return static_cast<std::uint8_t>(static_cast<std::uint32_t>(colour) >> 16);
}
constexpr std::uint8_t Green(Colour colour) {
    return static_cast<std::uint8_t>(static_cast<std::uint32_t>(colour) >> 8);
}
constexpr std::uint8_t Blue(Colour colour) {
    return static_cast<std::uint8_t>(colour);
}
/// What exclusive-or of a pen with a pixel makes; the result may stand in no palette.
constexpr Colour operator^(Colour a, Colour b) {
    return Colour{static_cast<std::uint32_t>(a) ^ static_cast<std::uint32_t>(b)};
}

/// The number that a colour of no palette counts as.
inline constexpr int kUnknownColourNumber = 7;

/// The palette's colour of a number from 0 (black) to 15 (bright white); black for any other number.
Colour IndexToColour(int number);

/// The lowest number whose palette entry is `colour`; kUnknownColourNumber when none is.
int ColourToIndex(Colour colour);

}  // namespace fabula::pictures
