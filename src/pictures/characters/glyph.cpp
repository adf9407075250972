#include "pictures/characters/glyph.h"

#include <algorithm>

#include "pictures/drawstring.h"

namespace fabula::pictures {
namespace {

/// The four bits of a nibble in opposite order, twice side by side.
std::uint8_t MirrorAndRepeat(unsigned nibble) {
    const unsigned mirrored =
        (nibble & 1U) << 3 | (nibble & 2U) << 1 | (nibble & 4U) >> 1 | (nibble & 8U) >> 3;
    return static_cast<std::uint8_t>(17 * mirrored);
}

}  // namespace

Glyph ParseCharVals(std::string_view charVals) {
    Glyph glyph{};
    const std::vector<std::string> words = SplitAtBlanks(charVals);
    for (std::size_t row = 0; row < std::min(glyph.size(), words.size()); ++row) {
        glyph[row] = static_cast<std::uint8_t>(std::clamp(ParameterValue(words[row]).value_or(0), 0, 255));
    }
    return glyph;
}

std::string FormatCharVals(const Glyph& glyph) {
    std::string text;
    for (const std::uint8_t row : glyph) {
        if (!text.empty()) text += ' ';
        text += std::to_string(row);
    }
    return text;
}

Glyph CombineGlyphs(const Glyph& a, const Glyph& b) {
    Glyph both{};
    std::transform(a.begin(), a.end(), b.begin(), both.begin(),
                   [](std::uint8_t x, std::uint8_t y) { return static_cast<std::uint8_t>(x | y); });
    return both;
}

Glyph MarloShadePattern(int shade) {
    const std::uint8_t even = MirrorAndRepeat(static_cast<unsigned>(shade) >> 4 & 0xFU);
    const std::uint8_t odd = MirrorAndRepeat(static_cast<unsigned>(shade) & 0xFU);
    return {even, odd, even, odd, even, odd, even, odd};
}

}  // namespace fabula::pictures
