#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/settings_screen.h"

namespace fabula::authoring {
namespace {

using testing::ElementsAre;

/// A text of 255 characters, in words that markup takes.
std::string LongestDescription() {
    std::string text;
    for (int word = 0; word < 51; ++word)
        text += "word ";
    return text.replace(254, 1, "s");
}

TEST_F(SettingsScreen, NeedsASaveName) {
    frmVelAdvSettings screen = Open();
    screen.txtSaveName = " ";
    EXPECT_FALSE(screen.LeaveTxtSaveName());
    EXPECT_EQ(Box(), "Error: Must have a Save Name");
    EXPECT_EQ(screen.Refused(), "txtSaveName");
}

TEST_F(SettingsScreen, NeedsMaximumObjects) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxObjects = "";
    EXPECT_FALSE(screen.LeaveTxtMaxObjects());
    EXPECT_EQ(Box(), "Error: Must have Maximum Objects that can be carried");
    EXPECT_EQ(screen.Refused(), "txtMaxObjects");
}

TEST_F(SettingsScreen, MaximumObjects25PassesAnd26IsRefused) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxObjects = "25";
    EXPECT_TRUE(screen.LeaveTxtMaxObjects());
    EXPECT_EQ(Box(), "");
    screen.txtMaxObjects = "26";
    EXPECT_FALSE(screen.LeaveTxtMaxObjects());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 25");
}

TEST_F(SettingsScreen, MaximumObjectsOfNoneIsTheLeast) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxObjects = "0";
    EXPECT_TRUE(screen.LeaveTxtMaxObjects());
    screen.txtMaxObjects = "-1";
    EXPECT_FALSE(screen.LeaveTxtMaxObjects());
    EXPECT_EQ(Box(), "Error: Minimum value allowed is 0");
}

TEST_F(SettingsScreen, MaximumObjectsMustBeANumber) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxObjects = "many";
    EXPECT_FALSE(screen.LeaveTxtMaxObjects());
    EXPECT_EQ(Box(), "Error: Maximum Objects is not numeric");
}

TEST_F(SettingsScreen, MaximumWeightMustBeANumber) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxWeight = "heavy";
    EXPECT_FALSE(screen.LeaveTxtMaxWeight());
    EXPECT_EQ(Box(), "Error: Maximum Weight is not numeric");
    EXPECT_EQ(screen.Refused(), "txtMaxWeight");
}

TEST_F(SettingsScreen, MaximumWeightFitsItsFlag) {
    frmVelAdvSettings screen = Open();
    screen.txtMaxWeight = "32767";
    EXPECT_TRUE(screen.LeaveTxtMaxWeight());
    screen.txtMaxWeight = "32768";
    EXPECT_FALSE(screen.LeaveTxtMaxWeight());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 32767");
    screen.txtMaxWeight = "99999999999999999999999";
    EXPECT_FALSE(screen.LeaveTxtMaxWeight());
}

TEST_F(SettingsScreen, NamesOf255CharactersPassAnd256AreRefused) {
    frmVelAdvSettings screen = Open();
    for (std::string* name :
         {&screen.txtAdventureName, &screen.txtAuthor, &screen.txtSaveName, &screen.txtVersion})
        *name = std::string(255, 'x');
    EXPECT_TRUE(screen.cmdUpdate());
    const std::string message = "Error: A maximum of 255 characters is allowed.\nYou have 256";
    screen.txtAdventureName += 'x';
    EXPECT_FALSE(screen.LeaveTxtAdventureName());
    EXPECT_EQ(Box(), message);
    screen.txtAuthor += 'x';
    EXPECT_FALSE(screen.LeaveTxtAuthor());
    EXPECT_EQ(Box(), message);
    screen.txtSaveName += 'x';
    EXPECT_FALSE(screen.LeaveTxtSaveName());
    EXPECT_EQ(Box(), message);
    screen.txtVersion += 'x';
    EXPECT_FALSE(screen.LeaveTxtVersion());
    EXPECT_EQ(Box(), message);
}

TEST_F(SettingsScreen, StartLocationMustBeThere) {
    frmVelAdvSettings screen = Open();
    ASSERT_EQ(screen.cboStartLoc.items.size(), 1u);
    screen.cboStartLoc.text = "7";
    EXPECT_FALSE(screen.LeaveCboStartLoc());
    EXPECT_EQ(Box(), "Error: There is not a location with a number of 7");
    screen.cboStartLoc.text = "";
    EXPECT_FALSE(screen.LeaveCboStartLoc());
    EXPECT_EQ(Box(), "Error: No start location is set");
    EXPECT_EQ(screen.Refused(), "cboStartLoc");
}

