#include "pictures/characters/glyph.h"

#include <gtest/gtest.h>

namespace fabula::pictures {
namespace {

TEST(ParseCharVals, ReadsEightNumbersFromTheTopWithTheLeftPixelInBitSeven) {
    const Glyph glyph = ParseCharVals("128 1 0 0 0 0 0 3");
    EXPECT_EQ(glyph, (Glyph{128, 1, 0, 0, 0, 0, 0, 3}));
    EXPECT_TRUE(HasBit(glyph, 0, 0));
    EXPECT_FALSE(HasBit(glyph, 7, 0));
    EXPECT_TRUE(HasBit(glyph, 7, 1));
    EXPECT_TRUE(HasBit(glyph, 6, 7));
}

TEST(ParseCharVals, TakesTooLargeNumbersForFullRowsAndMissingOnesForEmptyRows) {
    EXPECT_EQ(ParseCharVals("300 -5 x 7"), (Glyph{255, 0, 0, 7, 0, 0, 0, 0}));
    EXPECT_EQ(ParseCharVals(""), Glyph{});
    EXPECT_EQ(ParseCharVals("1 2 3 4 5 6 7 8 9"), (Glyph{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(FormatCharVals, PutsOneBlankBetweenTheNumbers) {
    EXPECT_EQ(FormatCharVals({0, 24, 36, 66, 126, 66, 66, 255}), "0 24 36 66 126 66 66 255");
}

TEST(CombineGlyphs, JoinsTheBitsOfEachRow) {
    EXPECT_EQ(CombineGlyphs({128, 0, 255, 15, 0, 0, 0, 0}, {1, 0, 3, 240, 0, 0, 0, 9}),
              (Glyph{129, 0, 255, 255, 0, 0, 0, 9}));
}

TEST(MarloShadePattern, MirrorsEachHalfOfTheByteAndRepeatsIt) {
    EXPECT_EQ(MarloShadePattern(129), (Glyph{17, 136, 17, 136, 17, 136, 17, 136}));
    EXPECT_EQ(MarloShadePattern(0x4C), (Glyph{34, 51, 34, 51, 34, 51, 34, 51}));
    EXPECT_EQ(MarloShadePattern(1), (Glyph{0, 136, 0, 136, 0, 136, 0, 136}));
    EXPECT_EQ(MarloShadePattern(255), (Glyph{255, 255, 255, 255, 255, 255, 255, 255}));
}

}  // namespace
}  // namespace fabula::pictures
