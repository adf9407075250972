#include "pictures/characters/glyph_edits.h"

#include <gtest/gtest.h>

namespace fabula::pictures {
namespace {

/// A flag that looks different however it is turned.
constexpr Glyph kFlag = {0b11110000, 0b11110000, 0b10000000, 0b10000000, 0b10000000, 0, 0, 0b00000001};

TEST(ShiftLeft, TakesInOnTheRightWhatLeavesOnTheLeft) {
    EXPECT_EQ(ShiftLeft(kFlag), (Glyph{0b11100001, 0b11100001, 1, 1, 1, 0, 0, 0b00000010}));
}

TEST(ShiftRight, TakesInOnTheLeftWhatLeavesOnTheRight) {
    EXPECT_EQ(ShiftRight(kFlag),
              (Glyph{0b01111000, 0b01111000, 0b01000000, 0b01000000, 0b01000000, 0, 0, 0b10000000}));
}

TEST(ShiftUp, TakesInAtTheBottomWhatLeavesAtTheTop) {
    EXPECT_EQ(ShiftUp(kFlag),
              (Glyph{0b11110000, 0b10000000, 0b10000000, 0b10000000, 0, 0, 0b00000001, 0b11110000}));
}

TEST(ShiftDown, TakesInAtTheTopWhatLeavesAtTheBottom) {
    EXPECT_EQ(ShiftDown(kFlag),
              (Glyph{0b00000001, 0b11110000, 0b11110000, 0b10000000, 0b10000000, 0b10000000, 0, 0}));
}

TEST(Rotate, TurnsByAQuarterClockwise) {
    EXPECT_EQ(Rotate(kFlag), (Glyph{0b00011111, 0b00000011, 0b00000011, 0b00000011, 0, 0, 0, 0b10000000}));
}

TEST(Rotate, FourTimesGivesTheCharacterBack) {
    EXPECT_EQ(Rotate(Rotate(Rotate(Rotate(kFlag)))), kFlag);
}

TEST(MirrorSideways, ExchangesLeftAndRight) {
    EXPECT_EQ(MirrorSideways(kFlag), (Glyph{0b00001111, 0b00001111, 1, 1, 1, 0, 0, 0b10000000}));
}

TEST(MirrorUpsideDown, ExchangesTopAndBottom) {
    EXPECT_EQ(MirrorUpsideDown(kFlag),
              (Glyph{0b00000001, 0, 0, 0b10000000, 0b10000000, 0b10000000, 0b11110000, 0b11110000}));
}

TEST(Invert, SetsWhatWasClear) {
    EXPECT_EQ(Invert(kFlag),
              (Glyph{0b00001111, 0b00001111, 0b01111111, 0b01111111, 0b01111111, 255, 255, 0b11111110}));
}

TEST(WithPixel, SetsAndClearsOnePixel) {
    EXPECT_EQ(WithPixel(Glyph{}, 0, 0, true), (Glyph{128}));
    EXPECT_EQ(WithPixel(Glyph{}, 7, 1, true), (Glyph{0, 1}));
    EXPECT_EQ(WithPixel(Glyph{255}, 1, 0, false), (Glyph{0b10111111}));
}

}  // namespace
}  // namespace fabula::pictures
