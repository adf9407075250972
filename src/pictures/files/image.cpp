#include "pictures/files/image.h"

#include <cstdint>

#include <png.h>

#include "platform/error.h"
#include "store/file/file_copy.h"
#include "text/encoding/utf8.h"

namespace fabula::pictures {
namespace {

/// The 54 bytes in front of a bitmap's pixels: the file's header and that of the picture.
constexpr std::uint32_t kBmpFileHeaderSize = 14;
constexpr std::uint32_t kBmpInfoHeaderSize = 40;
constexpr std::uint32_t kBmpPixelsAMetre = 2835;  // 72 dots an inch

/// Numbers in files stand with their lowest byte first.
void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

std::string RgbBytes(const Image& image) {
    std::string bytes;
    bytes.reserve(image.pixels.size() * 3);
    for (const Colour colour : image.pixels) {
        bytes += static_cast<char>(Red(colour));
        bytes += static_cast<char>(Green(colour));
        bytes += static_cast<char>(Blue(colour));
    }
    return bytes;
}

}  // namespace

Image::Image(int imageWidth, int imageHeight, Colour colour)
    : width(imageWidth),
      height(imageHeight),
      pixels(static_cast<std::size_t>(imageWidth) * static_cast<std::size_t>(imageHeight), colour) {}

Image ImageOf(const Plane& plane, int scale) {
    Image image(kCanvasWidth * scale, kCanvasHeight * scale, plane.Background());
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            image.At(x, y) = plane.Pixel(x / scale, y / scale);
        }
    }
    return image;
}

std::string EncodeBmp(const Image& image) {
    const auto width = static_cast<std::uint32_t>(image.width);
    const auto height = static_cast<std::uint32_t>(image.height);
    const std::uint32_t rowSize = (width * 3 + 3) / 4 * 4;
    const std::uint32_t headers = kBmpFileHeaderSize + kBmpInfoHeaderSize;
    std::string bytes;
    bytes.reserve(headers + rowSize * height);

    bytes += "BM";
    Append(bytes, headers + rowSize * height, 4);
    Append(bytes, 0, 4);
    Append(bytes, headers, 4);

    Append(bytes, kBmpInfoHeaderSize, 4);
    Append(bytes, width, 4);
    Append(bytes, height, 4);
    Append(bytes, 1, 2);   // planes
    Append(bytes, 24, 2);  // bits a pixel
    Append(bytes, 0, 4);   // not compressed
    Append(bytes, rowSize * height, 4);
    Append(bytes, kBmpPixelsAMetre, 4);
    Append(bytes, kBmpPixelsAMetre, 4);
    Append(bytes, 0, 4);  // no colour table
    Append(bytes, 0, 4);

    for (int y = image.height - 1; y >= 0; --y) {
        for (int x = 0; x < image.width; ++x) {
            const Colour colour = image.At(x, y);
            bytes += static_cast<char>(Blue(colour));
            bytes += static_cast<char>(Green(colour));
            bytes += static_cast<char>(Red(colour));
        }
        bytes.append(rowSize - width * 3, '\0');
    }
    return bytes;
}

std::string EncodePng(const Image& image) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    const std::string pixels = RgbBytes(image);
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(png), '\0');
    png_alloc_size_t size = bytes.size();
    if (png_image_write_to_memory(&png, bytes.data(), &size, 0, pixels.data(), 0, nullptr) == 0) {
        throw Error(std::string("Could not make a PNG picture: ") + png.message + ".");
    }
    bytes.resize(size);
    return bytes;
}

void WriteImage(const std::filesystem::path& file, const Image& image) {
    const std::string extension = text::LowerCase(file.extension().string());
    if (extension != ".bmp" && extension != ".png") {
        throw Error("Could not write " + file.string() + ": a picture's name ends in .bmp or .png.");
    }
    store::WriteFile(file, extension == ".bmp" ? EncodeBmp(image) : EncodePng(image));
}

}  // namespace fabula::pictures
