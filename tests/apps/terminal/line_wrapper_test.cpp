#include "terminal/line_wrapper.h"

#include <gtest/gtest.h>

#include "captured_output.h"

namespace fabula::terminal {
namespace {

class LineWrapperTest : public testing::Test {
  protected:
    /// What a text looks like in lines of `width` columns, ended.
    std::string Wrapped(std::string_view text, int width) {
        LineWrapper wrapper(*output_, false);
        wrapper.SetWidth(width);
        wrapper.Write(text, {});
        wrapper.EndLine();
        return output_.Text();
    }

    test::CapturedOutput output_;
};

TEST_F(LineWrapperTest, BreaksBehindTheLastBlankThatFits) {
    EXPECT_EQ(Wrapped("the quick brown fox", 10), "the quick\nbrown fox\n");
}

TEST_F(LineWrapperTest, AWordMayFillTheLineToItsEnd) {
    EXPECT_EQ(Wrapped("the quick!", 10), "the quick!\n");
}

TEST_F(LineWrapperTest, BlanksAtABreakAreLeftAway) {
    EXPECT_EQ(Wrapped("12345   678", 5), "12345\n678\n");
}

TEST_F(LineWrapperTest, BlanksAtTheStartOfALineStay) {
    EXPECT_EQ(Wrapped("  a", 10), "  a\n");
}

TEST_F(LineWrapperTest, ABlankBeyondTheWidthIsLeftAwayAtTheEnd) {
    EXPECT_EQ(Wrapped("12345 ", 5), "12345\n");
}

TEST_F(LineWrapperTest, AWordWiderThanALineIsCut) {
    EXPECT_EQ(Wrapped("1234567890123", 5), "12345\n67890\n123\n");
}

TEST_F(LineWrapperTest, AWideCharacterTakesTwoColumns) {
    EXPECT_EQ(Wrapped("日本語日本語", 10), "日本語日本\n語\n");
    EXPECT_EQ(Wrapped("", 10), "日本語日本\n語\n\n");
}

TEST_F(LineWrapperTest, ACombiningMarkTakesNone) {
    EXPECT_EQ(Wrapped("e\u0301e\u0301e\u0301e\u0301e\u0301 x", 5),
              "e\u0301e\u0301e\u0301e\u0301e\u0301\nx\n");
}

TEST_F(LineWrapperTest, ANoBreakSpaceKeepsItsNeighboursTogetherAndShowsAsABlank) {
    EXPECT_EQ(Wrapped("the quick\u00A0fox", 11), "the\nquick fox\n");
}

TEST_F(LineWrapperTest, AWordInSeveralPiecesBreaksAsOne) {
    LineWrapper wrapper(*output_, false);
    wrapper.SetWidth(8);
    wrapper.Write("one two", {});
    wrapper.Write("three", {});
    wrapper.EndLine();
    EXPECT_EQ(output_.Text(), "one\ntwothree\n");
}

TEST_F(LineWrapperTest, WithoutAWidthNothingBreaks) {
    EXPECT_EQ(Wrapped(std::string(500, 'x') + " " + std::string(500, 'y'), 0),
              std::string(500, 'x') + " " + std::string(500, 'y') + "\n");
}

TEST_F(LineWrapperTest, MarksWithoutEndDoNotMakeALineWithoutEnd) {
    std::string marks;
    for (int i = 0; i < 100; ++i)
        marks += "\u0301";
    EXPECT_LT(Wrapped(marks, 2).find('\n'), marks.size());
}

TEST_F(LineWrapperTest, WhatWasShownIsNotBrokenAnyMore) {
    LineWrapper wrapper(*output_, false);
    wrapper.SetWidth(8);
    wrapper.Write("one two", {});
    wrapper.Show();
    wrapper.Write("three", {});
    wrapper.EndLine();
    EXPECT_EQ(output_.Text(), "one twot\nhree\n");
}

TEST_F(LineWrapperTest, SwitchesTheLookWhereItChangesAndBackBeforeALineEnds) {
    LineWrapper wrapper(*output_, true);
    wrapper.SetWidth(20);
    wrapper.Write("a ", {});
    wrapper.Write("b", {.bold = true});
    wrapper.EndLine();
    wrapper.Write("c", {.bold = true});
    wrapper.EndLine();
    EXPECT_EQ(output_.Text(), "a \x1B[0;1mb\x1B[0m\n\x1B[0;1mc\x1B[0m\n");
}

TEST_F(LineWrapperTest, WithoutAttributesNoSequenceIsWritten) {
    LineWrapper wrapper(*output_, false);
    wrapper.SetWidth(20);
    wrapper.Write("b", {.ink = 2, .bold = true});
    wrapper.EndLine();
    EXPECT_EQ(output_.Text(), "b\n");
}

TEST_F(LineWrapperTest, AnUnfinishedLineCanBeTakenAsAPrompt) {
    LineWrapper wrapper(*output_, false);
    wrapper.SetWidth(20);
    wrapper.Write("What now? >", {});
    EXPECT_EQ(wrapper.TakeLine('|'), "What now? >");
    EXPECT_TRUE(wrapper.AtLineStart());
    EXPECT_EQ(output_.Text(), "");
}

TEST_F(LineWrapperTest, ThePromptHasMarkedSequencesAndItsLastCharacterNone) {
    LineWrapper wrapper(*output_, true);
    wrapper.SetWidth(20);
    wrapper.Write("now>", {.bold = true});
    EXPECT_EQ(wrapper.TakeLine('|'), "|\x1B[0;1m|now|\x1B[0m|>");
}

}  // namespace
}  // namespace fabula::terminal
