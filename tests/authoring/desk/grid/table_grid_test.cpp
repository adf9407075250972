#include "authoring/desk/grid/table_grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;

std::vector<std::string> Fields(const TableGrid& grid) {
    std::vector<std::string> fields;
    for (const GridColumn& column : grid.Columns())
        fields.push_back(column.field);
    return fields;
}

std::vector<std::string> Cells(const TableGrid& grid, int column) {
    std::vector<std::string> cells;
    for (int row = 0; row < grid.RowCount(); ++row)
        cells.push_back(grid.CellText(row, column));
    return cells;
}

TableGrid GridOf(store::Adventure& adventure, const TableView& view, bool maintenance = false) {
    TableGrid grid;
    grid.SetupGrid(adventure, view, maintenance);
    return grid;
}

void AddMessage(store::Adventure& adventure, int number, const std::string& text) {
    store::Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{number});
    messages.SetField("msgmsg", text);
    messages.Update();
}

void AddEntry(store::Adventure& adventure, int process) {
    store::Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "def");
    entries.AddNew();
    entries.SetField("canum", std::int64_t{process});
    entries.SetField("estype", std::int64_t{process});
    entries.Update();
}

/// Three messages, and what a grid says of them.
class TableGridTest : public testing::Test {
  protected:
    TableGridTest() {
        AddMessage(*adventure_, 0, "The lamp is on.");
        AddMessage(*adventure_, 1, "a door");
        AddMessage(*adventure_, 2, "Your LAMP is off.");
        grid_.SetupGrid(*adventure_, {TableNum::Messages}, false);
    }

    test::OpenedAdventure adventure_;
    TableGrid grid_;
};

TEST(SetupGrid, ShowsTheFieldsThatAreToBeSeenInTheirOrder) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::Locations})),
                ElementsAre("locnum", "exits", "picloc", "locshortdesc", "locdesc"));
}

TEST(SetupGrid, ShowsCommentsOnRequest) {
    const test::OpenedAdventure adventure;
    for (const TableNum table :
         {TableNum::Locations, TableNum::Messages, TableNum::Objects, TableNum::ProcessTables,
          TableNum::SystemMessages, TableNum::Vocabulary, TableNum::Flags, TableNum::ProcDesc,
          TableNum::Characters, TableNum::Pictures}) {
        TableGrid grid;
        grid.SetupGrid(*adventure, {table}, false, true);
        EXPECT_EQ(grid.Columns().back().title, "Comment") << static_cast<int>(table);
        grid.SetupGrid(*adventure, {table}, true, false);
        EXPECT_NE(grid.Columns().back().title, "Comment") << static_cast<int>(table);
    }
}

TEST(SetupGrid, ShowsMoreFieldsInTheMaintenanceView) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::Locations}, true)),
                ElementsAre("locnum", "numexits", "exits", "numericexits", "picloc", "pickey",
                            "locshortdesc", "locdesc", "oldpicloc"));
}

TEST(SetupGrid, TitlesColumnsByTheOtherNameOfAFieldOrElseByItsName) {
    const test::OpenedAdventure adventure;
    const TableGrid catalogue = GridOf(*adventure, {TableNum::CondActs});
    EXPECT_EQ(catalogue.Columns().front().title, "Number");
    EXPECT_EQ(catalogue.Columns().back().title, "PCVel");
}

TEST(SetupGrid, TitlesTheColumnsOfCharactersSoundsAndTemplatesInWords) {
    const test::OpenedAdventure adventure;
    const auto titles = [&](TableNum table) {
        std::vector<std::string> shown;
        const auto grid = GridOf(*adventure, {table});
        for (const GridColumn& column : grid.Columns())
            shown.push_back(column.title);
        return shown;
    };
    EXPECT_THAT(titles(TableNum::Characters),
                ElementsAre("Set", "Name of the set", "Character", "Rows of dots"));
    EXPECT_THAT(titles(TableNum::Sounds), ElementsAre("Note", "Frequency"));
    EXPECT_THAT(titles(TableNum::Templates), ElementsAre("Name", "Commands"));
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::Characters})),
                ElementsAre("CharSet", "charsetname", "charnum", "charvals"));
}

