#include "pictures/cell_image.h"

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "test_book.h"

namespace fabula::pictures {
namespace {

/// Smooth colours from side to side and from top to bottom.
Image Slopes(int width, int height) {
    Image image(width, height, Colour{});
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.At(x, y) = MakeColour(static_cast<std::uint8_t>(255 * x / width),
                                        static_cast<std::uint8_t>(255 * y / height),
                                        static_cast<std::uint8_t>(255 - 255 * x / width));
    }
    return image;
}

/// Each cell has two random colours of one brightness, mixed at random: the worst that there is to draw.
CellImage Noise(unsigned seed) {
    std::mt19937 random(seed);
    const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    CellImage image;
    for (int cell = 0; cell < 32 * 22; ++cell) {
        const int bright = 8 * upTo(1);
        const int pair[2] = {bright + upTo(7), bright + upTo(7)};
        for (int i = 0; i < 64; ++i)
            image.At(cell % 32 * 8 + i % 8, cell / 32 * 8 + i / 8) =
                static_cast<std::uint8_t>(pair[upTo(1)]);
    }
    return image;
}

void ExpectTwoColoursOfOneBrightnessInEachCell(const CellImage& image) {
    for (int cell = 0; cell < 32 * 22; ++cell) {
        std::set<int> numbers;
        for (int i = 0; i < 64; ++i)
            numbers.insert(image.At(cell % 32 * 8 + i % 8, cell / 32 * 8 + i / 8));
        ASSERT_LE(numbers.size(), 2U) << "in cell " << cell;
        ASSERT_EQ(*numbers.begin() / 8, *numbers.rbegin() / 8) << "in cell " << cell;
    }
}

/// Checks the drawstring, draws it and compares every pixel.
void ExpectDrawnAsItIs(const CellImage& image, int paper) {
    const PictureBook book = TestBook();
    const std::string drawstring = DrawstringOf(image, paper);
    ASSERT_EQ(ValidateDrawString(book, drawstring, PictureKind::Subroutine).fault, "");
    Picture picture;
    picture.paper = paper;
    Drawing drawing(book);
    drawing.CommDraw(picture, drawstring);
    EXPECT_TRUE(ImageOf(drawing.Planes().colour).pixels == image.ToImage().pixels);
}

TEST(FitToCells, APictureInTheColoursOfItsCellsStaysAsItIs) {
    CellImage image;
    for (int line = 0; line < kCanvasHeight; ++line) {
        for (int x = 0; x < kCanvasWidth; ++x)
            image.At(x, line) = static_cast<std::uint8_t>((x + line) % 3 == 0 ? 8 + x / 8 % 8 : 15);
    }
    for (const Dithering dithering : {Dithering::Off, Dithering::On})
        EXPECT_TRUE(FitToCells(image.ToImage(), dithering).numbers == image.numbers);
}

TEST(FitToCells, GivesEachCellTwoColoursOfOneBrightness) {
    for (const Dithering dithering : {Dithering::Off, Dithering::On}) {
        ExpectTwoColoursOfOneBrightnessInEachCell(FitToCells(Slopes(300, 200), dithering));
        ExpectTwoColoursOfOneBrightnessInEachCell(FitToCells(Slopes(31, 400), dithering));
        ExpectTwoColoursOfOneBrightnessInEachCell(FitToCells(Slopes(1, 1), dithering));
    }
}

TEST(FitToCells, CutsOffEvenlyWhatStandsOut) {
    // Blue, red and blue in three parts, of which the picture shows the middle one.
    Image image(3 * 256, 176, IndexToColour(1));
    for (int y = 0; y < 176; ++y)
        for (int x = 256; x < 512; ++x)
            image.At(x, y) = IndexToColour(2);
    const CellImage fitted = FitToCells(image, Dithering::Off);
    EXPECT_TRUE(std::ranges::all_of(fitted.numbers, [](int number) { return number == 2; }));
}

TEST(FitToCells, ShowsAColourThatThePaletteLacksAsAMixtureOnlyWithDithering) {
    const Image grey(256, 176, MakeColour(115, 115, 115));
    const CellImage plain = FitToCells(grey, Dithering::Off);
    EXPECT_TRUE(std::ranges::all_of(plain.numbers, [&](int number) { return number == plain.numbers[0]; }));
    const CellImage mixed = FitToCells(Image(256, 176, MakeColour(115, 0, 0)), Dithering::On);
    const auto red = std::ranges::count(mixed.numbers, 2);
    EXPECT_GT(red, 256 * 176 * 4 / 10);
    EXPECT_LT(red, 256 * 176 * 6 / 10);
}

TEST(DrawstringOf, APlainPictureInTheColourOfThePaperIsEnd) {
    CellImage image;
    image.numbers.fill(6);
    EXPECT_EQ(DrawstringOf(image, 6), "END");
    EXPECT_EQ(DrawstringOf(image, 7), "PAPER 6 BLOCK 21 31 0 0 END");
}

TEST(DrawstringOf, DrawsPlainCellsAsBlocksAndTheRestAsRuns) {
    CellImage image;
    image.numbers.fill(7);
    for (int line = 8; line < 24; ++line)
        for (int x = 16; x < 40; ++x)
            image.At(x, line) = 1;
    image.At(20, 100) = 2;
    for (int x = 30; x < 40; ++x)
        image.At(x, 101) = 2;
    EXPECT_EQ(DrawstringOf(image, 7),
              "PAPER 1 BLOCK 1 2 2 1 INK 2 PLOT 0 20 75 PLOT 0 30 74 LINE 0 9 0 END");
}

TEST(DrawstringOf, BrightColoursAreDrawnInInkSincePaperIsNeverBright) {
    CellImage image;
    image.numbers.fill(7);
    for (int x = 0; x < 8; ++x)
        image.At(x, 0) = 15;
    for (int line = 1; line < 8; ++line)
        for (int x = 0; x < 8; ++x)
            image.At(x, line) = 12;
    const std::string drawstring = DrawstringOf(image, 7);
    EXPECT_TRUE(drawstring.starts_with("INK 4 BRIGHT 1 PLOT 0 0 174 LINE 0 7 0 ")) << drawstring;
    EXPECT_TRUE(drawstring.ends_with("INK 7 BRIGHT 1 PLOT 0 0 175 LINE 0 7 0 END")) << drawstring;
    ExpectDrawnAsItIs(image, 7);
}

TEST(DrawstringOf, TheDrawnResultIsTheImagePixelByPixel) {
    for (const Dithering dithering : {Dithering::Off, Dithering::On}) {
        ExpectDrawnAsItIs(FitToCells(Slopes(640, 480), dithering), 0);
        ExpectDrawnAsItIs(FitToCells(Slopes(40, 30), dithering), 9);
    }
}

TEST(DrawstringOf, TheWorstNoiseIsDrawnWithinTheMostCommands) {
    for (unsigned seed = 1; seed <= 3; ++seed)
        ExpectDrawnAsItIs(Noise(seed), static_cast<int>(seed));
}

TEST(DrawstringOf, CheckersOfTwoBrightColoursAreDrawnWithinTheMostCommands) {
    CellImage image;
    for (int line = 0; line < kCanvasHeight; ++line)
        for (int x = 0; x < kCanvasWidth; ++x)
            image.At(x, line) = static_cast<std::uint8_t>((x + line) % 2 == 0 ? 10 : 13);
    ExpectDrawnAsItIs(image, 0);
}

}  // namespace
}  // namespace fabula::pictures
