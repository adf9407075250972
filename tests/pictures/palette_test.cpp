#include "pictures/palette.h"

#include <gtest/gtest.h>

namespace fabula::pictures {
namespace {

TEST(IndexToColour, DarkColoursHaveChannelsOf230AndBrightOnesOf255) {
    EXPECT_EQ(IndexToColour(0), MakeColour(0, 0, 0));
    EXPECT_EQ(IndexToColour(1), MakeColour(0, 0, 230));
    EXPECT_EQ(IndexToColour(6), MakeColour(230, 230, 0));
    EXPECT_EQ(IndexToColour(8), MakeColour(102, 102, 102));
    EXPECT_EQ(IndexToColour(10), MakeColour(255, 0, 0));
    EXPECT_EQ(IndexToColour(15), MakeColour(255, 255, 255));
}

TEST(IndexToColour, NumbersOutsideThePaletteAreBlack) {
    EXPECT_EQ(IndexToColour(-1), MakeColour(0, 0, 0));
    EXPECT_EQ(IndexToColour(16), MakeColour(0, 0, 0));
}

TEST(ColourToIndex, GivesTheNumberOfAPaletteColour) {
    EXPECT_EQ(ColourToIndex(MakeColour(0, 0, 0)), 0);
    EXPECT_EQ(ColourToIndex(MakeColour(230, 0, 230)), 3);
    EXPECT_EQ(ColourToIndex(MakeColour(102, 102, 102)), 8);
    EXPECT_EQ(ColourToIndex(MakeColour(255, 255, 0)), 14);
}

TEST(ColourToIndex, AColourOfNoPaletteCountsAsSeven) {
    EXPECT_EQ(ColourToIndex(MakeColour(25, 230, 230)), 7);
}

TEST(Colour, KeepsItsChannels) {
    const Colour colour = MakeColour(1, 2, 3);
    EXPECT_EQ(Red(colour), 1);
    EXPECT_EQ(Green(colour), 2);
    EXPECT_EQ(Blue(colour), 3);
}

}  // namespace
}  // namespace fabula::pictures
