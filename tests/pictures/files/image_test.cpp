#include "pictures/files/image.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>
#include <png.h>

#include "platform/error.h"
#include "support/temp_folder.h"

namespace fabula::pictures {
namespace {

constexpr Colour kRedCell = MakeColour(230, 0, 0);
constexpr Colour kBlueCell = MakeColour(0, 0, 230);
constexpr Colour kOdd = MakeColour(1, 2, 3);

/// Three pixels wide, so that a row of a bitmap has three bytes of filling.
Image ScaledImage() {
    Image image(3, 2, kRedCell);
    image.At(0, 0) = kBlueCell;
    image.At(2, 1) = kOdd;
    return image;
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(ImageOf, HasThePixelsOfThePlaneFromTheTopLeft) {
    Plane plane(kRedCell);
    plane.Plot(2, 1, kBlueCell);
    const Image image = ImageOf(plane);
    EXPECT_EQ(image.width, 256);
    EXPECT_EQ(image.height, 176);
    EXPECT_EQ(image.At(2, 1), kBlueCell);
    EXPECT_EQ(image.At(1, 2), kRedCell);
}

TEST(ImageOf, MakesSquaresOfPixelsWhenScaled) {
    Plane plane(kRedCell);
    plane.Plot(2, 1, kBlueCell);
    const Image image = ImageOf(plane, 3);
    EXPECT_EQ(image.width, 768);
    EXPECT_EQ(image.height, 528);
    EXPECT_EQ(image.At(6, 3), kBlueCell);
    EXPECT_EQ(image.At(8, 5), kBlueCell);
    EXPECT_EQ(image.At(9, 5), kRedCell);
    EXPECT_EQ(image.At(8, 6), kRedCell);
}

TEST(EncodeBmp, WritesHeadersAndThenTheRowsFromTheBottomInBlueGreenRed) {
    const std::string expected(
        "BM"
        "\x4E\0\0\0"  // 78 bytes in all
        "\0\0\0\0"
        "\x36\0\0\0"  // pixels from byte 54
        "\x28\0\0\0"  // 40 bytes of picture header
        "\x03\0\0\0"
        "\x02\0\0\0"
        "\x01\0\x18\0"  // one plane of 24 bits
        "\0\0\0\0"
        "\x18\0\0\0"  // 24 bytes of pixels
        "\x13\x0B\0\0"
        "\x13\x0B\0\0"
        "\0\0\0\0"
        "\0\0\0\0"
        "\0\0\xE6\0\0\xE6\x03\x02\x01\0\0\0"
        "\xE6\0\0\0\0\xE6\0\0\xE6\0\0\0",
        78);
    EXPECT_EQ(EncodeBmp(ScaledImage()), expected);
}

TEST(EncodeBmp, OfAPictureIs256By176With24Bits) {
    const std::string bytes = EncodeBmp(ImageOf(Plane(kRedCell)));
    EXPECT_EQ(bytes.size(), 54U + 256U * 176U * 3U);
    EXPECT_EQ(bytes.substr(18, 8), std::string("\0\x01\0\0\xB0\0\0\0", 8));
    EXPECT_EQ(bytes.substr(28, 2), std::string("\x18\0", 2));
}

TEST(EncodePng, CanBeReadBackPixelForPixel) {
    const std::string bytes = EncodePng(ScaledImage());
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    ASSERT_NE(png_image_begin_read_from_memory(&png, bytes.data(), bytes.size()), 0);
    EXPECT_EQ(png.width, 3U);
    EXPECT_EQ(png.height, 2U);
    png.format = PNG_FORMAT_RGB;
    std::string pixels(PNG_IMAGE_SIZE(png), '\0');
    ASSERT_NE(png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr), 0);
    EXPECT_EQ(pixels, std::string("\0\0\xE6\xE6\0\0\xE6\0\0\xE6\0\0\xE6\0\0\x01\x02\x03", 18));
}

TEST(WriteImage, ChoosesTheFormByTheExtensionInAnyCase) {
    const test::TempFolder folder;
    WriteImage(folder / "a.bmp", ScaledImage());
    WriteImage(folder / "b.BMP", ScaledImage());
    WriteImage(folder / "c.png", ScaledImage());
    EXPECT_EQ(BytesOf(folder / "a.bmp"), EncodeBmp(ScaledImage()));
    EXPECT_EQ(BytesOf(folder / "b.BMP"), EncodeBmp(ScaledImage()));
    EXPECT_EQ(BytesOf(folder / "c.png"), EncodePng(ScaledImage()));
}

TEST(WriteImage, ReplacesAFileAndLeavesNothingElse) {
    const test::TempFolder folder;
    std::ofstream(folder / "a.bmp") << "old";
    WriteImage(folder / "a.bmp", ScaledImage());
    EXPECT_EQ(BytesOf(folder / "a.bmp"), EncodeBmp(ScaledImage()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(WriteImage, RefusesOtherExtensions) {
    const test::TempFolder folder;
    EXPECT_THROW(WriteImage(folder / "a.gif", ScaledImage()), Error);
    EXPECT_FALSE(std::filesystem::exists(folder / "a.gif"));
}

TEST(WriteImage, FailsInAFolderThatDoesNotExist) {
    const test::TempFolder folder;
    EXPECT_THROW(WriteImage(folder / "nowhere/a.bmp", ScaledImage()), Error);
}

}  // namespace
}  // namespace fabula::pictures
