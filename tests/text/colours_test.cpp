#include "text/colours.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(ColourName, NamesTheSixteenColours) {
    EXPECT_EQ(ColourName(0), "Black");
    EXPECT_EQ(ColourName(1), "Blue");
    EXPECT_EQ(ColourName(2), "Red");
    EXPECT_EQ(ColourName(3), "Magenta");
    EXPECT_EQ(ColourName(4), "Green");
    EXPECT_EQ(ColourName(5), "Cyan");
    EXPECT_EQ(ColourName(6), "Yellow");
    EXPECT_EQ(ColourName(7), "White");
    EXPECT_EQ(ColourName(8), "Bright Black");
    EXPECT_EQ(ColourName(9), "Bright Blue");
    EXPECT_EQ(ColourName(10), "Bright Red");
    EXPECT_EQ(ColourName(11), "Bright Magenta");
    EXPECT_EQ(ColourName(12), "Bright Green");
    EXPECT_EQ(ColourName(13), "Bright Cyan");
    EXPECT_EQ(ColourName(14), "Bright Yellow");
    EXPECT_EQ(ColourName(15), "Bright White");
}

TEST(ColourName, OtherNumbersHaveNoName) {
    EXPECT_EQ(ColourName(-1), "");
    EXPECT_EQ(ColourName(16), "");
}

TEST(ColourRGB, PlainColoursHaveTheirChannelsAt230) {
    EXPECT_EQ(ColourRGB(0), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColourRGB(1), (Rgb{0, 0, 230}));
    EXPECT_EQ(ColourRGB(2), (Rgb{230, 0, 0}));
    EXPECT_EQ(ColourRGB(3), (Rgb{230, 0, 230}));
    EXPECT_EQ(ColourRGB(4), (Rgb{0, 230, 0}));
    EXPECT_EQ(ColourRGB(5), (Rgb{0, 230, 230}));
    EXPECT_EQ(ColourRGB(6), (Rgb{230, 230, 0}));
    EXPECT_EQ(ColourRGB(7), (Rgb{230, 230, 230}));
}

TEST(ColourRGB, BrightColoursHaveThemAt255AndBrightBlackIsGrey) {
    EXPECT_EQ(ColourRGB(8), (Rgb{102, 102, 102}));
    EXPECT_EQ(ColourRGB(9), (Rgb{0, 0, 255}));
    EXPECT_EQ(ColourRGB(10), (Rgb{255, 0, 0}));
    EXPECT_EQ(ColourRGB(11), (Rgb{255, 0, 255}));
    EXPECT_EQ(ColourRGB(12), (Rgb{0, 255, 0}));
    EXPECT_EQ(ColourRGB(13), (Rgb{0, 255, 255}));
    EXPECT_EQ(ColourRGB(14), (Rgb{255, 255, 0}));
    EXPECT_EQ(ColourRGB(15), (Rgb{255, 255, 255}));
}

TEST(ColourRGB, NumbersOutside0To15AreBlack) {
    EXPECT_EQ(ColourRGB(-1), (Rgb{0, 0, 0}));
    EXPECT_EQ(ColourRGB(16), (Rgb{0, 0, 0}));
}

TEST(ColourIndex, FindsTheNumberOfAColour) {
    EXPECT_EQ(ColourIndex({0, 0, 0}, 7), 0);
    EXPECT_EQ(ColourIndex({230, 0, 230}, 0), 3);
    EXPECT_EQ(ColourIndex({255, 255, 255}, 0), 15);
}

TEST(ColourIndex, AnUnknownColourGives0WhenTheFallbackIs1AndElse7) {
    EXPECT_EQ(ColourIndex({1, 2, 3}, 1), 0);
    EXPECT_EQ(ColourIndex({1, 2, 3}, 0), 7);
    EXPECT_EQ(ColourIndex({1, 2, 3}, 2), 7);
}

TEST(ColourIndex, FindsAColourOfTheSessionPaletteLowestNumberFirst) {
    Palette palette{};
    palette[5] = {1, 2, 3};
    palette[9] = {1, 2, 3};
    palette[2] = {255, 255, 255};
    EXPECT_EQ(ColourIndex({1, 2, 3}, 1, &palette), 5);
    EXPECT_EQ(ColourIndex({255, 255, 255}, 1, &palette), 2);
}

}  // namespace
}  // namespace fabula::text
