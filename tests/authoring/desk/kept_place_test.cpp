// Filter, order and row of a table are there again when the author comes back to it.

#include <gtest/gtest.h>

#include "authoring/main_screen_stand.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class KeptPlace : public testing::Test {
  protected:
    KeptPlace() {
        stand_.OpenNew();
        for (const char* text : {"the lamp", "the door", "a lamp post"})
            stand_.StoreMessage(count_++, text);
        Main().Show({TableNum::Messages});
    }

    MainScreen& Main() { return *stand_.main; }
    void LeaveAndComeBack() {
        Main().Show({TableNum::Flags});
        Main().Show({TableNum::Messages});
    }

    int count_ = 0;
    test::MainScreenStand stand_;
};

TEST_F(KeptPlace, IsTheRow) {
    Main().SelectRow(2);
    LeaveAndComeBack();
    EXPECT_EQ(Main().CurrentRow(), 2);
}

TEST_F(KeptPlace, IsTheFilterWithTheRowInIt) {
    Main().SetFilter("lamp");
    Main().SelectRow(1);
    LeaveAndComeBack();
    EXPECT_EQ(Main().Grid().Filter(), "lamp");
    EXPECT_EQ(Main().Grid().RowCount(), 2);
    EXPECT_EQ(Main().CurrentRow(), 1);
}

TEST_F(KeptPlace, IsTheOrderOfAColumn) {
    Main().ClickColumn(0);
    Main().ClickColumn(0);
    LeaveAndComeBack();
    EXPECT_EQ(Main().Grid().SortColumn(), 0);
    EXPECT_TRUE(Main().Grid().SortsDown());
}

TEST_F(KeptPlace, IsNotThatOfAnotherTable) {
    Main().SetFilter("lamp");
    Main().Show({TableNum::Flags});
    EXPECT_EQ(Main().Grid().Filter(), "");
    EXPECT_EQ(Main().CurrentRow(), 0);
}

TEST_F(KeptPlace, IsForgottenWithTheAdventure) {
    Main().SetFilter("lamp");
    Main().Show({TableNum::Flags});
    Main().OpenFile(stand_.Make("other.fbd"));
    Main().Show({TableNum::Messages});
    EXPECT_EQ(Main().Grid().Filter(), "");
}

TEST_F(KeptPlace, GivesWayToARecordThatIsAdded) {
    Main().SetFilter("lamp");
    stand_.AddMessage("a box");
    EXPECT_EQ(Main().Grid().Filter(), "");
    EXPECT_EQ(Main().Grid().CellText(Main().CurrentRow(), 1), "a box");
}

TEST_F(KeptPlace, StaysWhenNothingWasAdded) {
    Main().SetFilter("lamp");
    const auto request = Main().Run(Command::Add);
    Main().ScreenClosed(request.value());
    EXPECT_EQ(Main().Grid().Filter(), "lamp");
}

}  // namespace
}  // namespace fabula::authoring
