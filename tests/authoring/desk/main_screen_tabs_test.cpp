// Tabs and groups of rows in the main window.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk/search/navigator.h"
#include "authoring/main_screen_stand.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::ElementsAre;

class Tabs : public testing::Test {
  protected:
    Tabs() {
        stand_.OpenNew();
        for (const char* text : {"the lamp", "the door", "a lamp post"})
            stand_.StoreMessage(count_++, text);
        Main().Show({TableNum::Messages});
    }

    MainScreen& Main() { return *stand_.main; }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (int tab = 0; tab < Main().Tabs().Count(); ++tab)
            titles.push_back(Main().TabTitle(tab));
        return titles;
    }

    int count_ = 0;
    test::MainScreenStand stand_;
};

TEST_F(Tabs, AreOneThatShowsWhateverTheTreeOpens) {
    EXPECT_THAT(Titles(), ElementsAre("Messages"));
    Main().Show({TableNum::Flags});
    EXPECT_THAT(Titles(), ElementsAre("Flags"));
    EXPECT_FALSE(Main().StateOf(Command::CloseTab).enabled);
    EXPECT_EQ(Main().StateOf(Command::NextTab).why, "There is only one tab.");
}

TEST_F(Tabs, OfTablesKeepRowFilterAndOrder) {
    Main().SetFilter("lamp");
    Main().ClickColumn(1);
    Main().SelectRow(1);
    Main().OpenInTab({TableNum::Flags});
    Main().SelectRow(5);
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Flags"));
    Main().Run(Command::NextTab);
    EXPECT_EQ(Main().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(Main().Grid().Filter(), "lamp");
    EXPECT_EQ(Main().Grid().SortColumn(), 1);
    EXPECT_EQ(Main().CurrentRow(), 1);
    Main().Run(Command::PreviousTab);
    EXPECT_EQ(Main().Grid().View().table, TableNum::Flags);
    EXPECT_EQ(Main().CurrentRow(), 5);
}

TEST_F(Tabs, OfOneTableHaveAPlaceEach) {
    Main().SelectRow(0);
    Main().OpenInTab({TableNum::Messages});
    Main().SelectRow(2);
    Main().SetFilter("post");
    Main().GoToTab(0);
    EXPECT_EQ(Main().Grid().Filter(), "");
    EXPECT_EQ(Main().CurrentRow(), 0);
    Main().GoToTab(1);
    EXPECT_EQ(Main().Grid().Filter(), "post");
}

TEST_F(Tabs, OfARecordAreNamedByIt) {
    Main().SelectRow(1);
    Main().Run(Command::OpenInTab);
    EXPECT_TRUE(Main().IsRecordTab());
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Messages 1"));
    Main().SelectRow(2);
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Messages 2"));
    Main().Show({TableNum::Flags});
    EXPECT_FALSE(Main().IsRecordTab());
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Flags"));
}

TEST_F(Tabs, GiveWayToTheirNeighbourWhenTheyAreClosed) {
    Main().OpenInTab({TableNum::Flags});
    Main().Run(Command::CloseTab);
    EXPECT_THAT(Titles(), ElementsAre("Messages"));
    EXPECT_EQ(Main().Grid().View().table, TableNum::Messages);
}

TEST_F(Tabs, AreThereAgainAtTheNextStart) {
    Main().SelectRow(1);
    Main().Run(Command::OpenInTab);
    Main().OpenInTab({TableNum::Flags});
    Main().SelectRow(4);
    stand_.Restart();
    EXPECT_THAT(Titles(), ElementsAre("Messages", "Messages 1", "Flags"));
    EXPECT_EQ(Main().Tabs().Current(), 2);
    EXPECT_EQ(Main().CurrentRow(), 4);
}

TEST_F(Tabs, BelongToTheirAdventure) {
    const auto first = Main().CurrentContext().document.File();
    Main().OpenInTab({TableNum::Flags});
    Main().OpenFile(stand_.Make("other.fbd"));
    EXPECT_EQ(Main().Tabs().Count(), 1);
    Main().OpenFile(first);
    EXPECT_EQ(Main().Tabs().Count(), 2);
}

TEST_F(Tabs, AreNoStepOfUndo) {
    const auto before = Main().CurrentContext().document.UndoName();
    Main().OpenInTab({TableNum::Flags});
    Main().Run(Command::CloseTab);
    EXPECT_EQ(Main().CurrentContext().document.UndoName(), before);
}

/// A game with two places, a lamp and four entries.
class Groups : public testing::Test {
  protected:
    Groups() {
        stand_.OpenNew();
        Add(TableNum::Locations, {{"locnum", std::int64_t{7}}, {"locdesc", std::string("The Yard")}});
        Add(TableNum::Vocabulary, {{"vocindex", std::int64_t{9000}},
                                   {"word", std::string("LAMP")},
                                   {"vocnum", std::int64_t{60}},
                                   {"voctype", std::string("Noun")},
                                   {"voctypen", std::int64_t{2}}});
        Add(TableNum::Objects, {{"objnum", std::int64_t{4}},
                                {"objdesc", std::string("a lamp")},
                                {"objnoun", std::string("LAMP")},
                                {"objnumnoun", std::int64_t{60}}});
        AddEntry(0, "GET", 1, "LAMP", "AT 7 GET 4 DONE");
        AddEntry(1, "GET", 1, "_", "DONE");
        AddEntry(2, "DROP", 2, "LAMP", "NOTAT 7 DONE");
        AddEntry(3, "*", 0, "*", "PRESENT 4 AT 7 DESC");
        Main().Refresh();
        Main().Show({TableNum::ProcessTables, 0});
    }

    MainScreen& Main() { return *stand_.main; }
    void Add(TableNum table, const std::vector<std::pair<std::string, text::Value>>& fields) {
        store::Cursor& cursor = stand_.Adventure().OpenTable(table, "def");
        cursor.AddNew();
        for (const store::Field& field : cursor.Fields())
            cursor.SetField(field.name, Empty(field.type));
        for (const auto& [field, value] : fields)
            cursor.SetField(field, value);
        cursor.Update();
    }
    /// A file in which a record lacks a field is not opened again.
    static text::Value Empty(store::FieldType type) {
        if (store::ClassOf(type) == store::FieldClass::Text) return std::string();
        if (store::ClassOf(type) == store::FieldClass::Binary) return {};
        return std::int64_t{0};
    }
    void AddEntry(int key, const char* verb, int number, const char* noun, const char* line) {
        const bool isLamp = std::string_view(noun) == "LAMP";
        Add(TableNum::ProcessTables, {{"canum", std::int64_t{key}},
                                      {"w1", std::string(verb)},
                                      {"w2", std::string(noun)},
                                      {"w1num", std::int64_t{number}},
                                      {"w2num", std::int64_t{isLamp ? 60 : 255}},
                                      {"condacts", std::string(line)}});
    }
    /// Headings, and the keys of the entries below them.
    std::vector<std::string> Lines() {
        std::vector<std::string> shown;
        const TableGrid& grid = Main().Grid();
        for (int line = 0; line < grid.Lines().Count(); ++line) {
            const GridLine at = grid.Lines().At(line);
            shown.push_back(at.IsHeading() ? grid.Lines().Spoken(at.group)
                                           : std::to_string(grid.KeyOf(at.row)));
        }
        return shown;
    }

    test::MainScreenStand stand_;
};

TEST_F(Groups, AreByVerb) {
    Main().Run(Command::GroupByVerb);
    EXPECT_THAT(Lines(), ElementsAre("Any verb (*), 1 entry, unfolded", "3", "DROP, 1 entry, unfolded", "2",
                                     "GET, 2 entries, unfolded", "0", "1"));
}

TEST_F(Groups, AreByThePlaceOfTheFirstAt) {
    Main().Run(Command::GroupByPlace);
    EXPECT_THAT(Lines(), ElementsAre("7 The Yard, 2 entries, unfolded", "3", "0",
                                     "Anywhere, 2 entries, unfolded", "1", "2"));
}

TEST_F(Groups, AreByTheObjectThatIsNamedOrThatTheNounStandsFor) {
    Main().Run(Command::GroupByObject);
    EXPECT_THAT(Lines(), ElementsAre("4 a lamp, 3 entries, unfolded", "3", "0", "2",
                                     "No object, 1 entry, unfolded", "1"));
}

TEST_F(Groups, AreSwitchedOffByTheSameCommand) {
    Main().Run(Command::GroupByVerb);
    EXPECT_TRUE(Main().StateOf(Command::GroupByVerb).checked);
    Main().Run(Command::GroupByVerb);
    EXPECT_FALSE(Main().StateOf(Command::GroupByVerb).checked);
    EXPECT_THAT(Lines(), ElementsAre("3", "0", "1", "2"));
}

TEST_F(Groups, StayOnTheEntryThatIsCurrent) {
    Main().SelectRow(*Main().Grid().RowOf(2));
    Main().Run(Command::GroupByVerb);
    EXPECT_EQ(Main().Grid().KeyOf(Main().CurrentRow()), 2);
    EXPECT_EQ(Main().CurrentLine(), 3);
}

TEST_F(Groups, TakeTheirHeadingWhenTheRowIsFoldedAway) {
    Main().Run(Command::GroupByVerb);
    Main().SelectRow(*Main().Grid().RowOf(1));
    Main().FoldGroup(2, true);
    EXPECT_EQ(Main().CurrentRow(), -1);
    EXPECT_EQ(Main().CurrentLine(), 4);
    EXPECT_EQ(Main().StateOf(Command::Edit).why, "No record is selected.");
    Main().Refresh();
    EXPECT_EQ(Main().CurrentLine(), 4);
}

TEST_F(Groups, UnfoldForARowThatIsGoneTo) {
    Main().Run(Command::GroupByVerb);
    Main().Run(Command::FoldAll);
    EXPECT_EQ(Lines().size(), 3U);
    Navigator(Main()).GoTo({{TableNum::ProcessTables, 0}, 1});
    EXPECT_THAT(Lines(), ElementsAre("Any verb (*), 1 entry, folded", "DROP, 1 entry, folded",
                                     "GET, 2 entries, unfolded", "0", "1"));
    EXPECT_EQ(Main().CurrentLine(), 4);
}

TEST_F(Groups, CountWhatTheFilterLeaves) {
    Main().Run(Command::GroupByVerb);
    Main().SetFilter("lamp");
    EXPECT_THAT(Lines(), ElementsAre("DROP, 1 entry, unfolded", "2", "GET, 1 entry, unfolded", "0"));
}

TEST_F(Groups, AreThereAgainWhenTheAuthorComesBackAndAtTheNextStart) {
    Main().Run(Command::GroupByVerb);
    Main().FoldGroup(2, true);
    Main().Show({TableNum::ProcessTables, 1});
    EXPECT_EQ(Main().RowGrouping(), Grouping::None);
    Main().Show({TableNum::ProcessTables, 0});
    EXPECT_EQ(Lines().back(), "GET, 2 entries, folded");
    Main().Show({TableNum::Flags});
    stand_.Restart();
    ASSERT_EQ(Main().GetState(), MainScreen::State::Open);
    Main().Show({TableNum::ProcessTables, 0});
    EXPECT_EQ(Lines().back(), "GET, 2 entries, folded");
}

TEST_F(Groups, AreOfProcessTablesOnly) {
    Main().Show({TableNum::Flags});
    EXPECT_EQ(Main().StateOf(Command::GroupByVerb).why, "Only process tables are grouped.");
    EXPECT_EQ(Main().StateOf(Command::FoldAll).why, "The rows stand in no groups.");
}

TEST_F(Groups, FollowWhatIsEdited) {
    Main().Run(Command::GroupByVerb);
    store::Cursor& entry = stand_.Adventure().OpenTable(TableNum::ProcessTables, "w1", "canum=2");
    entry.SetField("w1", std::string("GET"));
    entry.Update();
    Main().Refresh();
    EXPECT_EQ(Lines().size(), 6U);
}

class UsesColumnTest : public Groups {
  protected:
    UsesColumnTest() {
        Main().Show({TableNum::Locations});
        Main().Run(Command::UsesColumn);
    }
    /// The key and the uses of each row.
    std::vector<std::string> Counts() {
        const TableGrid& grid = Main().Grid();
        int column = 0;
        while (!grid.Columns()[static_cast<std::size_t>(column)].uses)
            ++column;
        std::vector<std::string> counts;
        for (int row = 0; row < grid.RowCount(); ++row)
            counts.push_back(std::to_string(grid.KeyOf(row)) + ": " + grid.CellText(row, column));
        return counts;
    }

    std::optional<Navigator> navigator_{Main()};
};

TEST_F(UsesColumnTest, CountsTheUsesOfEachRecord) {
    Main().Run(Command::UsesColumn);
    Main().Run(Command::UsesColumn);
    EXPECT_THAT(Counts(), testing::Contains("7: 3"));
    Main().Show({TableNum::Objects});
    EXPECT_THAT(Counts(), testing::Contains("4: 2"));
}

TEST_F(UsesColumnTest, CountsThoseOfWordsByNumberAndType) {
    Main().Show({TableNum::Vocabulary});
    EXPECT_THAT(Counts(), testing::Contains("9000: 3"));
}

TEST_F(UsesColumnTest, FollowsEveryChange) {
    Main().Show({TableNum::Locations});
    const auto edit = [&](const char* line) {
        Change change(Main().CurrentContext().document, "edit");
        store::Cursor& entry = stand_.Adventure().OpenTable(TableNum::ProcessTables, "condacts", "canum=1");
        entry.SetField("condacts", std::string(line));
        entry.Update();
        change.Commit();
        Main().Refresh();
    };
    edit("AT 7 DONE");
    EXPECT_THAT(Counts(), testing::Contains("7: 4"));
    Main().Run(Command::Undo);
    EXPECT_THAT(Counts(), testing::Contains("7: 3"));
}

TEST_F(UsesColumnTest, SortsByTheCount) {
    Main().Show({TableNum::Flags});
    Main().Show({TableNum::Locations});
    const auto& columns = Main().Grid().Columns();
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
        if (!columns[static_cast<std::size_t>(column)].uses) continue;
        Main().ClickColumn(column);
        Main().ClickColumn(column);
        break;
    }
    EXPECT_EQ(Counts().front(), "7: 3");
}

TEST_F(UsesColumnTest, IsOfTablesThatCanBeNamed) {
    Main().Show({TableNum::ProcessTables, 0});
    EXPECT_EQ(Main().StateOf(Command::UsesColumn).enabled, false);
    for (const GridColumn& column : Main().Grid().Columns())
        EXPECT_FALSE(column.uses);
}

TEST_F(UsesColumnTest, IsNotSearchedByTheFilter) {
    Main().Show({TableNum::Locations});
    Main().SetFilter("3");
    for (int row = 0; row < Main().Grid().RowCount(); ++row)
        EXPECT_NE(Main().Grid().KeyOf(row), 7);
}

TEST_F(UsesColumnTest, IsRemembered) {
    navigator_.reset();
    stand_.Restart();
    EXPECT_TRUE(Main().StateOf(Command::UsesColumn).checked);
}

}  // namespace
}  // namespace fabula::authoring
