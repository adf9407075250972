#include "authoring/desk/search/navigator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/main_screen_stand.h"
#include "references/find_replace.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

class NavigatorTest : public testing::Test, public test::MainScreenStand {
  protected:
    NavigatorTest() {
        OpenNew();
        AddMessage("You lower the wick.");
        AddMessage("It is dark.");
        Store("LET 70 1 MESSAGE 0 DONE", 1);
        Store("MESSAGE 0 MESSAGE 1", 2);
        main->Show({TableNum::Messages});
        main->SelectRow(0);
    }

    /// Stores an entry as one change, as its screen does.
    void Store(const char* line, int key) {
        Change change(main->CurrentContext().document, "add entry");
        store::Cursor& entries = Adventure().OpenTable(TableNum::ProcessTables, "def");
        entries.AddNew();
        entries.SetField("canum", std::int64_t{key});
        entries.SetField("estype", std::int64_t{0});
        entries.SetField("w1", std::string("GET"));
        entries.SetField("w2", std::string("LAMP"));
        entries.SetField("w1num", std::int64_t{255});
        entries.SetField("w2num", std::int64_t{255});
        entries.SetField("condacts", std::string(line));
        entries.SetField("numericcondacts", std::string());
        entries.Update();
        change.Commit();
    }

    std::vector<std::string> Texts(const std::vector<JumpLine>& lines) {
        std::vector<std::string> texts;
        for (const JumpLine& line : lines)
            texts.push_back(line.text);
        return texts;
    }

    Navigator navigator{*main};
};

TEST_F(NavigatorTest, ListsTheUsesOfTheSelectedRecord) {
    EXPECT_EQ(navigator.Title(), "message 0: 2 uses");
    EXPECT_THAT(Texts(navigator.Lines()), ElementsAre("process table 0, entry 1 (GET LAMP): MESSAGE 0",
                                                      "process table 0, entry 2 (GET LAMP): MESSAGE 0"));
    main->SelectRow(1);
    EXPECT_EQ(navigator.Title(), "message 1: 1 use");
}

TEST_F(NavigatorTest, FollowsChangesUndoAndRedo) {
    EXPECT_EQ(navigator.Lines().size(), 2U);
    Store("MESSAGE 0", 3);
    EXPECT_EQ(navigator.Lines().size(), 3U);
    main->Run(Command::Undo);
    main->Show({TableNum::Messages});
    main->SelectRow(0);
    EXPECT_EQ(navigator.Lines().size(), 2U);
    main->Run(Command::Redo);
    main->Show({TableNum::Messages});
    main->SelectRow(0);
    EXPECT_EQ(navigator.Lines().size(), 3U);
}

TEST_F(NavigatorTest, GoesOnWithACopy) {
    EXPECT_EQ(navigator.Lines().size(), 2U);
    dialogs.AnswerFile(folder / "copy.fbd");
    ASSERT_TRUE(main->SaveAs());
    Store("MESSAGE 0", 3);
    EXPECT_EQ(navigator.Lines().size(), 3U);
}

TEST_F(NavigatorTest, ShowsWhatAnEntryNames) {
    main->Show({TableNum::ProcessTables, 0});
    main->SelectRow(0);
    EXPECT_EQ(navigator.Title(), "process table 0, entry 1 (GET LAMP) names 2 records");
    EXPECT_EQ(Texts(navigator.Named()).back(), "message 0: You lower the wick.");
}

TEST_F(NavigatorTest, GoesThereAndBackAndForward) {
    navigator.GoTo(navigator.Lines()[1].jump);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, 0}));
    EXPECT_EQ(main->Grid().KeyOf(main->CurrentRow()), 2);
    EXPECT_TRUE(navigator.Back());
    EXPECT_EQ(main->Grid().View().table, TableNum::Messages);
    EXPECT_EQ(main->CurrentRow(), 0);
    EXPECT_FALSE(navigator.Back());
    EXPECT_TRUE(navigator.Forward());
    EXPECT_EQ(main->Grid().KeyOf(main->CurrentRow()), 2);
    EXPECT_FALSE(navigator.Forward());
}

