#include "listings/record.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace fabula::listings {
namespace {

std::vector<std::string> TextsOf(Record& record) {
    std::vector<std::string> texts;
    for (const Line& line : record.Take())
        texts.push_back(line.text);
    return texts;
}

using Texts = std::vector<std::string>;

TEST(WrappedText, BreaksAtTheWidth) {
    EXPECT_EQ(WrappedText("one two three", 7), (Texts{"one two", "three"}));
}

TEST(WrappedText, StoredLineEndEndsALine) {
    EXPECT_EQ(WrappedText("one\u008Ctwo\u008C\u008Cthree", 40), (Texts{"one", "two", "", "three"}));
}

TEST(WrappedText, WordThatFitsIntoNoLineIsCutAndNothingIsLost) {
    EXPECT_EQ(WrappedText("abcdefghij", 4), (Texts{"abcd", "efgh", "ij"}));
}

TEST(WrappedText, EmptyTextIsOneLine) {
    EXPECT_EQ(WrappedText("", 10), (Texts{""}));
}

TEST(WrappedText, HardSpaceIsABlankThatDoesNotBreak) {
    EXPECT_EQ(WrappedText("a b\x7F"
                          "c",
                          4),
              (Texts{"a", "b c"}));
}

TEST(WrappedText, WhatATerminalWouldObeyIsReplaced) {
    EXPECT_EQ(WrappedText("a\x1B[2Jb", 20), (Texts{"a\uFFFD[2Jb"}));
}

TEST(Record, TextGoesOnInItsColumn) {
    Record record;
    record.Text("!%A!%t10!%a", {std::int64_t{7}}, "one two three", {10, 7});
    EXPECT_EQ(TextsOf(record), (Texts{"7        one two", "         three"}));
}

TEST(Record, LinesThatGoOnAreMarked) {
    Record record;
    record.Text("%a", {}, "one two", {1, 3});
    const std::vector<Line> lines = record.Take();
    EXPECT_FALSE(lines[0].continues);
    EXPECT_TRUE(lines[1].continues);
}

TEST(Record, TabBehindATextThatHasReachedItsColumnBreaksTheLine) {
    Record record;
    record.Row("%a!%t5!%a", {std::string("sixsix"), std::string("next")});
    EXPECT_EQ(TextsOf(record), (Texts{"sixsix", "    next"}));
}

TEST(Record, AsideGoesBesideTheLineOrBelowWhatStandsThere) {
    Record record;
    record.Row("%a", {std::string("AT 1")});
    record.Aside("first one", {10, 5});
    record.Aside("second", {10, 8});
    EXPECT_EQ(TextsOf(record), (Texts{"AT 1     first", "         one", "         second"}));
}

TEST(Record, AsideGoesBelowATextThatHasReachedItsColumn) {
    Record record;
    record.Row("%a", {std::string("AT 1")});
    record.Aside("first", {5, 8});
    EXPECT_EQ(TextsOf(record), (Texts{"AT 1", "    first"}));
}

TEST(Record, ValuesOfARowAreMadeSafe) {
    Record record;
    record.Row("%a", {std::string("a\x1B[2J")});
    EXPECT_EQ(TextsOf(record), (Texts{"a\uFFFD[2J"}));
}

TEST(Record, PlaceBelongsToTheFirstLine) {
    const Place place{store::TableNum::Messages, 7};
    Record record(place);
    record.Row("a", {});
    record.Row("b", {});
    const std::vector<Line> lines = record.Take();
    EXPECT_EQ(lines[0].place, place);
    EXPECT_FALSE(lines[1].place);
}

}  // namespace
}  // namespace fabula::listings
