#include "pictures/files/image_reader.h"

#include <gtest/gtest.h>
#include <png.h>
#include <turbojpeg.h>

#include "pictures/files/image.h"
#include "platform/error.h"
#include "store/file/file_copy.h"
#include "support/temp_folder.h"

namespace fabula::pictures {
namespace {

constexpr Colour kRedPoint = MakeColour(230, 0, 0);
constexpr Colour kBluePoint = MakeColour(0, 0, 230);

/// Three pixels wide, so that a row of a bitmap has filling.
Image SmallImage() {
    Image image(3, 2, kRedPoint);
    image.At(0, 0) = kBluePoint;
    image.At(2, 1) = MakeColour(1, 2, 3);
    return image;
}

std::string JpegOf(int width, int height, unsigned char grey) {
    const std::vector<unsigned char> pixels(static_cast<std::size_t>(width * height) * 3, grey);
    tjhandle handle = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    EXPECT_EQ(
        tjCompress2(handle, pixels.data(), width, 0, height, TJPF_RGB, &bytes, &size, TJSAMP_444, 95, 0),
        0);
    const std::string text(reinterpret_cast<char*>(bytes), size);
    tjFree(bytes);
    tjDestroy(handle);
    return text;
}

/// Red, blue, red above blue, red, red.
std::string BitmapOfOneBit() {
    return {
        "BM\x46\0\0\0\0\0\0\0\x3E\0\0\0"
        "\x28\0\0\0\x03\0\0\0\xFE\xFF\xFF\xFF\x01\0\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "\0\0\xE6\0\xE6\0\0\0"  // red, blue
        "\x40\0\0\0"            // red, blue, red
        "\x80\0\0\0",
        70};
}

/// A black pixel that is not seen at all.
std::string TransparentPng() {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = 1;
    png.height = 1;
    png.format = PNG_FORMAT_RGBA;
    const unsigned char pixel[4] = {};
    std::string bytes(PNG_IMAGE_PNG_SIZE_MAX(png), '\0');
    png_alloc_size_t size = bytes.size();
    EXPECT_NE(png_image_write_to_memory(&png, bytes.data(), &size, 0, pixel, 0, nullptr), 0);
    bytes.resize(size);
    return bytes;
}

std::string ReadingFault(const std::string& bytes) {
    try {
        DecodeImage(bytes, "x");
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

TEST(DecodeImage, ReadsWhatEncodeBmpAndEncodePngWrite) {
    for (const std::string& bytes : {EncodeBmp(SmallImage()), EncodePng(SmallImage())}) {
        const Image image = DecodeImage(bytes, "x");
        EXPECT_EQ(image.width, 3);
        EXPECT_EQ(image.height, 2);
        EXPECT_EQ(image.pixels, SmallImage().pixels);
    }
}

TEST(DecodeImage, ReadsAJpeg) {
    const Image image = DecodeImage(JpegOf(20, 10, 120), "x");
    EXPECT_EQ(image.width, 20);
    EXPECT_EQ(image.height, 10);
    EXPECT_NEAR(Red(image.At(5, 5)), 120, 2);
}

TEST(DecodeImage, ReadsABitmapOfOneBitWithItsColoursFromTheTop) {
    const Image image = DecodeImage(BitmapOfOneBit(), "x");
    EXPECT_EQ(image.pixels,
              (std::vector<Colour>{kRedPoint, kBluePoint, kRedPoint, kBluePoint, kRedPoint, kRedPoint}));
}

TEST(DecodeImage, ColourThatAShortPaletteLacksIsBlack) {
    std::string bytes = BitmapOfOneBit();
    bytes[46] = 1;
    const Image image = DecodeImage(bytes, "x");
    EXPECT_EQ(image.At(0, 0), kRedPoint);
    EXPECT_EQ(image.At(1, 0), MakeColour(0, 0, 0));
}

TEST(DecodeImage, PaletteThatClaimsMoreColoursThanThereCanBeIsReadAsFarAsItCounts) {
    std::string bytes = BitmapOfOneBit();
    bytes[46] = 100;
    EXPECT_EQ(DecodeImage(bytes, "x").pixels, DecodeImage(BitmapOfOneBit(), "x").pixels);
}

TEST(DecodeImage, WhatIsTransparentBecomesWhite) {
    const std::string bytes = TransparentPng();
    EXPECT_EQ(DecodeImage(bytes, "x").At(0, 0), MakeColour(255, 255, 255));
}

TEST(DecodeImage, RefusesWhatIsNoImage) {
    EXPECT_EQ(ReadingFault("GIF89a"), "Could not read the image x: it is no PNG, JPEG or BMP file.");
    EXPECT_EQ(ReadingFault(""), "Could not read the image x: it is no PNG, JPEG or BMP file.");
}

TEST(DecodeImage, RefusesImagesThatEndTooEarly) {
    const std::string bmp = EncodeBmp(SmallImage());
    EXPECT_EQ(ReadingFault(bmp.substr(0, bmp.size() - 1)),
              "Could not read the image x: it ends too early.");
    EXPECT_EQ(ReadingFault(bmp.substr(0, 20)), "Could not read the image x: it ends too early.");
    const std::string png = EncodePng(Image(50, 50, kRedPoint));
    EXPECT_NE(ReadingFault(png.substr(0, png.size() / 2)), "");
    const std::string jpeg = JpegOf(64, 64, 9);
    EXPECT_NE(ReadingFault(jpeg.substr(0, jpeg.size() / 2)), "");
}

TEST(DecodeImage, RefusesABitmapThatClaimsMorePixelsThanAreRead) {
    std::string bytes = EncodeBmp(SmallImage());
    bytes[18] = '\xFF';
    bytes[19] = '\xFF';
    EXPECT_EQ(ReadingFault(bytes), "Could not read the image x: it has too many pixels.");
    bytes[21] = '\x80';
    EXPECT_EQ(ReadingFault(bytes), "Could not read the image x: it has no pixels.");
}

TEST(DecodeImage, RefusesABitmapThatIsCompressed) {
    std::string bytes = EncodeBmp(SmallImage());
    bytes[30] = 1;
    EXPECT_EQ(ReadingFault(bytes),
              "Could not read the image x: it is compressed, or of a kind that is not read.");
}

TEST(DecodeImage, RefusesABitmapWithMasksButOfThirtyTwoBits) {
    std::string bytes = EncodeBmp(SmallImage());
    bytes[30] = 3;
    EXPECT_EQ(ReadingFault(bytes),
              "Could not read the image x: it is compressed, or of a kind that is not read.");
}

TEST(DecodeImage, RefusesAJpegThatClaimsMorePixelsThanAreRead) {
    std::string bytes = JpegOf(16, 16, 9);
    const std::size_t frame = bytes.find("\xFF\xC0");
    ASSERT_NE(frame, std::string::npos);
    bytes[frame + 5] = '\x7F';  // of the height
    EXPECT_EQ(ReadingFault(bytes), "Could not read the image x: it has too many pixels.");
}

TEST(ReadImage, NamesTheFileThatIsMissing) {
    try {
        ReadImage("/nowhere/at.png");
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "Could not read the image /nowhere/at.png: there is no such file.");
    }
}

TEST(ReadImage, ReadsAFile) {
    const test::TempFolder folder;
    store::WriteFile(folder / "small.bmp", EncodeBmp(SmallImage()));
    EXPECT_EQ(ReadImage(folder / "small.bmp").pixels, SmallImage().pixels);
}

}  // namespace
}  // namespace fabula::pictures
