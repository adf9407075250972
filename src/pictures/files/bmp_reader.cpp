#include "pictures/files/bmp_reader.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/error.h"
#include "platform/image_limits.h"

namespace fabula::pictures {
namespace {

// Where things stand in the file. Numbers have their lowest byte first.
constexpr std::size_t kPixelsAt = 10;
constexpr std::size_t kHeaderAt = 14;
constexpr std::size_t kWidthAt = 18;
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kDepthAt = 28;
constexpr std::size_t kCompressionAt = 30;
constexpr std::size_t kColoursAt = 46;
constexpr std::uint32_t kSmallestHeader = 40;
constexpr std::uint32_t kLargestHeader = 124;
constexpr std::uint32_t kNotCompressed = 0;
constexpr std::uint32_t kWithMasks = 3;  ///< what 32 bits a pixel are often marked as
constexpr std::array<std::uint32_t, 5> kDepths = {1, 4, 8, 24, 32};

class BmpReader {
  public:
    BmpReader(std::string_view bytes, std::string_view fileName) : bytes_(bytes), fileName_(fileName) {}

    Image Read() {
        const std::uint32_t header = Number(kHeaderAt, 4);
        if (header < kSmallestHeader || header > kLargestHeader) Fail("its header is unknown.");
        const auto width = static_cast<std::int32_t>(Number(kWidthAt, 4));
        const auto height = static_cast<std::int32_t>(Number(kHeightAt, 4));
        const std::int64_t rows = std::max<std::int64_t>(height, -std::int64_t{height});
        if (const std::string fault = SizeFault(width, rows); !fault.empty()) Fail(fault);
        depth_ = Number(kDepthAt, 2);
        const std::uint32_t compression = Number(kCompressionAt, 4);
        const bool plain = compression == kNotCompressed || (compression == kWithMasks && depth_ == 32);
        if (!plain || std::ranges::find(kDepths, depth_) == kDepths.end())
            Fail("it is compressed, or of a kind that is not read.");
        if (depth_ <= 8) ReadColours(kHeaderAt + header);
        return ReadRows(width, static_cast<int>(rows), height > 0);
    }

  private:
    [[noreturn]] void Fail(const std::string& why) const { FailToRead(fileName_, why); }

    std::uint8_t Byte(std::size_t at) const {
        if (at >= bytes_.size()) Fail("it ends too early.");
        return static_cast<std::uint8_t>(bytes_[at]);
    }

    std::uint32_t Number(std::size_t at, std::size_t size) const {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < size; ++i)
            number |= static_cast<std::uint32_t>(Byte(at + i)) << (8 * i);
        return number;
    }

    /// Blue, green and red in this order.
    Colour ColourOf(std::size_t at) const { return MakeColour(Byte(at + 2), Byte(at + 1), Byte(at)); }

    void ReadColours(std::size_t at) {
        const std::uint32_t most = 1U << depth_;
        const std::uint32_t given = Number(kColoursAt, 4);
        const std::uint32_t count = given == 0 ? most : std::min(given, most);
        for (std::uint32_t i = 0; i < count; ++i)
            colours_.push_back(ColourOf(at + std::size_t{i} * 4));
        colours_.resize(most, MakeColour(0, 0, 0));
    }

    Image ReadRows(int width, int height, bool bottomFirst) const {
        const std::size_t rowBytes = (static_cast<std::size_t>(width) * depth_ + 31) / 32 * 4;
        const std::size_t begin = Number(kPixelsAt, 4);
        // Asked before there is memory for it.
        Byte(begin + rowBytes * static_cast<std::size_t>(height - 1) + rowBytes - 1);
        Image image(width, height, Colour{});
        for (int row = 0; row < height; ++row) {
            const int y = bottomFirst ? height - 1 - row : row;
            for (int x = 0; x < width; ++x)
                image.At(x, y) = Pixel(begin + static_cast<std::size_t>(row) * rowBytes, x);
        }
        return image;
    }

    Colour Pixel(std::size_t rowAt, int x) const {
        const std::size_t bit = static_cast<std::size_t>(x) * depth_;
        if (depth_ > 8) return ColourOf(rowAt + bit / 8);
        const std::uint32_t shift = 8 - depth_ - bit % 8;
        const std::uint32_t number = Byte(rowAt + bit / 8) >> shift & ((1U << depth_) - 1);
        return colours_[number];
    }

    std::string_view bytes_;
    std::string_view fileName_;
    std::uint32_t depth_ = 0;
    std::vector<Colour> colours_;
};

}  // namespace

Image DecodeBmp(std::string_view bytes, std::string_view fileName) {
    return BmpReader(bytes, fileName).Read();
}

void FailToRead(std::string_view fileName, std::string_view why) {
    throw Error("Could not read the image " + std::string(fileName) + ": " + std::string(why));
}

std::string SizeFault(std::int64_t width, std::int64_t height) {
    if (width < 1 || height < 1) return "it has no pixels.";
    return platform::IsImageWithinLimits(width, height) ? "" : "it has too many pixels.";
}

}  // namespace fabula::pictures
