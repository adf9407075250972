#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk/main_screen.h"
#include "authoring/main_screen_stand.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;

class ViewsTest : public testing::Test, public test::MainScreenStand {};

TEST_F(ViewsTest, OfANodeIsItsTable) {
    OpenNew();
    main->ShowNode(2);
    EXPECT_EQ(main->Grid().View(), TableView{TableNum::Locations});
    EXPECT_EQ(main->TableStatus(), "Locations - 1 record");
    EXPECT_EQ(main->CurrentNode()->name, "Locations");
    main->ShowNode(9);
    EXPECT_EQ(main->CurrentNode()->name, "Response (P0)");
    main->ShowNode(999);
    EXPECT_EQ(main->CurrentNode()->name, "Response (P0)");
}

TEST_F(ViewsTest, AreKeptInTheSettings) {
    OpenNew();
    main->Show({TableNum::ProcessTables, 2});
    EXPECT_EQ(Setting("CurrentSet"), "6");
    EXPECT_EQ(Setting("CurrentESNum"), "2");
    EXPECT_EQ(main->CurrentContext().currentESNum, 2);
    main->Show({TableNum::Flags});
    EXPECT_EQ(Setting("CurrentSet"), "9");
}

TEST_F(ViewsTest, ThatTheAdventureDoesNotHaveAreTheFirstProcess) {
    main->OpenFile(Make("plain.fbd"));
    OpenNew(AdventureKind::Marlo);
    main->Show({TableNum::Characters});
    main->OpenFile(folder / "plain.fbd");
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, 0}));
}

TEST_F(ViewsTest, FollowTheSessionToAnotherProcess) {
    OpenNew();
    main->Show({TableNum::ProcessTables, 0});
    const auto request = main->Run(Command::Add);
    ASSERT_TRUE(request.has_value());
    main->ScreenClosed(*request);
    EXPECT_EQ(main->Grid().View(), (TableView{TableNum::ProcessTables, 2}));
}

TEST_F(ViewsTest, TellHowManyRowsAFilterLeaves) {
    OpenNew();
    main->Show({TableNum::CondActs});
    main->SetFilter("message");
    EXPECT_LT(main->Grid().RowCount(), main->Grid().RecordCount());
    EXPECT_EQ(main->TableStatus(), "Conditions and Actions - " +
                                       std::to_string(main->Grid().RecordCount()) + " records, " +
                                       std::to_string(main->Grid().RowCount()) + " shown");
}

TEST_F(ViewsTest, StayOnTheRecordWhenTheyAreFilteredAndSorted) {
    OpenNew();
    StoreMessage(0, "b lamp");
    StoreMessage(1, "c");
    StoreMessage(2, "a lamp");
    main->Show({TableNum::Messages});
    main->SelectRow(2);
    main->SetFilter("lamp");
    EXPECT_EQ(main->CurrentRow(), 1);
    main->ClickColumn(1);
    EXPECT_EQ(main->CurrentRow(), 0);
    EXPECT_EQ(main->CurrentContext().currentEntry, 2);
    main->SetFilter("");
    EXPECT_EQ(main->CurrentRow(), 0);
}

TEST_F(ViewsTest, KeepTheWidthsOfColumnsWithoutAStepOfUndo) {
    OpenNew();
    main->Show({TableNum::Messages});
    main->ResizeColumn(1, 444);
    main->Show({TableNum::Flags});
    main->Show({TableNum::Messages});
    EXPECT_EQ(main->Grid().Columns()[1].width, 444);
    EXPECT_FALSE(main->StateOf(Command::Undo).enabled);
}

TEST(MaintenanceView, ShowsTheProgramsTablesAndFields) {
    test::MainScreenStand window(true);
    window.OpenNew();
    window.main->Show({TableNum::Tables});
    EXPECT_EQ(window.main->CurrentNode()->name, "Tables");
    EXPECT_EQ(window.main->Grid().Columns()[0].field, "tablekey");
    window.main->Show({TableNum::Vocabulary});
    EXPECT_EQ(window.main->Grid().Columns()[0].field, "vocindex");
}

TEST_F(ViewsTest, OfProcessTablesShowNamesOnRequestAndFilterByThem) {
    OpenNew();
    StoreMessage(1, "Dark!");
    {
        Change change(main->CurrentContext().document, "entry");
        store::Cursor& entry = Adventure().OpenTable(TableNum::ProcessTables, "def");
        entry.AddNew();
        entry.SetField("canum", std::int64_t{999});
        entry.SetField("estype", std::int64_t{0});
        entry.SetField("condacts", std::string("MESSAGE 1 DONE"));
        entry.Update();
        change.Commit();
    }
    main->Show({TableNum::ProcessTables, 0});
    const auto line = [&] {
        const auto& columns = main->Grid().Columns();
        const int row = main->Grid().RowOf(999).value();
        for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
            if (columns[static_cast<std::size_t>(column)].title == "CondActs")
                return main->Grid().CellText(row, column);
        }
        return std::string("no column");
    };
    EXPECT_EQ(line(), "MESSAGE 1 DONE");
    main->ShowNames(true);
    EXPECT_EQ(line(), "MESSAGE 1 \u201CDark!\u201D  \u00B7  DONE");
    main->SetFilter("dark!");
    EXPECT_EQ(main->Grid().RowCount(), 1);
    main->ShowNames(false);
    EXPECT_EQ(main->Grid().RowCount(), 0);
    main->SetFilter("");
    EXPECT_EQ(line(), "MESSAGE 1 DONE");
}

TEST_F(ViewsTest, OfTextsAndEntriesHaveARecordBesideTheRows) {
    OpenNew();
    StoreMessage(1, "Dark!");
    main->Show({TableNum::Messages});
    const auto message = main->RecordBeside();
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->screen, Screen::Text);
    EXPECT_EQ(message->key.key, 1);
    main->Show({TableNum::Locations});
    ASSERT_TRUE(main->RecordBeside().has_value());
    EXPECT_EQ(main->RecordBeside()->screen, Screen::Location);
}

TEST_F(ViewsTest, OfWordsHaveARecordBesideTheRowsUnlessTheyAreReserved) {
    OpenNew();
    store::Cursor& words = Adventure().OpenTable(TableNum::Vocabulary, "def");
    for (const auto& [key, type] : {std::pair(9000, 2), std::pair(9001, 7)}) {
        words.AddNew();
        words.SetField("vocindex", std::int64_t{key});
        words.SetField("word", "W" + std::to_string(key));
        words.SetField("vocnum", std::int64_t{99});
        words.SetField("voctypen", std::int64_t{type});
        words.Update();
    }
    main->Show({TableNum::Vocabulary});
    main->SelectRow(main->Grid().RowOf(9000).value());
    ASSERT_TRUE(main->RecordBeside().has_value());
    EXPECT_EQ(main->RecordBeside()->screen, Screen::Word);
    main->SelectRow(main->Grid().RowOf(9001).value());
    EXPECT_FALSE(main->RecordBeside().has_value());
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(ViewsTest, WhoseRecordsCannotBeEditedHaveNoneBesideTheRowsAndSayNothing) {
    OpenNew();
    for (const TableNum table :
         {TableNum::Adventure, TableNum::CondActs, TableNum::ProcDesc, TableNum::Messages}) {
        main->Show({table});
        EXPECT_FALSE(main->RecordBeside().has_value()) << static_cast<int>(table);
    }
    EXPECT_TRUE(Boxes().empty());
}

}  // namespace
}  // namespace fabula::authoring