TEST(SetupGrid, TellsWhichColumnsMayBeWidenedAndWhichHoldNumbers) {
    const test::OpenedAdventure adventure;
    const TableGrid grid = GridOf(*adventure, {TableNum::Locations});
    EXPECT_FALSE(grid.Columns()[0].expand);
    EXPECT_TRUE(grid.Columns()[0].number);
    EXPECT_TRUE(grid.Columns()[4].expand);
    EXPECT_FALSE(grid.Columns()[4].number);
    EXPECT_EQ(grid.Columns()[4].width, 0);
}

TEST(SetupGrid, HidesWeightAdjectiveAndAttributesInAMarloAdventure) {
    const test::OpenedAdventure fabula;
    EXPECT_THAT(Fields(GridOf(*fabula, {TableNum::Objects})),
                ElementsAre("objnum", "objdesc", "objnoun", "objadject", "objlocdesc", "objloc",
                            "objweight", "objattr"));
    const test::OpenedAdventure marlo(AdventureKind::Marlo);
    EXPECT_THAT(Fields(GridOf(*marlo, {TableNum::Objects})),
                ElementsAre("objnum", "objdesc", "objnoun", "objlocdesc", "objloc"));
}

/// The keys of the rows.
std::vector<int> Keys(const TableGrid& grid) {
    std::vector<int> keys;
    for (int row = 0; row < grid.RowCount(); ++row)
        keys.push_back(grid.KeyOf(row));
    return keys;
}

TEST(SetupGrid, ShowsOneProcessAtATimeAndAllFromThreeTogether) {
    const test::OpenedAdventure adventure;
    for (const int process : {0, 1, 2, 3, 7})
        AddEntry(*adventure, process);
    for (const int process : {0, 1, 2})
        EXPECT_THAT(Keys(GridOf(*adventure, {TableNum::ProcessTables, process})), ElementsAre(process));
    EXPECT_THAT(Keys(GridOf(*adventure, {TableNum::ProcessTables, kOtherProcesses})), ElementsAre(3, 7));
}

TEST(SetupGrid, LeavesTheNumberOfTheProcessOutWhereOneIsInView) {
    const test::OpenedAdventure adventure;
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::ProcessTables, 0})),
                ElementsAre("w1", "w2", "CondActs"));
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::ProcessTables, kOtherProcesses})),
                ElementsAre("estype", "w1", "w2", "CondActs"));
}

TEST(SetupGrid, OfEveryTableReadsItsRecords) {
    const test::OpenedAdventure adventure;
    for (const store::TableEntry& table : store::AllTables()) {
        const TableGrid grid = GridOf(*adventure, {table.number}, true);
        EXPECT_FALSE(grid.Columns().empty()) << table.name;
        if (table.number == TableNum::ProcessTables) continue;
        EXPECT_EQ(grid.RecordCount(), adventure->OpenTable(table.number, "def").RecordCount())
            << table.name;
    }
}

TEST(SetupGrid, CountsTheRecordsOfATableWhoseKeyIsAText) {
    const test::OpenedAdventure adventure;
    const TableGrid templates = GridOf(*adventure, {TableNum::Templates});
    ASSERT_EQ(templates.RowCount(), 2);
    EXPECT_EQ(templates.KeyOf(0), 1);
    EXPECT_EQ(templates.KeyOf(1), 2);
}

TEST(SetupGrid, ShowsTruthValuesInWords) {
    const test::OpenedAdventure adventure;
    const TableGrid flags = GridOf(*adventure, {TableNum::Flags});
    EXPECT_EQ(flags.CellText(0, 4), "Yes");
    EXPECT_EQ(flags.CellText(*flags.RowOf(1000), 4), "No");
}

TEST(SetupGrid, PassesOverAFieldThatTheTableDoesNotHave) {
    const test::OpenedAdventure adventure;
    store::Cursor& row = adventure->OpenTable(TableNum::Tables, "def", "tablenum=2 and fieldname='msgmsg'");
    row.SetField("fieldname", std::string("ghost"));
    row.Update();
    EXPECT_THAT(Fields(GridOf(*adventure, {TableNum::Messages})), ElementsAre("msgnum"));
}

