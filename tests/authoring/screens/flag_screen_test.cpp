#include "authoring/screens/flag_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "platform/error.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// Flag 60 as it is at creation: "User", "Unknown".
class FlagScreenTest : public testing::Test {
  protected:
    FlagScreen Open() { return {desk_.context, {60, false}}; }
    std::string Stored() {
        return desk_.Rows(TableNum::Flags, "flgtype, flguse, flgdesc", "flgnum=60").at(0);
    }

    test::Desk desk_;
};

TEST_F(FlagScreenTest, ShowsTheRecord) {
    const FlagScreen screen = Open();
    ASSERT_NE(screen.type.Chosen(), nullptr);
    EXPECT_EQ(screen.type.Chosen()->text, "User");
    ASSERT_NE(screen.use.Chosen(), nullptr);
    EXPECT_EQ(screen.use.Chosen()->text, "Unknown");
    EXPECT_EQ(screen.description, "");
}

TEST_F(FlagScreenTest, OffersTwoTypesAndTheUses) {
    const FlagScreen screen = Open();
    EXPECT_THAT(screen.type.items, ElementsAre(ListItem{0, "System"}, ListItem{1, "User"}));
    std::vector<std::string> uses;
    for (const ListItem& item : screen.use.items)
        uses.push_back(item.text);
    EXPECT_THAT(uses, ElementsAre("Unknown", "Counter", "Location", "Object", "Score", "Setting", "Switch",
                                  "Timer", "Word", "Work"));
}

TEST_F(FlagScreenTest, NeedsAType) {
    FlagScreen screen = Open();
    screen.type.index = -1;
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Must choose a value for Type"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "type");
}

TEST_F(FlagScreenTest, NeedsAUseAndTheTitleHasAStrayQuote) {
    FlagScreen screen = Open();
    screen.use.index = -1;
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Must choose a Value for Use"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error'");
}

TEST_F(FlagScreenTest, RefusesUnknownAsAUse) {
    FlagScreen screen = Open();
    screen.description = "The door is open.";
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Cannot use Unknown as a Usage"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "use");
}

TEST_F(FlagScreenTest, RefusesTagsInTheDescription) {
    FlagScreen screen = Open();
    screen.use.ChooseText("Switch");
    screen.description = "The <INK=2>red door.";
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Word: 2 Tags not allowed in this Description"));
    EXPECT_EQ(screen.Refused(), "description");
    EXPECT_EQ(Stored(), "User|Unknown|");
}

TEST_F(FlagScreenTest, StoresTypeUseAndDescription) {
    FlagScreen screen = Open();
    screen.type.ChooseText("System");
    screen.use.ChooseText("Switch");
    screen.description = "The door\nis open.";
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(), "System|Switch|The door\u008Cis open.");
    EXPECT_EQ(desk_.document.UndoName(), "edit flag 60");
    desk_.document.Undo();
    EXPECT_EQ(Stored(), "User|Unknown|");
}

TEST_F(FlagScreenTest, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open().Update());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(FlagScreenTest, OfAFlagThatIsNotThereFails) {
    EXPECT_THROW(FlagScreen(desk_.context, {5000, false}), Error);
}

}  // namespace
}  // namespace fabula::authoring
