#include "text/format.h"

#include <cmath>

#include <gtest/gtest.h>

#include "random_text.h"
#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

const platform::FixedClock kClock({2001, 3, 5, 14, 7, 9});

TEST(FormatText, LiteralTokensAndDirectivesFollowOneAnother) {
    EXPECT_EQ(FormatText("%n!|!%a", {16, "Press"}), "16|Press");
    EXPECT_EQ(FormatText("SET !%z4", {3}), "SET 0003");
    EXPECT_EQ(FormatText("%n!|!%n!|!%a!|!%a", {1, 2, "x", ""}), "1|2|x|");
}

TEST(FormatText, AListingLineIsLaidOutInColumns) {
    EXPECT_EQ(FormatText("%s4! !%s3! !%a10! !%a10! !%a", {7, 0, "TAKE", "LAMP", "GET 5"}),
              "   7   0 TAKE       LAMP       GET 5");
}

TEST(FormatText, AFormatWithoutASeparatorIsOneToken) {
    EXPECT_EQ(FormatText("abc", {}), "abc");
}

TEST(FormatText, AnEmptyFormatGivesAnEmptyResult) {
    EXPECT_EQ(FormatText("", {}), "");
}

TEST(FormatText, EmptyTokensAddNothing) {
    EXPECT_EQ(FormatText("!!a!!b!!", {}), "ab");
}

TEST(FormatText, AnUnknownLetterAddsNothingAndTakesNoValue) {
    EXPECT_EQ(FormatText("%x5!%", {}), "");
    EXPECT_EQ(FormatText("%x!%a", {"a"}), "a");
    EXPECT_EQ(FormatText("%é", {}), "");
}

TEST(FormatText, LettersIgnoreCase) {
    EXPECT_EQ(FormatText("%A!%T5!%C3-!%S2!%E", {"a", 7}), "a   --- 7!");
}

TEST(FormatText, LeftAlignedTextIsFilledOrCutAtItsEnd) {
    EXPECT_EQ(FormatText("%a5!|", {"abc"}), "abc  |");
    EXPECT_EQ(FormatText("%a5", {"abcdefg"}), "abcde");
    EXPECT_EQ(FormatText("%a!|", {"abcdefg"}), "abcdefg|");
}

TEST(FormatText, RightAlignedTextIsFilledOrCutAtItsStart) {
    EXPECT_EQ(FormatText("%r5", {"abc"}), "  abc");
    EXPECT_EQ(FormatText("%r5", {"abcdefg"}), "cdefg");
    EXPECT_EQ(FormatText("%r", {"abcdefg"}), "abcdefg");
}

TEST(FormatText, TextWidthsCountCodePoints) {
    EXPECT_EQ(FormatText("%a4!|!%r4", {"né", "né"}), "né  |  né");
    EXPECT_EQ(FormatText("%a2!|!%r2", {"éàü", "éàü"}), "éà|àü");
}

TEST(FormatText, NullIsTheEmptyText) {
    EXPECT_EQ(FormatText("%a3!|!%r!|", {Value{}, Value{}}), "   ||");
}

TEST(FormatText, NumbersMayStandWhereTextIsTaken) {
    EXPECT_EQ(FormatText("%a4!|!%r4", {12, 2.5}), "12  | 2.5");
}

TEST(FormatText, NumbersAreFilledWithBlanksOrZeros) {
    EXPECT_EQ(FormatText("%s4!%z4", {7, 7}), "   70007");
    EXPECT_EQ(FormatText("%z3", {7}), "007");
    EXPECT_EQ(FormatText("%s!,!%z", {7, 7}), "7,7");
}

TEST(FormatText, ZerosComeBeforeTheSign) {
    EXPECT_EQ(FormatText("%z5", {-7}), "000-7");
    EXPECT_EQ(FormatText("%s5", {-7}), "   -7");
}

TEST(FormatText, NumberLongerThanItsWidthBecomesAsterisks) {
    EXPECT_EQ(FormatText("%z3", {1234}), "***");
    EXPECT_EQ(FormatText("%s3", {1234}), "***");
    EXPECT_EQ(FormatText("%s1", {-1}), "*");
}

TEST(FormatText, NumbersUpToTheLimitsOfTheirBitsAreShown) {
    EXPECT_EQ(FormatText("%s!,!%z", {32767, -32768}), "32767,-32768");
    EXPECT_EQ(FormatText("%n!,!%n", {2147483647, -2147483648}), "2147483647,-2147483648");
}

TEST(FormatText, ANumberBeyondItsBitsBecomesAsterisksWhenThereIsAWidth) {
    EXPECT_EQ(FormatText("%s8!,!%z6", {32768, -32769}), "********,******");
    EXPECT_EQ(FormatText("%n4", {2147483648}), "****");
}

