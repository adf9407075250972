#include "text/colours.h"

namespace fabula::text {
namespace {

struct Colour {
    std::string_view name;
    Rgb rgb;
};

constexpr std::array<Colour, kHighestColour + 1> kColours = {{
    {"Black", {0, 0, 0}},
    {"Blue", {0, 0, 230}},
    {"Red", {230, 0, 0}},
    {"Magenta", {230, 0, 230}},
    {"Green", {0, 230, 0}},
    {"Cyan", {0, 230, 230}},
    {"Yellow", {230, 230, 0}},
    {"White", {230, 230, 230}},
    {"Bright Black", {102, 102, 102}},
    {"Bright Blue", {0, 0, 255}},
    {"Bright Red", {255, 0, 0}},
    {"Bright Magenta", {255, 0, 255}},
    {"Bright Green", {0, 255, 0}},
    {"Bright Cyan", {0, 255, 255}},
    {"Bright Yellow", {255, 255, 0}},
    {"Bright White", {255, 255, 255}},
}};

}  // namespace

std::string_view ColourName(int number) {
    return IsColour(number) ? kColours[number].name : std::string_view();
}

Rgb ColourRGB(int number) {
    return IsColour(number) ? kColours[number].rgb : Rgb{};
}

int ColourIndex(Rgb colour, int fallback, const Palette* ownPalette) {
    for (int number = 0; number < static_cast<int>(kColours.size()); ++number) {
        if (kColours[number].rgb == colour) return number;
        if (ownPalette != nullptr && (*ownPalette)[number] == colour) return number;
    }
    return fallback == 1 ? 0 : 7;
}

}  // namespace fabula::text