TEST_F(TableGridTest, FindsRowsByTheirKeys) {
    EXPECT_EQ(grid_.RowCount(), 3);
    EXPECT_EQ(grid_.KeyOf(2), 2);
    EXPECT_EQ(grid_.RowOf(1), 1);
    EXPECT_EQ(grid_.RowOf(9), std::nullopt);
}

TEST_F(TableGridTest, FindsOfSeveralRowsWithOneKeyTheNearest) {
    AddMessage(*adventure_, 0, "again");
    AddMessage(*adventure_, 0, "and again");
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.RowOf(0, 0), 0);
    EXPECT_EQ(grid_.RowOf(0, 4), 2);
}

TEST_F(TableGridTest, ShowsLineEndsAndHardSpacesAsSignsOnOneLine) {
    AddMessage(*adventure_, 3, "one\u008Ctwo\x7Fthree\u008C");
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.CellText(3, 1), "one\u21B5two\u2423three\u21B5");
    EXPECT_EQ(grid_.FullText(3, 1), "one\ntwo three\n");
}

TEST_F(TableGridTest, CutsALongTextInItsCellOnly) {
    const std::string text(TableGrid::kLongestCell + 1, 'x');
    AddMessage(*adventure_, 3, text);
    AddMessage(*adventure_, 4, text.substr(1));
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.CellText(3, 1), std::string(TableGrid::kLongestCell, 'x') + "\u2026");
    EXPECT_EQ(grid_.FullText(3, 1), text);
    EXPECT_EQ(grid_.CellText(4, 1), std::string(TableGrid::kLongestCell, 'x'));
}

TEST_F(TableGridTest, CutsAVeryLongTextInItsTipToo) {
    AddMessage(*adventure_, 3, std::string(1'000'000, 'x'));
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.FullText(3, 1), std::string(TableGrid::kLongestTip, 'x') + "\u2026");
}

TEST_F(TableGridTest, ANumberBeyondItsFieldIsNotTakenForAnotherKey) {
    const int rows = grid_.RowCount();
    adventure_.Close();
    test::RawDatabase(adventure_.File()).Run("INSERT INTO Messages (msgnum) VALUES (4294967296)");
    adventure_.Reopen();
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.KeyOf(rows), 2147483647);
}

TEST_F(TableGridTest, FiltersByATextInAnyColumnCaseIgnored) {
    grid_.SetFilter("lAmp");
    EXPECT_THAT(Cells(grid_, 0), ElementsAre("0", "2"));
    EXPECT_EQ(grid_.RecordCount(), 3);
    grid_.SetFilter("1");
    EXPECT_THAT(Cells(grid_, 1), ElementsAre("a door"));
    grid_.SetFilter("nothing has this");
    EXPECT_EQ(grid_.RowCount(), 0);
    grid_.SetFilter("");
    EXPECT_EQ(grid_.RowCount(), 3);
}

TEST_F(TableGridTest, FiltersWildCardsAsTheyStand) {
    grid_.SetFilter("%");
    EXPECT_EQ(grid_.RowCount(), 0);
}

TEST_F(TableGridTest, FiltersWithoutReadingTheTableAgain) {
    AddMessage(*adventure_, 3, "a new lamp");
    grid_.SetFilter("lamp");
    EXPECT_EQ(grid_.RowCount(), 2);
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.RowCount(), 3);
}

TEST_F(TableGridTest, SortsByAColumnUpThenDownThenNotAtAll) {
    grid_.ClickColumn(1);
    EXPECT_THAT(Cells(grid_, 1), ElementsAre("a door", "The lamp is on.", "Your LAMP is off."));
    EXPECT_EQ(grid_.SortColumn(), 1);
    EXPECT_FALSE(grid_.SortsDown());
    grid_.ClickColumn(1);
    EXPECT_THAT(Cells(grid_, 1), ElementsAre("Your LAMP is off.", "The lamp is on.", "a door"));
    EXPECT_TRUE(grid_.SortsDown());
    grid_.ClickColumn(1);
    EXPECT_THAT(Cells(grid_, 0), ElementsAre("0", "1", "2"));
    EXPECT_EQ(grid_.SortColumn(), std::nullopt);
}

