#include "interchange/pc/ace_tags.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"

namespace fabula::interchange {
namespace {

const AceTags& Tags() {
    static const AceTags tags(*test::OpenedAdventure());
    return tags;
}

TEST(ConvertACETags, AColourTagTakesTheNumberOfItsColour) {
    EXPECT_EQ(Tags().ConvertACETags("<COLOR=bright red>x"), "<ink=10>x");
    EXPECT_EQ(Tags().ConvertACETags("<background=Black>"), "<paper=0>");
}

TEST(ConvertACETags, AColourWithoutAValueIsTheDefault) {
    EXPECT_EQ(Tags().ConvertACETags("<color>"), "<ink>");
}

TEST(ConvertACETags, AnUnknownColourIsMinusOne) {
    EXPECT_EQ(Tags().ConvertACETags("<color=mauve>"), "<ink=-1>");
}

TEST(ConvertACETags, AColourMayBeANumber) {
    EXPECT_EQ(Tags().ConvertACETags("<color=3>"), "<ink=3>");
}

TEST(ConvertACETags, OtherValuesStay) {
    EXPECT_EQ(Tags().ConvertACETags("<chr=96>"), "<#=96>");
}

TEST(ConvertACETags, ATagWithoutARowStaysAsItWas) {
    EXPECT_EQ(Tags().ConvertACETags("<Mystery=4>x"), "<Mystery=4>x");
}

TEST(ConvertACETags, ATextWithoutATagStays) {
    EXPECT_EQ(Tags().ConvertACETags("a < b"), "a < b");
    EXPECT_EQ(Tags().ConvertACETags("a > b"), "a > b");
    EXPECT_EQ(Tags().ConvertACETags(""), "");
}

TEST(ConvertACETags, TheLettersOfTheOldMarksStay) {
    EXPECT_EQ(Tags().ConvertACETags("på <bright>æon</bright>"), "på <bright>æon</bright>");
}

TEST(ToACETags, UndoesConvertACETags) {
    EXPECT_EQ(Tags().ToACETags("<ink=10>x<ink><#=96></bright>"),
              "<color=bright red>x<color><chr=96></bright>");
    EXPECT_EQ(Tags().ConvertACETags(Tags().ToACETags("<ink=10>x<ink><#=96></bright>")),
              "<ink=10>x<ink><#=96></bright>");
}

TEST(ConvertACEColors, NumbersTheSixteenColours) {
    EXPECT_EQ(ConvertACEColors("black"), 0);
    EXPECT_EQ(ConvertACEColors("Yellow"), 6);
    EXPECT_EQ(ConvertACEColors("white"), 7);
    EXPECT_EQ(ConvertACEColors("bright black"), 8);
    EXPECT_EQ(ConvertACEColors("bright white"), 15);
    EXPECT_EQ(ConvertACEColors("mauve"), -1);
    EXPECT_EQ(ConvertACEColors(""), -1);
}

}  // namespace
}  // namespace fabula::interchange
