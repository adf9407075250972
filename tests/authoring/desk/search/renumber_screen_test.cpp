#include "authoring/desk/search/renumber_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;

class RenumberScreenTest : public testing::Test {
  protected:
    RenumberScreenTest() {
        desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{900}}, {"msgmsg", std::string("Nine.")}});
        desk_.AddEntry(500, 0, {"_", 255}, {"_", 255}, "MESSAGE 900 DONE");
    }

    test::Desk desk_;
};

TEST_F(RenumberScreenTest, ShowsWhatWillChangeAndDoesItAsOneStep) {
    RenumberScreen screen(desk_.context, TableNum::Messages, 900);
    EXPECT_EQ(screen.Name(), "message 900");
    EXPECT_EQ(screen.number, "901") << "the next that is free";
    screen.number = "950";
    EXPECT_THAT(
        screen.Preview(),
        ElementsAre("process table 0, entry 500 (_ _), condacts: MESSAGE 900 DONE becomes MESSAGE 950 DONE",
                    "message 900, msgnum: 900 becomes 950"));
    const test::Snapshot before = desk_.Everything();
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(screen.Key(), 950);
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "condacts", "canum=500"),
                ElementsAre("MESSAGE 950 DONE"));
    EXPECT_EQ(desk_.document.UndoName(), "number message 900 950");
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
}

TEST_F(RenumberScreenTest, TellsWhyItCannotBe) {
    RenumberScreen screen(desk_.context, TableNum::Messages, 900);
    screen.number = "1000";
    EXPECT_THAT(screen.Preview(), ElementsAre("The numbers of a message go from 0 to 999."));
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(desk_.Boxes().back(), "The numbers of a message go from 0 to 999.");
    screen.number = "soon";
    EXPECT_THAT(screen.Preview(), ElementsAre("Type the new number."));
}

TEST_F(RenumberScreenTest, IsForRecordsThatAreNamedByNumber) {
    EXPECT_TRUE(RenumberScreen::CanRenumber(TableNum::Locations));
    EXPECT_TRUE(RenumberScreen::CanRenumber(TableNum::Flags));
    EXPECT_FALSE(RenumberScreen::CanRenumber(TableNum::Vocabulary));
    EXPECT_FALSE(RenumberScreen::CanRenumber(TableNum::ProcessTables));
    EXPECT_FALSE(RenumberScreen::CanRenumber(TableNum::Characters));
}

}  // namespace
}  // namespace fabula::authoring
