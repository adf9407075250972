#include "pictures/files/contact_sheet.h"

#include <algorithm>
#include <string>

namespace fabula::pictures {
namespace {

constexpr int kThumbnailWidth = kCanvasWidth / 2;
constexpr int kThumbnailHeight = kCanvasHeight / 2;
constexpr int kGap = 8;
constexpr int kLabelHeight = kCellSize + 4;
constexpr Colour kSheet = MakeColour(64, 64, 64);
constexpr Colour kLabel = MakeColour(255, 255, 255);

/// The colour halfway between the four pixels of a square.
Colour Average(const Image& image, int x, int y) {
    int red = 0;
    int green = 0;
    int blue = 0;
    for (const auto& [dx, dy] : {std::pair(0, 0), std::pair(1, 0), std::pair(0, 1), std::pair(1, 1)}) {
        const Colour colour = image.At(x + dx, y + dy);
        red += Red(colour);
        green += Green(colour);
        blue += Blue(colour);
    }
    return MakeColour(static_cast<std::uint8_t>(red / 4), static_cast<std::uint8_t>(green / 4),
                      static_cast<std::uint8_t>(blue / 4));
}

void PutThumbnail(Image& sheet, const Image& picture, int left, int top) {
    for (int y = 0; y < kThumbnailHeight; ++y) {
        for (int x = 0; x < kThumbnailWidth; ++x) {
            sheet.At(left + x, top + y) = Average(picture, 2 * x, 2 * y);
        }
    }
}

void PutNumber(Image& sheet, const CharacterSets& characters, int number, int left, int top) {
    for (const char digit : std::to_string(number)) {
        const Character* character = characters.Find(0, digit);
        if (character == nullptr) continue;
        for (int y = 0; y < kCellSize; ++y) {
            for (int x = 0; x < kCellSize; ++x) {
                if (HasBit(character->glyph, x, y)) sheet.At(left + x, top + y) = kLabel;
            }
        }
        left += kCellSize;
    }
}

}  // namespace

Image ContactSheet(const std::vector<NumberedPicture>& pictures, const CharacterSets& characters,
                   int columns) {
    const int count = static_cast<int>(pictures.size());
    const int across = std::clamp(count, 1, columns);
    const int down = (count + columns - 1) / columns;
    const int stepX = kThumbnailWidth + kGap;
    const int stepY = kThumbnailHeight + kLabelHeight + kGap;
    Image sheet(kGap + across * stepX, kGap + down * stepY, kSheet);
    for (int i = 0; i < count; ++i) {
        const NumberedPicture& picture = pictures[static_cast<std::size_t>(i)];
        const int left = kGap + i % columns * stepX;
        const int top = kGap + i / columns * stepY;
        PutThumbnail(sheet, picture.image, left, top);
        PutNumber(sheet, characters, picture.number, left, top + kThumbnailHeight + 2);
    }
    return sheet;
}

}  // namespace fabula::pictures
