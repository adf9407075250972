#include "authoring/settings/colour_screen.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

using Purpose = ColourScreen::Purpose;

TEST(ColorsScreen, IsForInkOrForPaper) {
    EXPECT_EQ(ColourScreen(Purpose::Ink, 0).Caption(), "Set Color for Ink");
    EXPECT_EQ(ColourScreen(Purpose::Paper, 0).Caption(), "Set Color for Paper");
}

TEST(ColorsScreen, TellsTheColorThatWasClicked) {
    ColourScreen screen(Purpose::Ink, 7);
    EXPECT_EQ(screen.CurrentLine(), "Current Color is White\nClick the Color to Change");
    screen.Click(10);
    EXPECT_EQ(screen.CurrentLine(), "Current Color is Bright Red\nClick the Color to Change");
}

TEST(ColorsScreen, UpdateGivesTheNumber) {
    ColourScreen screen(Purpose::Paper, 2);
    EXPECT_EQ(screen.Update(), 2);
    screen.Click(15);
    EXPECT_EQ(screen.Update(), 15);
}

TEST(ColorsScreen, ANumberThatIsNoColorCountsAsBlack) {
    EXPECT_EQ(ColourScreen(Purpose::Ink, 16).Current(), 0);
    EXPECT_EQ(ColourScreen(Purpose::Ink, -1).Current(), 0);
}

TEST(ColorsScreen, HasNoSeventeenthColor) {
    ColourScreen screen(Purpose::Ink, 0);
    EXPECT_THROW(screen.Click(16), std::invalid_argument);
}

}  // namespace
}  // namespace fabula::authoring
