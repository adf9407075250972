#include "authoring/frm_flags.h"

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
class FlagScreen : public testing::Test {
  protected:
    frmFlags Open() { return {desk_.session, {60, false}}; }
    std::string Stored() {
        return desk_.Rows(TableNum::Flags, "flgtype, flguse, flgdesc", "flgnum=60").at(0);
    }

    test::Desk desk_;
};

TEST_F(FlagScreen, ShowsTheRecord) {
    const frmFlags screen = Open();
    ASSERT_NE(screen.cboFlgType.Chosen(), nullptr);
    EXPECT_EQ(screen.cboFlgType.Chosen()->text, "User");
    ASSERT_NE(screen.cboFlgUse.Chosen(), nullptr);
    EXPECT_EQ(screen.cboFlgUse.Chosen()->text, "Unknown");
    EXPECT_EQ(screen.txtFlgDesc, "");
}

TEST_F(FlagScreen, OffersTwoTypesAndTheUses) {
    const frmFlags screen = Open();
    EXPECT_THAT(screen.cboFlgType.items, ElementsAre(ListItem{0, "System"}, ListItem{1, "User"}));
    std::vector<std::string> uses;
    for (const ListItem& item : screen.cboFlgUse.items)
        uses.push_back(item.text);
    EXPECT_THAT(uses, ElementsAre("Unknown", "Counter", "Location", "Object", "Score", "Setting", "Switch",
                                  "Timer", "Word", "Work"));
}

TEST_F(FlagScreen, NeedsAType) {
    frmFlags screen = Open();
    screen.cboFlgType.index = -1;
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Must choose a value for Type"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "cboFlgType");
}

TEST_F(FlagScreen, NeedsAUseAndTheTitleHasAStrayQuote) {
    frmFlags screen = Open();
    screen.cboFlgUse.index = -1;
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Must choose a Value for Use"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error'");
}

TEST_F(FlagScreen, RefusesUnknownAsAUse) {
    frmFlags screen = Open();
    screen.txtFlgDesc = "The door is open.";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Cannot use Unknown as a Usage"));
    EXPECT_EQ(desk_.dialogs.Boxes().at(0).title, "Error");
    EXPECT_EQ(screen.Refused(), "cboFlgUse");
}

TEST_F(FlagScreen, RefusesTagsInTheDescription) {
    frmFlags screen = Open();
    screen.cboFlgUse.ChooseText("Switch");
    screen.txtFlgDesc = "The <INK=2>red door.";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Word: 2 Tags not allowed in this Description"));
    EXPECT_EQ(screen.Refused(), "txtFlgDesc");
    EXPECT_EQ(Stored(), "User|Unknown|");
}

TEST_F(FlagScreen, StoresTypeUseAndDescription) {
    frmFlags screen = Open();
    screen.cboFlgType.ChooseText("System");
    screen.cboFlgUse.ChooseText("Switch");
    screen.txtFlgDesc = "The door\nis open.";
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(), "System|Switch|The door\u008Cis open.");
    EXPECT_EQ(desk_.document.UndoName(), "edit flag 60");
    desk_.document.Undo();
    EXPECT_EQ(Stored(), "User|Unknown|");
}

TEST_F(FlagScreen, UpdateWithoutAChangeStoresNothing) {
    EXPECT_TRUE(Open().cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
    EXPECT_EQ(desk_.document.UndoName(), std::nullopt);
}

TEST_F(FlagScreen, OfAFlagThatIsNotThereFails) {
    EXPECT_THROW(frmFlags(desk_.session, {5000, false}), Error);
}

}  // namespace
}  // namespace fabula::authoring
