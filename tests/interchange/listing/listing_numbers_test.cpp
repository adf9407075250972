#include "interchange/listing/listing_numbers.h"

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

TEST(OIConvert, NamesTheBits) {
    EXPECT_EQ(OIConvert("00"), "  ");
    EXPECT_EQ(OIConvert("01"), " i");
    EXPECT_EQ(OIConvert("10"), "o ");
    EXPECT_EQ(OIConvert("11"), "oi");
}

TEST(OIConvert, AnythingElseIsEmpty) {
    EXPECT_EQ(OIConvert("2"), "");
}

TEST(ConvRel, WritesASignAndThreeDigits) {
    EXPECT_EQ(ConvRel(12), " 012");
    EXPECT_EQ(ConvRel(-7), "-007");
    EXPECT_EQ(ConvRel(0), " 000");
}

TEST(ReverseFont, MirrorsARow) {
    EXPECT_EQ(ReverseFont(0b1000'0000), 0b0000'0001);
    EXPECT_EQ(ReverseFont(0b1100'1010), 0b0101'0011);
    EXPECT_EQ(ReverseFont(255), 255);
}

TEST(ReverseFont, TwiceGivesTheRowBack) {
    for (int row = 0; row < 256; ++row) {
        EXPECT_EQ(ReverseFont(ReverseFont(static_cast<std::uint8_t>(row))), row);
    }
}

}  // namespace
}  // namespace fabula::interchange
