#include "authoring/drawing/command_in_words.h"

#include <gtest/gtest.h>

#include "pictures/command_catalogue.h"
#include "pictures/drawstring.h"

namespace fabula::authoring {
namespace {

std::string Said(int number, std::string_view parameters) {
    return CommandInWords(number, pictures::SplitAtBlanks(parameters));
}

TEST(CommandInWords, SaysWhatEachCommandDoes) {
    EXPECT_EQ(Said(pictures::kAbsMove, "100 50"), "Move to 100, 50");
    EXPECT_EQ(Said(pictures::kPlot, "0 3 4"), "Point at 3, 4");
    EXPECT_EQ(Said(pictures::kRelMove, "-5 20"), "Move 5 left, 20 up");
    EXPECT_EQ(Said(pictures::kRelMove, "0 0"), "Stay here");
    EXPECT_EQ(Said(pictures::kLine, "0 10 -20"), "Line 10 right, 20 down");
    EXPECT_EQ(Said(pictures::kLine, "0 0 0"), "Line of one point");
    EXPECT_EQ(Said(pictures::kFill, "3 0"), "Fill from 3 right");
    EXPECT_EQ(Said(pictures::kFill, "0 0"), "Fill from the cursor");
    EXPECT_EQ(Said(pictures::kShade, "0 1 2 83"), "Shades 5 and 3 from 1 right, 2 up");
    EXPECT_EQ(Said(pictures::kShade, "0 1 2 17"), "Shade 1 from 1 right, 2 up");
    EXPECT_EQ(Said(pictures::kText, "0 0 65 3 4"), "Character 65 of set 0 in column 3, row 4");
    EXPECT_EQ(Said(pictures::kBlock, "1 3 0 20"), "Block, 4 cells wide and 2 high, at column 0, row 20");
    EXPECT_EQ(Said(pictures::kBlock, "0 0 0 0"), "Block, 1 cell wide and 1 high, at column 0, row 0");
    EXPECT_EQ(Said(pictures::kInk, "2"), "Ink 2, Red");
    EXPECT_EQ(Said(pictures::kPaper, "8"), "Paper 8, transparent");
    EXPECT_EQ(Said(pictures::kBright, "1"), "Bright on");
    EXPECT_EQ(Said(pictures::kFlash, "0"), "Flash off");
    EXPECT_EQ(Said(pictures::kGoSub, "sc=0 12"), "Draw picture 12");
    EXPECT_EQ(Said(pictures::kGoSub, "sc=4 12"), "Draw picture 12, 4 eighths of its size");
    EXPECT_EQ(Said(pictures::kQShade, "0 1 0 129"), "Shade 129 by columns from 1 right");
    EXPECT_EQ(Said(pictures::kBShade, "0 1 0 129"), "Shade 129 by columns from 1 right");
    EXPECT_EQ(Said(pictures::kRPlot, "0 1 -1"), "Point 1 right, 1 down");
    EXPECT_EQ(Said(pictures::kQFill, "0 1"), "Fill every corner from 1 up");
    EXPECT_EQ(Said(pictures::kEnd, ""), "End");
}

TEST(CommandInWords, AddsOverAndInverse) {
    EXPECT_EQ(Said(pictures::kPlot, "11 3 4"), "Point at 3, 4, over, inverse");
    EXPECT_EQ(Said(pictures::kLine, "1 3 0"), "Line 3 right, inverse");
    EXPECT_EQ(Said(pictures::kLine, "10 3 0"), "Line 3 right, over");
}

TEST(CommandInWords, SaysNothingOfWhatItDoesNotUnderstand) {
    EXPECT_EQ(Said(pictures::kLine, "0 x 3"), "");
    EXPECT_EQ(Said(pictures::kLine, "0 3"), "");
    EXPECT_EQ(Said(pictures::kInverse, ""), "");
    EXPECT_EQ(Said(999, "1"), "");
}

}  // namespace
}  // namespace fabula::authoring
