#include "pictures/files/image_reader.h"

#include <memory>
#include <string>
#include <vector>

#include <png.h>
#include <turbojpeg.h>

#include "pictures/files/bmp_reader.h"
#include "platform/error.h"
#include "platform/image_limits.h"
#include "platform/whole_file.h"

namespace fabula::pictures {
namespace {

constexpr std::string_view kPngStart = "\x89PNG\r\n\x1A\n";
constexpr std::string_view kJpegStart = "\xFF\xD8\xFF";
constexpr std::string_view kBmpStart = "BM";

/// Three bytes a pixel in rows from the top.
Image FromRgb(const std::vector<unsigned char>& bytes, int width, int height) {
    Image image(width, height, Colour{});
    for (std::size_t i = 0; i < image.pixels.size(); ++i)
        image.pixels[i] = MakeColour(bytes[3 * i], bytes[3 * i + 1], bytes[3 * i + 2]);
    return image;
}

std::vector<unsigned char> RgbBuffer(int width, int height) {
    return std::vector<unsigned char>(3 * static_cast<std::size_t>(width) *
                                      static_cast<std::size_t>(height));
}

Image DecodePng(std::string_view bytes, std::string_view fileName) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    const auto fail = [&] {
        const std::string why = png.message;
        png_image_free(&png);
        FailToRead(fileName, why + ".");
    };
    if (png_image_begin_read_from_memory(&png, bytes.data(), bytes.size()) == 0) fail();
    const std::int64_t width = png.width;
    const std::int64_t height = png.height;
    if (const std::string fault = SizeFault(width, height); !fault.empty()) {
        png_image_free(&png);
        FailToRead(fileName, fault);
    }
    png.format = PNG_FORMAT_RGB;
    png_color white{255, 255, 255};
    std::vector<unsigned char> rgb = RgbBuffer(static_cast<int>(width), static_cast<int>(height));
    if (png_image_finish_read(&png, &white, rgb.data(), 0, nullptr) == 0) fail();
    return FromRgb(rgb, static_cast<int>(width), static_cast<int>(height));
}

std::string Reason(tjhandle reader) {
    return std::string(tjGetErrorStr2(reader)) + ".";
}

Image DecodeJpeg(std::string_view bytes, std::string_view fileName) {
    const std::unique_ptr<void, int (*)(tjhandle)> reader(tjInitDecompress(), tjDestroy);
    if (!reader) FailToRead(fileName, "there is no memory for it.");
    const auto* begin = reinterpret_cast<const unsigned char*>(bytes.data());
    int width = 0;
    int height = 0;
    int sampling = 0;
    int colours = 0;
    if (tjDecompressHeader3(reader.get(), begin, bytes.size(), &width, &height, &sampling, &colours) != 0)
        FailToRead(fileName, Reason(reader.get()));
    if (const std::string fault = SizeFault(width, height); !fault.empty()) FailToRead(fileName, fault);
    std::vector<unsigned char> rgb = RgbBuffer(width, height);
    // An image that ends too early is broken, although the reader would fill it up.
    const int flags = TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS;
    if (tjDecompress2(reader.get(), begin, bytes.size(), rgb.data(), width, 0, height, TJPF_RGB, flags) !=
        0)
        FailToRead(fileName, Reason(reader.get()));
    return FromRgb(rgb, width, height);
}

}  // namespace

Image DecodeImage(std::string_view bytes, std::string_view fileName) {
    if (bytes.starts_with(kPngStart)) return DecodePng(bytes, fileName);
    if (bytes.starts_with(kJpegStart)) return DecodeJpeg(bytes, fileName);
    if (bytes.starts_with(kBmpStart)) return DecodeBmp(bytes, fileName);
    FailToRead(fileName, "it is no PNG, JPEG or BMP file.");
}

Image ReadImage(const std::filesystem::path& file) {
    const std::string bytes =
        platform::ReadWholeFile(file, platform::kLargestImageFile, "read the image " + file.string());
    return DecodeImage(bytes, file.string());
}

}  // namespace fabula::pictures
