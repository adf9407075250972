#include "text/wrap.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "random_text.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::text {
namespace {

TEST(WrapText, AShortTextIsOneLine) {
    EXPECT_EQ(WrapText("a lamp", 20), "a lamp\r\n");
    EXPECT_EQ(WrapText("", 20), "\r\n");
}

TEST(WrapText, BlanksAtTheEndsOfTheTextAreDropped) {
    EXPECT_EQ(WrapText("  a lamp ", 20), "a lamp\r\n");
}

TEST(WrapText, ALineBreaksBehindABlankAndKeepsIt) {
    EXPECT_EQ(WrapText("one two three four", 9), "one two \r\nthree four\r\n");
}

TEST(WrapText, TheBlankAtTheBreakDoesNotCountIntoTheWidth) {
    EXPECT_EQ(WrapText("one two three", 7), "one two \r\nthree\r\n");
    EXPECT_EQ(WrapText("one two three", 6), "one \r\ntwo \r\nthree\r\n");
}

TEST(WrapText, ACarriageReturnEndsALine) {
    EXPECT_EQ(WrapText("one\rtwo", 20), "one\r\ntwo\r\n");
    EXPECT_EQ(WrapText("one two\rthree", 20), "one two\r\nthree\r\n");
    EXPECT_EQ(WrapText("one\r\rtwo", 20), "one\r\n\r\ntwo\r\n");
}

TEST(WrapText, ALineFeedBehindACarriageReturnBelongsToIt) {
    EXPECT_EQ(WrapText("one\r\ntwo", 20), "one\r\ntwo\r\n");
}

TEST(WrapText, ATooLongWordIsCutFromThePendingPartAndTheTextTogether) {
    EXPECT_EQ(WrapText("go abcdefghijklmnopq x", 6), "go abcd\r\nefghijk\r\nlmnopq \r\nx\r\n");
}

TEST(WrapText, TheLastWordIsNeverCut) {
    EXPECT_EQ(WrapText("a abcdefghijkl", 4), "a \r\nabcdefghijkl\r\n");
    EXPECT_EQ(WrapText("abcdefghijkl", 4), "abcdefghijkl\r\n");
}

TEST(WrapText, WidthCountsCodePoints) {
    EXPECT_EQ(WrapText("été été été", 7), "été été \r\nété\r\n");
}

TEST(WrapText, LinesAfterABreakAreIndented) {
    EXPECT_EQ(WrapText("one two three four", 9, 2), "one two \r\n  three \r\n  four\r\n");
}

TEST(WrapText, LinesAfterACarriageReturnAreNotIndented) {
    EXPECT_EQ(WrapText("one two six\rfour and five", 9, 2), "one two \r\n  six\r\nfour and \r\n  five\r\n");
}

TEST(WrapText, AWordReachesToTheNextBlankEvenAcrossACarriageReturn) {
    EXPECT_EQ(WrapText("one two three\rfour and five", 9), "one two th\r\nree\r\nfour and \r\nfive\r\n");
}

TEST(WrapText, ACarriageReturnInTheLastWordStaysWhenItDoesNotFitTheLine) {
    EXPECT_EQ(WrapText("one two three\rfour", 9), "one two \r\nthree\rfour\r\n");
}

TEST(WrapText, AWordThatFitsOnlyWithoutTheIndentIsCut) {
    EXPECT_EQ(WrapText("ab abcdef x", 6, 4), "ab \r\n    abc\r\n    def\r\n     x\r\n");
}

TEST(WrapText, AnIndentThatDoesNotFitTheWidthIsAProgrammingError) {
    EXPECT_THROW(WrapText("a", 4, 4), std::invalid_argument);
    EXPECT_THROW(WrapText("a", 4, -1), std::invalid_argument);
    EXPECT_THROW(WrapText("a", 0), std::invalid_argument);
}

TEST(WrapText, LosesNothingButTheCarriageReturns) {
    platform::SeededRandom random(8);
    for (int i = 0; i < 3000; ++i) {
        const std::string text =
            RandomText(random, 40, {"a", "bc", "def", "é", "ghijklmnop", " ", " ", " ", "\r"});
        const std::string wrapped = WrapText(text, random.UpTo(12));
        EXPECT_EQ(ReplaceAll(ReplaceAll(wrapped, "\r\n", ""), "\r", ""),
                  ReplaceAll(std::string(TrimBlanks(text)), "\r", ""));
    }
}

TEST(WrapText, NoLineButOneThatEndsInTheLastWordIsLongerThanTheWidthAndItsBlank) {
    platform::SeededRandom random(9);
    for (int i = 0; i < 3000; ++i) {
        const std::string text =
            RandomText(random, 40, {"a", "bc", "é", "ghijklmnop", " ", " ", " "}) + " x";
        const int width = random.UpTo(12);
        const std::string wrapped = WrapText(text, width);
        for (const std::string_view line : Split(wrapped, "\r\n"))
            EXPECT_LE(Length(line), static_cast<std::size_t>(width) + 1) << text;
    }
}

TEST(WrapText, AMegabyteIsWrapped) {
    EXPECT_EQ(WrapText(Repeated("word ", 200'000), 9),
              Repeated("word word \r\n", 99'999) + "word word\r\n");
    EXPECT_EQ(WrapText(Repeated("é", 500'000), 20), Repeated("é", 500'000) + "\r\n");
    EXPECT_EQ(WrapText(Repeated("x", 1'000'000) + " y", 999, 3).size(), 1'005'019u);
}

}  // namespace
}  // namespace fabula::text