TEST(FormatText, ANumberBeyondItsBitsFailsWhenThereIsNoWidth) {
    EXPECT_THROW(FormatText("%s", {32768}), FormatRangeError);
    EXPECT_THROW(FormatText("%z", {-32769}), FormatRangeError);
    EXPECT_THROW(FormatText("%n", {2147483648}), FormatRangeError);
    EXPECT_THROW(FormatText("%n", {1e300}), FormatRangeError);
}

TEST(FormatText, ALongNumberUsesNoWidth) {
    EXPECT_EQ(FormatText("%n9!|", {7}), "7|");
}

TEST(FormatText, TextAndFloatingNumbersAreReadAsNumbers) {
    EXPECT_EQ(FormatText("%n!,!%s4!,!%n", {" 12 ", "-3", 6.0}), "12,  -3,6");
    EXPECT_EQ(FormatText("%n!,!%n", {2.6, -2.6}), "3,-3");
}

TEST(FormatText, HalvesAreRoundedToTheEvenNeighbour) {
    EXPECT_EQ(FormatText("%n!,!%n!,!%n", {2.5, 3.5, -2.5}), "2,4,-2");
}

TEST(FormatText, AValueThatIsNoNumberIsAProgrammingErrorWhereOneIsNeeded) {
    EXPECT_THROW(FormatText("%s", {Value{}}), std::invalid_argument);
    EXPECT_THROW(FormatText("%z3", {Value{}}), std::invalid_argument);
    EXPECT_THROW(FormatText("%n", {Value{}}), std::invalid_argument);
    EXPECT_THROW(FormatText("%n", {"lamp"}), std::invalid_argument);
    EXPECT_THROW(FormatText("%n", {Value{Blob{}}}), std::invalid_argument);
    EXPECT_THROW(FormatText("%n", {std::nan("")}), std::invalid_argument);
}

TEST(FormatText, ADirectiveBeyondTheLastValueIsAProgrammingError) {
    EXPECT_THROW(FormatText("%a!%a", {"only one"}), std::invalid_argument);
    EXPECT_THROW(FormatText("%a*", {5}), std::invalid_argument);
}

TEST(FormatText, AStarTakesTheWidthBeforeTheValue) {
    EXPECT_EQ(FormatText("%a*!|!%s*!|!%c*-!|!%t*!x", {4, "ab", 3, 7, 5, 20}), "ab  |  7|-----|    x");
}

TEST(FormatText, AWidthThatIsNoNumberCountsAsNone) {
    EXPECT_EQ(FormatText("%ax!|!%a4x!|!%a**!|", {"ab", "cd", "ef"}), "ab|cd|ef|");
    EXPECT_EQ(FormatText("%a0!|!%a-4!|!%a99999!|", {"ab", "cd", "ef"}), "ab|cd|ef|");
    EXPECT_EQ(FormatText("%a*!|", {-4, "ab"}), "ab|");
}

TEST(FormatText, TheLargestWidthIs32767) {
    EXPECT_EQ(FormatText("%a32767!|", {"ab"}), "ab" + std::string(32765, ' ') + "|");
    EXPECT_EQ(FormatText("%a32768!|", {"ab"}), "ab|");
}

TEST(FormatText, BlanksAroundAWidthDoNotCount) {
    EXPECT_EQ(FormatText("%a5 !|", {"ab"}), "ab   |");
}

TEST(FormatText, ThePresentMomentComesFromTheClock) {
    EXPECT_EQ(FormatText("%d!|!%i", {}, &kClock), "05-Mar-2001 14:07:09|14:07:09");
    EXPECT_EQ(FormatText("%d11!|!%d22!|!%i10!|", {}, &kClock),
              "05-Mar-2001|05-Mar-2001 14:07:09  |14:07:09  |");
}

TEST(FormatText, AClosingPercentTakesTheMomentFromAValue) {
    EXPECT_EQ(FormatText("%d%!|!%i%", {"1999-12-31 23:59:01", "1999-12-31 03:09:01"}),
              "31-Dec-1999 23:59:01|03:09:01");
    EXPECT_EQ(FormatText("%d22%!|!%d*%!|", {"1999-12-31 23:59:01", 6, "2024-02-29 00:00:00"}),
              "31-Dec-1999 23:59:01  |29-Feb|");
}

TEST(FormatText, ADateThatCannotBeReadIsShownAsItStands) {
    EXPECT_EQ(FormatText("%d%!|!%i10%!|", {"long ago", "1999-13-31 23:59:01"}), "long ago|1999-13-31|");
    EXPECT_EQ(FormatText("%d%!|", {Value{}}), "|");
}

