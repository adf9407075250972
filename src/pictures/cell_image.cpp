#include "pictures/cell_image.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace fabula::pictures {
namespace {

constexpr int kColoursOfABrightness = 8;
/// A pair whose colours lie far apart makes a coarse mixture: how much of their distance counts.
constexpr float kCoarseness = 0.02F;

/// Red, green and blue, or how far two colours differ in them.
struct Rgb {
    float red = 0;
    float green = 0;
    float blue = 0;

    Rgb operator+(const Rgb& other) const {
        return {red + other.red, green + other.green, blue + other.blue};
    }
    Rgb operator-(const Rgb& other) const {
        return {red - other.red, green - other.green, blue - other.blue};
    }
    Rgb operator*(float factor) const { return {red * factor, green * factor, blue * factor}; }
};

/// The eye sees green best and blue worst.
float Product(const Rgb& a, const Rgb& b) {
    return 3 * a.red * b.red + 6 * a.green * b.green + 2 * a.blue * b.blue;
}
float Distance(const Rgb& a, const Rgb& b) {
    return Product(a - b, a - b);
}

Rgb Of(Colour colour) {
    return {static_cast<float>(Red(colour)), static_cast<float>(Green(colour)),
            static_cast<float>(Blue(colour))};
}

const std::array<Rgb, 16>& PaletteColours() {
    static const std::array<Rgb, 16> kColours = [] {
        std::array<Rgb, 16> colours;
        for (int number = 0; number < 16; ++number)
            colours[static_cast<std::size_t>(number)] = Of(IndexToColour(number));
        return colours;
    }();
    return kColours;
}

using Pixels = std::vector<Rgb>;  ///< of a picture, in rows from the top

/// The share of each pixel of an image that lies between two places of an axis, summed up by `add`.
template <typename Add>
void EachShare(double from, double to, int size, Add add) {
    const int first = std::clamp(static_cast<int>(from), 0, size - 1);
    const int last = std::clamp(static_cast<int>(std::ceil(to)) - 1, first, size - 1);
    for (int at = first; at <= last; ++at) {
        const double share = std::min(to, at + 1.0) - std::max(from, static_cast<double>(at));
        add(at, static_cast<float>(std::max(share, 1e-6)));
    }
}

/// The image over the whole picture: each pixel is the average of what it covers.
Pixels Cover(const Image& image) {
    const double step = std::min(static_cast<double>(image.width) / kCanvasWidth,
                                 static_cast<double>(image.height) / kCanvasHeight);
    const double left = (image.width - step * kCanvasWidth) / 2;
    const double top = (image.height - step * kCanvasHeight) / 2;
    Pixels pixels;
    pixels.reserve(CellImage().numbers.size());
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            Rgb sum;
            float weight = 0;
            EachShare(top + line * step, top + (line + 1) * step, image.height, [&](int y, float high) {
                EachShare(left + x * step, left + (x + 1) * step, image.width, [&](int at, float wide) {
                    sum = sum + Of(image.At(at, y)) * (high * wide);
                    weight += high * wide;
                });
            });
            pixels.push_back(sum * (1 / weight));
        }
    }
    return pixels;
}

/// The two colours of a cell, by palette number; the same twice for a plain one.
struct Pair {
    int first = 0;
    int second = 0;
};

/// How badly a pair shows a colour.
float PairError(const Rgb& wanted, const Rgb& a, const Rgb& b, Dithering dithering) {
    const float nearest = std::min(Distance(wanted, a), Distance(wanted, b));
    const float apart = Distance(a, b);
    if (dithering == Dithering::Off || apart == 0) return nearest;
    const float place = std::clamp(Product(wanted - a, b - a) / apart, 0.0F, 1.0F);
    return std::min(nearest, Distance(wanted, a + (b - a) * place) + kCoarseness * apart);
}

Pair BestPair(const Pixels& pixels, int column, int row, Dithering dithering) {
    const auto& palette = PaletteColours();
    Pair best;
    float least = std::numeric_limits<float>::max();
    for (int first = 0; first < 16; ++first) {
        const int end = first < kColoursOfABrightness ? kColoursOfABrightness : 16;
        for (int second = first; second < end; ++second) {
            float error = 0;
            for (int i = 0; i < kCellSize * kCellSize && error < least; ++i) {
                const std::size_t at =
                    CellImage::IndexOf(column * kCellSize + i % kCellSize, row * kCellSize + i / kCellSize);
                error += PairError(pixels[at], palette[static_cast<std::size_t>(first)],
                                   palette[static_cast<std::size_t>(second)], dithering);
            }
            if (error >= least) continue;
            least = error;
            best = {first, second};
        }
    }
    return best;
}

/// Hands what a pixel is shown wrong by on to its neighbours that come later.
void Spread(Pixels& pixels, int x, int line, const Rgb& error) {
    struct Share {
        int dx;
        int dy;
        float part;
    };
    constexpr std::array kShares = {Share{1, 0, 7 / 16.0F}, Share{-1, 1, 3 / 16.0F}, Share{0, 1, 5 / 16.0F},
                                    Share{1, 1, 1 / 16.0F}};
    for (const Share& share : kShares) {
        if (!Plane::Contains(x + share.dx, line + share.dy)) continue;
        Rgb& neighbour = pixels[CellImage::IndexOf(x + share.dx, line + share.dy)];
        neighbour = neighbour + error * share.part;
    }
}

Rgb Within(const Rgb& colour) {
    return {std::clamp(colour.red, 0.0F, 255.0F), std::clamp(colour.green, 0.0F, 255.0F),
            std::clamp(colour.blue, 0.0F, 255.0F)};
}

}  // namespace

Image CellImage::ToImage() const {
    Image image(kCanvasWidth, kCanvasHeight, Colour{});
    std::ranges::transform(numbers, image.pixels.begin(),
                           [](std::uint8_t number) { return IndexToColour(number); });
    return image;
}

CellImage FitToCells(const Image& image, Dithering dithering) {
    Pixels pixels = Cover(image);
    std::array<Pair, static_cast<std::size_t>(kCellColumns) * kCellRows> pairs;
    for (int cell = 0; cell < kCellColumns * kCellRows; ++cell)
        pairs[static_cast<std::size_t>(cell)] =
            BestPair(pixels, cell % kCellColumns, cell / kCellColumns, dithering);
    CellImage fitted;
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x) {
            const Pair& pair =
                pairs[static_cast<std::size_t>(line / kCellSize * kCellColumns + x / kCellSize)];
            const Rgb wanted = Within(pixels[CellImage::IndexOf(x, line)]);
            const Rgb& first = PaletteColours()[static_cast<std::size_t>(pair.first)];
            const Rgb& second = PaletteColours()[static_cast<std::size_t>(pair.second)];
            const bool isFirst = Distance(wanted, first) <= Distance(wanted, second);
            fitted.At(x, line) = static_cast<std::uint8_t>(isFirst ? pair.first : pair.second);
            if (dithering == Dithering::On) Spread(pixels, x, line, wanted - (isFirst ? first : second));
        }
    }
    return fitted;
}

}  // namespace fabula::pictures
