#include "text/fields.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "random_text.h"

namespace fabula::text {
namespace {

/// The splitter that every routine here is held against: one character after the other.
std::vector<std::string> NaiveSplit(const std::string& text, char delimiter) {
    std::vector<std::string> pieces(1);
    for (const char character : text) {
        if (character == delimiter)
            pieces.emplace_back();
        else
            pieces.back() += character;
    }
    return pieces;
}

TEST(GetField, GivesThePieceCountedFromZero) {
    EXPECT_EQ(GetField(0, ",", "a,b"), "a");
    EXPECT_EQ(GetField(1, " ", "AT 5"), "5");
    EXPECT_EQ(GetField(1, ",", "a,,b"), "");
    EXPECT_EQ(GetField(2, ",", "a,b,"), "");
}

TEST(GetField, BeyondTheLastPieceIsTheDelimiter) {
    EXPECT_EQ(GetField(2, ",", "a,b"), ",");
    EXPECT_EQ(GetField(1, " ", "DONE"), " ");
    EXPECT_EQ(GetField(99, "::", "a::b"), "::");
}

TEST(GetField, BeyondTheLastPieceIsEmptyWhenTheDelimiterIsNul) {
    EXPECT_EQ(GetField(1, std::string_view("\0", 1), std::string_view("a\0b", 3)), "b");
    EXPECT_EQ(GetField(2, std::string_view("\0", 1), std::string_view("a\0b", 3)), "");
}

TEST(GetField, TheEmptyTextHasOneEmptyPiece) {
    EXPECT_EQ(GetField(0, "|", ""), "");
    EXPECT_EQ(GetField(1, "|", ""), "|");
}

TEST(GetField, ADelimiterOutsideAsciiSplits) {
    EXPECT_EQ(GetField(1, "§", "één§twee"), "twee");
}

TEST(GetField, AnEmptyDelimiterOccursNowhere) {
    EXPECT_EQ(GetField(0, "", "abc"), "abc");
    EXPECT_EQ(GetField(1, "", "abc"), "");
}

TEST(GetField, ANegativeIndexIsAProgrammingError) {
    EXPECT_THROW(GetField(-1, ",", "a,b"), std::invalid_argument);
}

TEST(GetField, AgreesWithANaiveSplitter) {
    platform::SeededRandom random(3);
    for (int i = 0; i < 2000; ++i) {
        const std::string text = RandomText(random, 12, {"|", "|", "a", "bc", "é", " "});
        const std::vector<std::string> pieces = NaiveSplit(text, '|');
        const int count = static_cast<int>(pieces.size());
        for (int index = 0; index < count; ++index)
            EXPECT_EQ(GetField(index, "|", text), pieces[index]) << text;
        EXPECT_EQ(GetField(count, "|", text), "|") << text;
        EXPECT_EQ(CountOccurrences(text, "|"), count - 1) << text;
        EXPECT_EQ(Split(text, "|"), std::vector<std::string_view>(pieces.begin(), pieces.end())) << text;
    }
}

TEST(Split, GivesAtLeastOnePiece) {
    EXPECT_EQ(Split("", ","), (std::vector<std::string_view>{""}));
    EXPECT_EQ(Split("a", ""), (std::vector<std::string_view>{"a"}));
    EXPECT_EQ(Split(",", ","), (std::vector<std::string_view>{"", ""}));
}

TEST(Split, AMegabyteOfPiecesIsSplitInOnePass) {
    const std::string text = Repeated("a|", 500'000);
    EXPECT_EQ(Split(text, "|").size(), 500'001u);
}

TEST(CountOccurrences, IsZeroWithoutTextOrWithoutAMatch) {
    EXPECT_EQ(CountOccurrences("", ","), 0);
    EXPECT_EQ(CountOccurrences("abc", ","), 0);
    EXPECT_EQ(CountOccurrences("abc", ""), 0);
}

TEST(CountOccurrences, CountsOverlappingOnes) {
    EXPECT_EQ(CountOccurrences("aaa", "aa"), 2);
    EXPECT_EQ(CountOccurrences("a,,b", ","), 2);
}

TEST(FieldIndex, FindsTheFirstEqualPiece) {
    EXPECT_EQ(FieldIndex("from", " ", "locnum from locations from"), 1);
    EXPECT_EQ(FieldIndex("locnum", " ", "locnum from locations"), 0);
}

TEST(FieldIndex, IsMinusOneWithoutAnExactMatch) {
    EXPECT_EQ(FieldIndex("FROM", " ", "locnum from locations"), -1);
    EXPECT_EQ(FieldIndex("loc", " ", "locnum from locations"), -1);
}

TEST(FieldIndex, TheEmptyListHasOneEmptyPiece) {
    EXPECT_EQ(FieldIndex("", ",", ""), 0);
    EXPECT_EQ(FieldIndex("a", ",", ""), -1);
}

TEST(FieldIndex, TheDelimiterItselfIsNoPiece) {
    EXPECT_EQ(FieldIndex(",", ",", "a,b"), -1);
}

TEST(MidText, CutsByCodePointsCountedFromOne) {
    EXPECT_EQ(MidText("élan vital", 1, 4), "élan");
    EXPECT_EQ(MidText("élan vital", 6, 2), "vi");
    EXPECT_EQ(MidText("élan", 2, 0), "");
}

TEST(MidText, ANegativeLengthMeansToTheEnd) {
    EXPECT_EQ(MidText("élan vital", 6, -1), "vital");
    EXPECT_EQ(MidText("élan vital", 6), "vital");
}

TEST(MidText, BeyondTheEndIsEmpty) {
    EXPECT_EQ(MidText("abc", 4), "");
    EXPECT_EQ(MidText("abc", 99, 5), "");
    EXPECT_EQ(MidText("abc", 3, 99), "c");
}

TEST(MidText, APositionBelowOneIsAProgrammingError) {
    EXPECT_THROW(MidText("abc", 0), std::invalid_argument);
}

TEST(FindText, CountsTheCharactersBeforeTheMatchFromTheStartOfTheText) {
    EXPECT_EQ(FindText("b", "abcb"), 1);
    EXPECT_EQ(FindText("b", "abcb", 2), 1);
    EXPECT_EQ(FindText("b", "abcb", 3), 3);
    EXPECT_EQ(FindText("vital", "élan vital"), 5);
}

TEST(FindText, GivesTheLengthWhenThereIsNoMatch) {
    EXPECT_EQ(FindText("x", "été"), 3);
    EXPECT_EQ(FindText("B", "abc"), 3);
    EXPECT_EQ(FindText("a", "abc", 2), 3);
    EXPECT_EQ(FindText("a", "abc", 99), 3);
    EXPECT_EQ(FindText("a", ""), 0);
}

TEST(ContainsText, IsTrueWhenThereIsAMatchFromTheStartOn) {
    EXPECT_TRUE(ContainsText("c", "abc"));
    EXPECT_TRUE(ContainsText("a", "abca", 2));
    EXPECT_FALSE(ContainsText("a", "abc", 2));
    EXPECT_FALSE(ContainsText("C", "abc"));
    EXPECT_FALSE(ContainsText("a", ""));
}

}  // namespace
}  // namespace fabula::text