TEST(FormatText, ThePresentMomentWithoutAClockIsAProgrammingError) {
    EXPECT_THROW(FormatText("%d", {}), std::invalid_argument);
    EXPECT_THROW(FormatText("%i8", {}), std::invalid_argument);
}

TEST(FormatText, RepeatsTheLastCharacterOfTheToken) {
    EXPECT_EQ(FormatText("%c5-!|!%c3 !|!%c2é!|!%c11!|!%c3*", {}), "-----|   |éé|1|***");
}

TEST(FormatText, RepeatingWithoutACountOrZeroTimesAddsNothing) {
    EXPECT_EQ(FormatText("%c0-", {}), "");
    EXPECT_EQ(FormatText("%c-!%c!%c*", {}), "");
    EXPECT_EQ(FormatText("%c*-", {-1}), "");
}

TEST(FormatText, TabulatesToAColumnCountedFromOne) {
    EXPECT_EQ(FormatText("%t6!%a", {"text"}), "     text");
    EXPECT_EQ(FormatText("!%a!%t10!%c30-!", {"AB"}), "AB       ------------------------------");
    EXPECT_EQ(FormatText("été!%t6!x", {}), "été  x");
}

TEST(FormatText, ALaterTabulationCountsTheCharactersInFrontOfAnEarlierOneOnce) {
    EXPECT_EQ(FormatText("été!%t6!é!%t10!x", {}), "été  é   x");
}

TEST(FormatText, TabulatingAddsNothingWhereTheColumnIsReachedExactly) {
    EXPECT_EQ(FormatText("abcd!%t5!x", {}), "abcdx");
}

TEST(FormatText, TabulatingBackBeginsANewLine) {
    EXPECT_EQ(FormatText("abcde!%t5!x", {}), "abcde\r\n    x");
    EXPECT_EQ(FormatText("abcdefgh!%t5!x", {}), "abcdefgh\r\n    x");
}

TEST(FormatText, ColumnsZeroAndOneAreTheFirst) {
    EXPECT_EQ(FormatText("%t0!x", {}), "x");
    EXPECT_EQ(FormatText("%t!x", {}), "x");
    EXPECT_EQ(FormatText("%t1!x", {}), "x");
    EXPECT_EQ(FormatText("a!%t1!x", {}), "a\r\nx");
    EXPECT_EQ(FormatText("a!%t0!x", {}), "a\r\nx");
}

TEST(FormatText, TabulatingDeliberatelyMeasuresTheWholeResultAndNotTheLine) {
    EXPECT_EQ(FormatText("abc!%l!de!%t10!x", {}), "abc\r\nde  x");
    EXPECT_EQ(FormatText("abc!%l!de!%t5!x", {}), "abc\r\nde\r\n    x");
}

TEST(FormatText, SpecialCharactersHaveDirectivesOfTheirOwn) {
    EXPECT_EQ(FormatText("%e!%p!%q!%f!%l", {}), "!%\"\f\r\n");
}

TEST(FormatText, AlignedTextIsExactlyAsWideAsItsWidth) {
    platform::SeededRandom random(10);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = RandomText(random, 12, {"a", "é", "€", " ", "\xFF", "xyz"});
        const int width = random.UpTo(20);
        const auto columns = static_cast<std::size_t>(width);
        const std::string left = FormatText("%a*", {width, text});
        const std::string right = FormatText("%r*", {width, text});
        EXPECT_EQ(Length(left), columns);
        EXPECT_EQ(Length(right), columns);
        EXPECT_EQ(left, PadRight(Left(text, columns), columns));
        const std::string end(Right(text, columns));
        EXPECT_EQ(right, Repeated(" ", static_cast<int>(columns - Length(end))) + end);
    }
}

TEST(FormatText, ANumberWithAWidthIsExactlyThatWide) {
    platform::SeededRandom random(11);
    for (int i = 0; i < 2000; ++i) {
        const int width = random.UpTo(8);
        const int number = random.UpTo(200'000) - 100'000;
        EXPECT_EQ(FormatText("%s*!%z*", {width, number, width, number}).size(),
                  static_cast<std::size_t>(2 * width));
    }
}

TEST(FormatText, AMegabyteOfTokensAndOfTextIsFormatted) {
    EXPECT_EQ(FormatText(Repeated("é!%t2!", 150'000), {}).size(), 150'000u * 2 + 149'999 * 3);
    EXPECT_EQ(FormatText("%a5!%r*", {Repeated("é", 500'000), 3, Repeated("é", 500'000)}), "éééééééé");
}

}  // namespace
}  // namespace fabula::text
