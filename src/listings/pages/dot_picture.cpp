#include "listings/pages/dot_picture.h"

#include <algorithm>
#include <array>

#include "pictures/palette.h"

namespace fabula::listings {
namespace {

constexpr int kDotsAcross = 2;
constexpr int kDotsDown = 4;
constexpr char32_t kFirstSign = U'\u2800';
/// The bit of each dot in a sign, by row and column.
constexpr std::array<std::array<unsigned, kDotsAcross>, kDotsDown> kDotBits = {
    {{0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}}};
/// A dot shows where the brightness, up to 255, is below that of its place in the raster, so that a colour
/// between black and white becomes some dots and some gaps.
constexpr std::array<std::array<int, 2>, 2> kRaster = {{{51, 153}, {204, 102}}};

int Brightness(pictures::Colour colour) {
    return (pictures::Red(colour) * 30 + pictures::Green(colour) * 59 + pictures::Blue(colour) * 11) / 100;
}

/// The mean brightness of the points that fall into a dot.
int DotBrightness(const pictures::Image& image, int x, int y, int across, int down) {
    const int left = x * image.width / across;
    const int top = y * image.height / down;
    const int right = std::max(left + 1, (x + 1) * image.width / across);
    const int bottom = std::max(top + 1, (y + 1) * image.height / down);
    int sum = 0;
    for (int line = top; line < bottom; ++line) {
        for (int column = left; column < right; ++column)
            sum += Brightness(image.At(column, line));
    }
    return sum / ((right - left) * (bottom - top));
}

}  // namespace

std::vector<std::u32string> DotPicture(const pictures::Image& image, int columns, int lines) {
    std::vector<std::u32string> signs(static_cast<std::size_t>(lines),
                                      std::u32string(static_cast<std::size_t>(columns), kFirstSign));
    if (image.width == 0 || image.height == 0) return signs;
    const int across = columns * kDotsAcross;
    const int down = lines * kDotsDown;
    for (int y = 0; y < down; ++y) {
        for (int x = 0; x < across; ++x) {
            if (DotBrightness(image, x, y, across, down) >= kRaster[y % 2][x % 2]) continue;
            signs[y / kDotsDown][x / kDotsAcross] |= kDotBits[y % kDotsDown][x % kDotsAcross];
        }
    }
    return signs;
}

}  // namespace fabula::listings