TEST_F(TableGridTest, SortsNumbersByValue) {
    AddMessage(*adventure_, 10, "ten");
    AddMessage(*adventure_, 9, "nine");
    grid_.Refresh(*adventure_);
    grid_.ClickColumn(0);
    grid_.ClickColumn(0);
    EXPECT_THAT(Cells(grid_, 0), ElementsAre("10", "9", "2", "1", "0"));
}

TEST_F(TableGridTest, KeepsFilterAndOrderWhenItIsRead) {
    grid_.SetFilter("lamp");
    grid_.ClickColumn(1);
    grid_.ClickColumn(1);
    AddMessage(*adventure_, 3, "Zoe's lamp");
    grid_.Refresh(*adventure_);
    EXPECT_THAT(Cells(grid_, 0), ElementsAre("3", "2", "0"));
    grid_.SetupGrid(*adventure_, {TableNum::Messages}, false);
    EXPECT_EQ(grid_.Filter(), "");
    EXPECT_EQ(grid_.SortColumn(), std::nullopt);
}

TEST_F(TableGridTest, FindsTheFirstRowThatIsNewOrDiffers) {
    AddMessage(*adventure_, 4, "four");
    grid_.Refresh(*adventure_);
    const TableGrid before = grid_;
    EXPECT_EQ(grid_.FirstChange(before), std::nullopt);
    AddMessage(*adventure_, 3, "three");
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.FirstChange(before), 3);
    store::Cursor& door = adventure_->OpenTable(TableNum::Messages, "def", "msgnum=1");
    door.SetField("msgmsg", std::string("a window"));
    door.Update();
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.FirstChange(before), 1);
}

TEST_F(TableGridTest, FindsTheRowBehindARecordThatIsGone) {
    const TableGrid before = grid_;
    adventure_->DeleteFrom(TableNum::Messages, "msgnum=1");
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.FirstChange(before), 1);
    adventure_->DeleteFrom(TableNum::Messages);
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.FirstChange(before), std::nullopt);
}

TEST_F(TableGridTest, FindsAChangeAmongRecordsWithOneKey) {
    AddMessage(*adventure_, 1, "a second door");
    grid_.Refresh(*adventure_);
    const TableGrid before = grid_;
    AddMessage(*adventure_, 1, "a third door");
    grid_.Refresh(*adventure_);
    EXPECT_EQ(grid_.CellText(*grid_.FirstChange(before), 1), "a third door");
}

TEST_F(TableGridTest, FindsNoChangeInARowThatOnlyMoved) {
    const TableGrid before = grid_;
    grid_.ClickColumn(1);
    EXPECT_EQ(grid_.FirstChange(before), std::nullopt);
}

TEST_F(TableGridTest, KeepsTheWidthOfAColumnThatMayBeWidened) {
    store::Cursor& row =
        adventure_->OpenTable(TableNum::Tables, "def", "tablenum=2 and fieldname='msgmsg'");
    row.SetField("expand", std::string("Y"));
    row.Update();
    grid_.SetupGrid(*adventure_, {TableNum::Messages}, false);
    grid_.ResizeColumn(*adventure_, 1, 333);
    EXPECT_EQ(grid_.Columns()[1].width, 333);
    EXPECT_EQ(GridOf(*adventure_, {TableNum::Messages}).Columns()[1].width, 333);
}

TEST_F(TableGridTest, DoesNotKeepTheWidthOfAnyOtherColumn) {
    grid_.ResizeColumn(*adventure_, 0, 333);
    EXPECT_EQ(grid_.Columns()[0].width, 0);
    EXPECT_EQ(GridOf(*adventure_, {TableNum::Messages}).Columns()[0].width, 0);
}

TEST_F(TableGridTest, KeepsNoWidthThatTheTableCouldNotHold) {
    grid_.ResizeColumn(*adventure_, 1, 1'000'000);
    EXPECT_EQ(GridOf(*adventure_, {TableNum::Messages}).Columns()[1].width, 32767);
}

}  // namespace
}  // namespace fabula::authoring
