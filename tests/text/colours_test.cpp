#include "text/colours.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(ColorName, NamesTheSixteenColours) {
    EXPECT_EQ(ColorName(0), "Black");
    EXPECT_EQ(ColorName(1), "Blue");
    EXPECT_EQ(ColorName(2), "Red");
    EXPECT_EQ(ColorName(3), "Magenta");
    EXPECT_EQ(ColorName(4), "Green");
    EXPECT_EQ(ColorName(5), "Cyan");
    EXPECT_EQ(ColorName(6), "Yellow");
    EXPECT_EQ(ColorName(7), "White");
    EXPECT_EQ(ColorName(8), "Bright Black");
    EXPECT_EQ(ColorName(9), "Bright Blue");
    EXPECT_EQ(ColorName(10), "Bright Red");
    EXPECT_EQ(ColorName(11), "Bright Magenta");
    EXPECT_EQ(ColorName(12), "Bright Green");
    EXPECT_EQ(ColorName(13), "Bright Cyan");
    EXPECT_EQ(ColorName(14), "Bright Yellow");
    EXPECT_EQ(ColorName(15), "Bright White");
}

TEST(ColorName, OtherNumbersHaveNoName) {
    EXPECT_EQ(ColorName(-1), "");
    EXPECT_EQ(ColorName(16), "");
}

TEST(ColorRGB, PlainColoursHaveTheirChannelsAt230) {
    EXPECT_EQ(ColorRGB(0), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColorRGB(1), (Rgb{0, 0, 230}));
    EXPECT_EQ(ColorRGB(2), (Rgb{230, 0, 0}));
    EXPECT_EQ(ColorRGB(3), (Rgb{230, 0, 230}));
    EXPECT_EQ(ColorRGB(4), (Rgb{0, 230, 0}));
    EXPECT_EQ(ColorRGB(5), (Rgb{0, 230, 230}));
    EXPECT_EQ(ColorRGB(6), (Rgb{230, 230, 0}));
    EXPECT_EQ(ColorRGB(7), (Rgb{230, 230, 230}));
}

TEST(ColorRGB, BrightColoursHaveThemAt255AndBrightBlackIsGrey) {
    EXPECT_EQ(ColorRGB(8), (Rgb{102, 102, 102}));
    EXPECT_EQ(ColorRGB(9), (Rgb{0, 0, 255}));
    EXPECT_EQ(ColorRGB(10), (Rgb{255, 0, 0}));
    EXPECT_EQ(ColorRGB(11), (Rgb{255, 0, 255}));
    EXPECT_EQ(ColorRGB(12), (Rgb{0, 255, 0}));
    EXPECT_EQ(ColorRGB(13), (Rgb{0, 255, 255}));
    EXPECT_EQ(ColorRGB(14), (Rgb{255, 255, 0}));
    EXPECT_EQ(ColorRGB(15), (Rgb{255, 255, 255}));
}

TEST(ColorRGB, NumbersOutside0To15AreBlack) {
    EXPECT_EQ(ColorRGB(-1), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColorRGB(16), (Rgb{0, 0, 0}));
}

TEST(ColorIndex, FindsTheNumberOfAColour) {
    EXPECT_EQ(ColorIndex({0, 0, 0}, 7), 0);
    EXPECT_EQ(ColorIndex({230, 0, 230}, 0), 3);
    EXPECT_EQ(ColorIndex({255, 255, 255}, 0), 15);
}

TEST(ColorIndex, AnUnknownColourGives0WhenTheFallbackIs1AndElse7) {
    EXPECT_EQ(ColorIndex({1, 2, 3}, 1), 0);
    EXPECT_EQ(ColorIndex({1, 2, 3}, 0), 7);
    EXPECT_EQ(ColorIndex({1, 2, 3}, 2), 7);
}

TEST(ColorIndex, FindsAColourOfTheSessionPaletteLowestNumberFirst) {
    Palette palette{};
    palette[5] = {1, 2, 3};
    palette[9] = {1, 2, 3};
    palette[2] = {255, 255, 255};
    EXPECT_EQ(ColorIndex({1, 2, 3}, 1, &palette), 5);
    EXPECT_EQ(ColorIndex({255, 255, 255}, 1, &palette), 2);
}

}  // namespace
}  // namespace fabula::text