TEST_F(SettingsScreen, StartLocationThatIsGoneMayStay) {
    Set("startloc", std::int64_t{40});
    frmVelAdvSettings screen = Open();
    EXPECT_TRUE(screen.LeaveCboStartLoc());
    screen.txtAuthor = "Ann";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("startloc, author"), "40|Ann");
}

TEST_F(SettingsScreen, NeedsAFont) {
    Set("Font", std::int64_t{99});
    frmVelAdvSettings screen = Open();
    EXPECT_FALSE(screen.LeaveCboFont());
    EXPECT_EQ(Box(), "Error: No font is set");
    EXPECT_EQ(screen.Refused(), "cboFont");
}

TEST_F(SettingsScreen, NeedsAFontSize) {
    Set("FontSize", std::int64_t{130});
    frmVelAdvSettings screen = Open();
    EXPECT_FALSE(screen.LeaveCboFontSize());
    EXPECT_EQ(Box(), "Error: No font size is set");
    EXPECT_EQ(screen.Refused(), "cboFontSize");
}

TEST_F(SettingsScreen, DescriptionOf255CharactersPassesAnd256AreRefused) {
    frmVelAdvSettings screen = Open();
    screen.txtAdvDesc = LongestDescription();
    EXPECT_TRUE(screen.LeaveTxtAdvDesc());
    screen.txtAdvDesc += "\u00E4";
    EXPECT_FALSE(screen.LeaveTxtAdvDesc());
    EXPECT_EQ(Box(), "Error: A maximum of 255 characters is allowed.\nYou have 256");
    EXPECT_EQ(screen.Refused(), "txtAdvDesc");
}

TEST_F(SettingsScreen, DescriptionOf255CharactersIsTheSameAfterItWasStored) {
    frmVelAdvSettings screen = Open();
    screen.txtAdvDesc = LongestDescription();
    ASSERT_TRUE(screen.cmdUpdate());
    frmVelAdvSettings again = Open();
    EXPECT_EQ(again.txtAdvDesc, screen.txtAdvDesc);
    EXPECT_TRUE(again.cmdUpdate());
}

TEST_F(SettingsScreen, EmptyDescriptionsAreOneBlank) {
    Set("advdesc", std::string("Old. "));
    Set("advcontactinfo", std::string("Old."));
    frmVelAdvSettings screen = Open();
    screen.txtAdvDesc.clear();
    screen.txtContactInfo.clear();
    ASSERT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored("advdesc, advcontactinfo"), " | ");
}

TEST_F(SettingsScreen, DescriptionsMayHaveNoTags) {
    frmVelAdvSettings screen = Open();
    screen.txtAdvDesc = "<INK=3>Red";
    EXPECT_FALSE(screen.LeaveTxtAdvDesc());
    EXPECT_EQ(screen.Refused(), "txtAdvDesc");
    screen.txtContactInfo = "Write <BR> me";
    EXPECT_FALSE(screen.LeaveTxtContactInfo());
    EXPECT_EQ(screen.Refused(), "txtContactInfo");
    ASSERT_EQ(desk_.dialogs.Boxes().size(), 2u);
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(desk_.dialogs.Boxes().at(1).title, "Error");
}

TEST_F(SettingsScreen, UpdateChecksInOrderAndTellsTheFirstFaultOnly) {
    frmVelAdvSettings screen = Open();
    screen.page = SettingsPage::Sound;
    screen.txtSaveName = "";
    screen.cboStartLoc.text = "";
    screen.txtMaxObjects = "";
    screen.txtMaxWeight = "heavy";
    screen.cboFont.index = -1;
    screen.cboFontSize.index = -1;
    screen.txtAdvDesc = std::string(300, 'x');
    screen.txtContactInfo = "<BR>";
    std::vector<std::string> refused;
    const auto update = [&] {
        ASSERT_FALSE(screen.cmdUpdate());
        refused.emplace_back(screen.Refused());
    };
    update();
    screen.txtSaveName = "game";
    update();
    screen.cboStartLoc.text = "0";
    update();
    screen.txtMaxObjects = "3";
    update();
    screen.txtMaxWeight = "3";
    update();
    screen.cboFont.index = 0;
    update();
    screen.cboFontSize.index = 0;
    update();
    screen.txtAdvDesc = "";
    update();
    screen.txtContactInfo = "";
    update();
    EXPECT_THAT(refused,
                ElementsAre("txtSaveName", "cboStartLoc", "txtMaxObjects", "txtMaxWeight", "cboFont",
                            "cboFontSize", "txtAdvDesc", "txtContactInfo", "cmdTestVoice"));
    EXPECT_EQ(desk_.dialogs.Boxes().size(), refused.size());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

}  // namespace
}  // namespace fabula::authoring
