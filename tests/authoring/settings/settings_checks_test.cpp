#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/settings_stand.h"

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

TEST_F(SettingsScreenTest, NeedsASaveName) {
    SettingsScreen screen = Open();
    screen.saveName = " ";
    EXPECT_FALSE(screen.LeaveSaveName());
    EXPECT_EQ(Box(), "Error: Must have a Save Name");
    EXPECT_EQ(screen.Refused(), "saveName");
}

TEST_F(SettingsScreenTest, NeedsMaximumObjects) {
    SettingsScreen screen = Open();
    screen.maxObjects = "";
    EXPECT_FALSE(screen.LeaveMaxObjects());
    EXPECT_EQ(Box(), "Error: Must have Maximum Objects that can be carried");
    EXPECT_EQ(screen.Refused(), "maxObjects");
}

TEST_F(SettingsScreenTest, MaximumObjects25PassesAnd26IsRefused) {
    SettingsScreen screen = Open();
    screen.maxObjects = "25";
    EXPECT_TRUE(screen.LeaveMaxObjects());
    EXPECT_EQ(Box(), "");
    screen.maxObjects = "26";
    EXPECT_FALSE(screen.LeaveMaxObjects());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 25");
}

TEST_F(SettingsScreenTest, MaximumObjectsOfNoneIsTheLeast) {
    SettingsScreen screen = Open();
    screen.maxObjects = "0";
    EXPECT_TRUE(screen.LeaveMaxObjects());
    screen.maxObjects = "-1";
    EXPECT_FALSE(screen.LeaveMaxObjects());
    EXPECT_EQ(Box(), "Error: Minimum value allowed is 0");
}

TEST_F(SettingsScreenTest, MaximumObjectsMustBeANumber) {
    SettingsScreen screen = Open();
    screen.maxObjects = "many";
    EXPECT_FALSE(screen.LeaveMaxObjects());
    EXPECT_EQ(Box(), "Error: Maximum Objects is not numeric");
}

TEST_F(SettingsScreenTest, MaximumWeightMustBeANumber) {
    SettingsScreen screen = Open();
    screen.maxWeight = "heavy";
    EXPECT_FALSE(screen.LeaveMaxWeight());
    EXPECT_EQ(Box(), "Error: Maximum Weight is not numeric");
    EXPECT_EQ(screen.Refused(), "maxWeight");
}

TEST_F(SettingsScreenTest, MaximumWeightFitsItsFlag) {
    SettingsScreen screen = Open();
    screen.maxWeight = "32767";
    EXPECT_TRUE(screen.LeaveMaxWeight());
    screen.maxWeight = "32768";
    EXPECT_FALSE(screen.LeaveMaxWeight());
    EXPECT_EQ(Box(), "Error: Maximum value allowed is 32767");
    screen.maxWeight = "99999999999999999999999";
    EXPECT_FALSE(screen.LeaveMaxWeight());
}

TEST_F(SettingsScreenTest, NamesOf255CharactersPassAnd256AreRefused) {
    SettingsScreen screen = Open();
    for (std::string* name : {&screen.name, &screen.author, &screen.saveName, &screen.version})
        *name = std::string(255, 'x');
    EXPECT_TRUE(screen.Update());
    const std::string message = "Error: A maximum of 255 characters is allowed.\nYou have 256";
    screen.name += 'x';
    EXPECT_FALSE(screen.LeaveName());
    EXPECT_EQ(Box(), message);
    screen.author += 'x';
    EXPECT_FALSE(screen.LeaveAuthor());
    EXPECT_EQ(Box(), message);
    screen.saveName += 'x';
    EXPECT_FALSE(screen.LeaveSaveName());
    EXPECT_EQ(Box(), message);
    screen.version += 'x';
    EXPECT_FALSE(screen.LeaveVersion());
    EXPECT_EQ(Box(), message);
}

TEST_F(SettingsScreenTest, StartLocationMustBeThere) {
    SettingsScreen screen = Open();
    ASSERT_EQ(screen.startPlace.items.size(), 1u);
    screen.startPlace.text = "7";
    EXPECT_FALSE(screen.LeaveStartPlace());
    EXPECT_EQ(Box(), "Error: There is not a location with a number of 7");
    screen.startPlace.text = "";
    EXPECT_FALSE(screen.LeaveStartPlace());
    EXPECT_EQ(Box(), "Error: No start location is set");
    EXPECT_EQ(screen.Refused(), "startPlace");
}

