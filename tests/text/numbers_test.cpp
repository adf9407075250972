#include "text/numbers.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

TEST(HexToValue, ReadsHexadecimalBehindItsSign) {
    EXPECT_EQ(HexToValue("&hFF"), 255);
    EXPECT_EQ(HexToValue("&H1a"), 26);
    EXPECT_EQ(HexToValue(" &h3C "), 60);
}

TEST(HexToValue, ReadsAnythingElseAsDecimal) {
    EXPECT_EQ(HexToValue("60"), 60);
    EXPECT_EQ(HexToValue(" 007"), 7);
    EXPECT_EQ(HexToValue("-5"), -5);
}

TEST(HexToValue, ReadingEndsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(HexToValue("12x"), 12);
    EXPECT_EQ(HexToValue("&h1G"), 1);
    EXPECT_EQ(HexToValue("&h"), 0);
    EXPECT_EQ(HexToValue("&h-1"), 0);
    EXPECT_EQ(HexToValue("x"), 0);
    EXPECT_EQ(HexToValue(""), 0);
}

TEST(HexToValue, ANumberBeyond32BitsGivesTheNearestWithin) {
    EXPECT_EQ(HexToValue("&hFFFFFFFFFFFFFFFFFF"), 2147483647);
    EXPECT_EQ(HexToValue("99999999999"), 2147483647);
    EXPECT_EQ(HexToValue("-99999999999"), -2147483647 - 1);
    EXPECT_EQ(HexToValue("-2147483648"), -2147483647 - 1);
}

TEST(WholeNumber, IsDigitsBehindAnOptionalSignAndNothingElse) {
    EXPECT_EQ(WholeNumber("16"), 16);
    EXPECT_EQ(WholeNumber("+16"), 16);
    EXPECT_EQ(WholeNumber("-16"), -16);
    EXPECT_EQ(WholeNumber("007"), 7);
    EXPECT_EQ(WholeNumber(""), std::nullopt);
    EXPECT_EQ(WholeNumber("-"), std::nullopt);
    EXPECT_EQ(WholeNumber("+-1"), std::nullopt);
    EXPECT_EQ(WholeNumber("x"), std::nullopt);
    EXPECT_EQ(WholeNumber("1x"), std::nullopt);
    EXPECT_EQ(WholeNumber(" 1"), std::nullopt);
    EXPECT_EQ(WholeNumber("1.5"), std::nullopt);
}

TEST(WholeNumber, ANumberBeyond64BitsGivesTheNearestWithin) {
    EXPECT_EQ(WholeNumber("99999999999999999999999"), INT64_MAX);
    EXPECT_EQ(WholeNumber("-99999999999999999999999"), INT64_MIN);
    EXPECT_EQ(WholeNumber("-9223372036854775808"), INT64_MIN);
}

TEST(SmallNumber, IsDigitsBehindAnOptionalMinus) {
    EXPECT_EQ(SmallNumber("0"), 0);
    EXPECT_EQ(SmallNumber("007"), 7);
    EXPECT_EQ(SmallNumber("-16"), -16);
    EXPECT_EQ(SmallNumber("+16"), std::nullopt);
    EXPECT_EQ(SmallNumber(""), std::nullopt);
    EXPECT_EQ(SmallNumber("-"), std::nullopt);
    EXPECT_EQ(SmallNumber("1x"), std::nullopt);
    EXPECT_EQ(SmallNumber(" 1"), std::nullopt);
    EXPECT_EQ(SmallNumber("1 "), std::nullopt);
}

TEST(SmallNumber, BeyondItsBitsIsNone) {
    EXPECT_EQ(SmallNumber("2147483647"), 2147483647);
    EXPECT_EQ(SmallNumber("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(SmallNumber("2147483648"), std::nullopt);
    EXPECT_EQ(SmallNumber("-2147483649"), std::nullopt);
}

TEST(TakeNumber, TakesTheDigitsAtTheHeadAndLeavesTheRest) {
    std::string_view text = "12 (-7";
    EXPECT_EQ(TakeNumber(text), 12);
    EXPECT_EQ(text, " (-7");
    text = "-7.5";
    EXPECT_EQ(TakeNumber(text), -7);
    EXPECT_EQ(text, ".5");
}

TEST(TakeNumber, LeavesATextThatDoesNotBeginWithANumber) {
    for (const std::string_view other : {"", "-", " 1", "+1", "x1", "2147483648"}) {
        std::string_view text = other;
        EXPECT_EQ(TakeNumber(text), std::nullopt) << other;
        EXPECT_EQ(text, other);
    }
}

TEST(TakeLongNumber, TakesWhatIsWithin64Bits) {
    std::string_view text = "-9223372036854775808 5000000000";
    EXPECT_EQ(TakeLongNumber(text), INT64_MIN);
    EXPECT_EQ(text, " 5000000000");
    for (const std::string_view other : {"", "-", " 1", "+1", "9223372036854775808"}) {
        text = other;
        EXPECT_EQ(TakeLongNumber(text), std::nullopt) << other;
        EXPECT_EQ(text, other);
    }
}

TEST(HexNumber, IsHexadecimalDigitsAndNothingElse) {
    EXPECT_EQ(HexNumber("0"), 0U);
    EXPECT_EQ(HexNumber("fF"), 255U);
    EXPECT_EQ(HexNumber("0001C"), 28U);
    for (const char* other : {"", " 1", "1 ", "-1", "+1", "0x1", "1g", "&h1"})
        EXPECT_EQ(HexNumber(other), std::nullopt) << other;
}

TEST(HexNumber, BeyondItsBitsIsNone) {
    EXPECT_EQ(HexNumber("FFFFFFFF"), 4294967295U);
    EXPECT_EQ(HexNumber("0000000000FFFFFFFF"), 4294967295U);
    EXPECT_EQ(HexNumber("100000000"), std::nullopt);
    EXPECT_EQ(HexNumber("10000000000000000"), std::nullopt);
    EXPECT_EQ(HexNumber("99999999999999999999999999"), std::nullopt);
}

TEST(RealNumber, IsDigitsWithAPointAndAnExponent) {
    EXPECT_EQ(RealNumber("0"), 0.0);
    EXPECT_EQ(RealNumber("-2.5"), -2.5);
    EXPECT_EQ(RealNumber(".5"), 0.5);
    EXPECT_EQ(RealNumber("5."), 5.0);
    EXPECT_EQ(RealNumber("1.5e3"), 1500.0);
    for (const char* other : {"", "-", ".", "+1", " 1", "1 ", "1,5", "1e", "0x1p3", "1.5.2"})
        EXPECT_EQ(RealNumber(other), std::nullopt) << other;
}

TEST(RealNumber, BeyondADoubleIsNoneAndInfinityIsWritten) {
    EXPECT_EQ(RealNumber("1e999"), std::nullopt);
    EXPECT_EQ(RealNumber("1e-999"), std::nullopt);
    EXPECT_EQ(RealNumber("-inf"), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(RealNumber("nan").value_or(0)));
}

}  // namespace
}  // namespace fabula::text
