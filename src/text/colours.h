#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace fabula::text {

/// A colour by its parts, each from 0 to 255.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// Colours are numbered from 0: eight, and the same bright.
inline constexpr int kHighestColour = 15;
inline constexpr int kFirstBrightColour = 8;

/// Whether there is a colour of that number.
constexpr bool IsColour(std::int64_t number) {
    return number >= 0 && number <= kHighestColour;
}

/// A colour for each number, such as an adventure may bring for itself.
using Palette = std::array<Rgb, kHighestColour + 1>;

/// "Black" for 0 to "Bright White" for 15; empty for any other number.
std::string_view ColourName(int number);

/// The colour of a number from 0 to 15; black for any other.
Rgb ColourRGB(int number);

/// The lowest number whose ColourRGB, or whose entry in the adventure's own palette, is `colour`. A colour
/// that is in neither gives 0 when `fallback` is 1, and else 7.
int ColourIndex(Rgb colour, int fallback, const Palette* ownPalette = nullptr);

}  // namespace fabula::text
