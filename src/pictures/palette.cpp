#include "pictures/palette.h"

#include <algorithm>
#include <array>

#include "text/colours.h"

namespace fabula::pictures {
namespace {

using Palette = std::array<Colour, 16>;

const Palette& Entries() {
    static const Palette kEntries = [] {
        Palette entries{};
        for (std::size_t number = 0; number < entries.size(); ++number) {
            const text::Rgb rgb = text::ColourRGB(static_cast<int>(number));
            entries[number] = MakeColour(rgb.red, rgb.green, rgb.blue);
        }
        return entries;
    }();
    return kEntries;
}

}  // namespace

Colour IndexToColour(int number) {
    const Palette& entries = Entries();
    if (number < 0 || number >= static_cast<int>(entries.size())) return entries[0];
    return entries[static_cast<std::size_t>(number)];
}

int ColourToIndex(Colour colour) {
    const Palette& entries = Entries();
    const auto found = std::find(entries.begin(), entries.end(), colour);
    return found == entries.end() ? kUnknownColourNumber : static_cast<int>(found - entries.begin());
}

}  // namespace fabula::pictures