TEST_F(SettingsScreenTest, StartLocationThatIsGoneMayStay) {
    Set("startloc", std::int64_t{40});
    SettingsScreen screen = Open();
    EXPECT_TRUE(screen.LeaveStartPlace());
    screen.author = "Ann";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored("startloc, author"), "40|Ann");
}

TEST_F(SettingsScreenTest, NeedsAFont) {
    Set("Font", std::int64_t{99});
    SettingsScreen screen = Open();
    EXPECT_FALSE(screen.LeaveFont());
    EXPECT_EQ(Box(), "Error: No font is set");
    EXPECT_EQ(screen.Refused(), "font");
}

TEST_F(SettingsScreenTest, NeedsAFontSize) {
    Set("FontSize", std::int64_t{130});
    SettingsScreen screen = Open();
    EXPECT_FALSE(screen.LeaveFontSize());
    EXPECT_EQ(Box(), "Error: No font size is set");
    EXPECT_EQ(screen.Refused(), "fontSize");
}

TEST_F(SettingsScreenTest, DescriptionOf255CharactersPassesAnd256AreRefused) {
    SettingsScreen screen = Open();
    screen.description = LongestDescription();
    EXPECT_TRUE(screen.LeaveDescription());
    screen.description += "\u00E4";
    EXPECT_FALSE(screen.LeaveDescription());
    EXPECT_EQ(Box(), "Error: A maximum of 255 characters is allowed.\nYou have 256");
    EXPECT_EQ(screen.Refused(), "description");
}

TEST_F(SettingsScreenTest, DescriptionOf255CharactersIsTheSameAfterItWasStored) {
    SettingsScreen screen = Open();
    screen.description = LongestDescription();
    ASSERT_TRUE(screen.Update());
    SettingsScreen again = Open();
    EXPECT_EQ(again.description, screen.description);
    EXPECT_TRUE(again.Update());
}

TEST_F(SettingsScreenTest, EmptyDescriptionsAreOneBlank) {
    Set("advdesc", std::string("Old. "));
    Set("advcontactinfo", std::string("Old."));
    SettingsScreen screen = Open();
    screen.description.clear();
    screen.contactInfo.clear();
    ASSERT_TRUE(screen.Update());
    EXPECT_EQ(Stored("advdesc, advcontactinfo"), " | ");
}

TEST_F(SettingsScreenTest, DescriptionsMayHaveNoTags) {
    SettingsScreen screen = Open();
    screen.description = "<INK=3>Red";
    EXPECT_FALSE(screen.LeaveDescription());
    EXPECT_EQ(screen.Refused(), "description");
    screen.contactInfo = "Write <BR> me";
    EXPECT_FALSE(screen.LeaveContactInfo());
    EXPECT_EQ(screen.Refused(), "contactInfo");
    ASSERT_EQ(desk_.dialogs.Boxes().size(), 2u);
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(desk_.dialogs.Boxes().at(1).title, "Error");
}

TEST_F(SettingsScreenTest, UpdateChecksInOrderAndTellsTheFirstFaultOnly) {
    SettingsScreen screen = Open();
    screen.page = SettingsPage::Sound;
    screen.saveName = "";
    screen.startPlace.text = "";
    screen.maxObjects = "";
    screen.maxWeight = "heavy";
    screen.font.index = -1;
    screen.fontSize.index = -1;
    screen.description = std::string(300, 'x');
    screen.contactInfo = "<BR>";
    std::vector<std::string> refused;
    const auto update = [&] {
        ASSERT_FALSE(screen.Update());
        refused.emplace_back(screen.Refused());
    };
    update();
    screen.saveName = "game";
    update();
    screen.startPlace.text = "0";
    update();
    screen.maxObjects = "3";
    update();
    screen.maxWeight = "3";
    update();
    screen.font.index = 0;
    update();
    screen.fontSize.index = 0;
    update();
    screen.description = "";
    update();
    screen.contactInfo = "";
    update();
    EXPECT_THAT(refused, ElementsAre("saveName", "startPlace", "maxObjects", "maxWeight", "font",
                                     "fontSize", "description", "contactInfo", "testVoice"));
    EXPECT_EQ(desk_.dialogs.Boxes().size(), refused.size());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

}  // namespace
}  // namespace fabula::authoring
