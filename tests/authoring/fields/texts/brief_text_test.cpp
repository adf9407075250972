#include "authoring/fields/texts/brief_text.h"

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

TEST(BriefText, StandsOnOneLineWithoutDoubledBlanks) {
    EXPECT_EQ(BriefText(" You are\u008Con the  stairs."), "You are on the stairs.");
}

TEST(BriefText, IsTheOtherTextWhenTheFirstSaysNothing) {
    EXPECT_EQ(BriefText("The lamp room", "You are in the lamp room."), "The lamp room");
    EXPECT_EQ(BriefText(" ", "You are in the lamp room."), "You are in the lamp room.");
    EXPECT_EQ(BriefText("<INK=2><INK>", "You are in the lamp room."), "You are in the lamp room.");
    EXPECT_EQ(BriefText(" "), "");
}

TEST(BriefText, HasNoMarkup) {
    EXPECT_EQ(BriefText("<INK=2>Fish &amp; chips<INK>"), "Fish & chips");
}

TEST(BriefText, HasSixtyCharactersAtMost) {
    const std::string sixty = "\u00C4" + std::string(59, 'x');
    EXPECT_EQ(BriefText(sixty), sixty);
    EXPECT_EQ(BriefText(sixty + "y"), "\u00C4" + std::string(58, 'x') + "\u2026");
}

}  // namespace
}  // namespace fabula::authoring
