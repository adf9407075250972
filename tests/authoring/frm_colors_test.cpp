#include "authoring/frm_colors.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace fabula::authoring {
namespace {

using Purpose = frmColors::Purpose;

TEST(ColorsScreen, IsForInkOrForPaper) {
    EXPECT_EQ(frmColors(Purpose::Ink, 0).Caption(), "Set Color for Ink");
    EXPECT_EQ(frmColors(Purpose::Paper, 0).Caption(), "Set Color for Paper");
}

TEST(ColorsScreen, TellsTheColorThatWasClicked) {
    frmColors screen(Purpose::Ink, 7);
    EXPECT_EQ(screen.CurrentLine(), "Current Color is White\nClick the Color to Change");
    screen.Click(10);
    EXPECT_EQ(screen.CurrentLine(), "Current Color is Bright Red\nClick the Color to Change");
}

TEST(ColorsScreen, UpdateGivesTheNumber) {
    frmColors screen(Purpose::Paper, 2);
    EXPECT_EQ(screen.cmdUpdate(), 2);
    screen.Click(15);
    EXPECT_EQ(screen.cmdUpdate(), 15);
}

TEST(ColorsScreen, ANumberThatIsNoColorCountsAsBlack) {
    EXPECT_EQ(frmColors(Purpose::Ink, 16).Current(), 0);
    EXPECT_EQ(frmColors(Purpose::Ink, -1).Current(), 0);
}

TEST(ColorsScreen, HasNoSeventeenthColor) {
    frmColors screen(Purpose::Ink, 0);
    EXPECT_THROW(screen.Click(16), std::invalid_argument);
}

}  // namespace
}  // namespace fabula::authoring