TEST_F(NavigatorTest, GoesBackWithinTheOpenAdventureOnly) {
    navigator.GoTo(navigator.Lines()[1].jump);
    ASSERT_TRUE(navigator.Back());
    navigator.GoTo(navigator.Lines()[1].jump);
    main->OpenFile(Make("other.fbd"));
    main->Show({TableNum::Locations});
    EXPECT_FALSE(navigator.Back());
    EXPECT_FALSE(navigator.Forward());
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Locations});
}

TEST_F(NavigatorTest, GoesBackToWhereTheFirstJumpInAnotherAdventureBegan) {
    navigator.GoTo(navigator.Lines()[1].jump);
    main->OpenFile(Make("other.fbd"));
    main->Show({TableNum::Locations});
    main->SelectRow(0);
    navigator.GoTo({{TableNum::Flags, 0}, 60});
    EXPECT_TRUE(navigator.Back());
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Locations});
    EXPECT_FALSE(navigator.Back());
}

TEST_F(NavigatorTest, GoesBackInACopyToWhereItWasInTheFirstFile) {
    navigator.GoTo(navigator.Lines()[1].jump);
    dialogs.AnswerFile(folder / "copy.fbd");
    ASSERT_TRUE(main->SaveAs());
    EXPECT_TRUE(navigator.Back());
    EXPECT_EQ(main->Grid().View().table, TableNum::Messages);
}

TEST_F(NavigatorTest, FindsRecordsByNumberWordsAndText) {
    EXPECT_THAT(Texts(navigator.Search("m1")), ElementsAre("message 1: It is dark."));
    EXPECT_THAT(Texts(navigator.Search("get lamp")),
                ElementsAre("process table 0, entry 1 (GET LAMP): LET 70 1 MESSAGE 0 DONE",
                            "process table 0, entry 2 (GET LAMP): MESSAGE 0 MESSAGE 1"));
    EXPECT_THAT(Texts(navigator.Search("WICK")), ElementsAre("message 0: You lower the wick."));
    EXPECT_THAT(navigator.Search("m99"), IsEmpty());
    EXPECT_THAT(navigator.Search(""), IsEmpty());
}

TEST_F(NavigatorTest, FindsATextWhereverOneCanBeReplaced) {
    using enum references::SearchedField::Form;
    for (const references::SearchedField& field : references::SearchedFields()) {
        if (field.form != Markup && field.form != Note) continue;
        Change change(main->CurrentContext().document, "edit a text");
        store::Cursor& records = Adventure().OpenTable(field.table, "def");
        if (records.Eof()) {
            records.AddNew();
            records.SetField(field.key, std::int64_t{0});
        }
        records.SetField(field.field, std::string("A quizzical beast."));
        records.Update();
        EXPECT_EQ(navigator.Search("quizzical").size(), 1U) << field.field;
    }
}

TEST_F(NavigatorTest, ShowsTheShortDescriptionOfALocationBeforeTheLongOne) {
    Change change(main->CurrentContext().document, "edit location 0");
    store::Cursor& location = Adventure().OpenTable(TableNum::Locations, "def", "locnum=0");
    location.SetField("locdesc", std::string("You stand on a quizzical beach."));
    location.SetField("locshortdesc", std::string("A quizzical beach."));
    location.Update();
    change.Commit();
    EXPECT_THAT(Texts(navigator.Search("quizzical")), ElementsAre("location 0: A quizzical beach."));
}

TEST_F(NavigatorTest, HasNothingWithoutAnAdventure) {
    main->Close();
    EXPECT_EQ(navigator.Title(), "");
    EXPECT_THAT(navigator.Lines(), IsEmpty());
    EXPECT_THAT(navigator.Search("a"), IsEmpty());
    EXPECT_FALSE(navigator.Back());
}

}  // namespace
}  // namespace fabula::authoring
