#include "authoring/desk/grid/table_rights.h"

#include <gtest/gtest.h>

#include "support/games/template_adventure.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

TEST(ReadTableRights, ReadsTheRecordOfTheKeyField) {
    const test::OpenedAdventure adventure;
    const TableRights locations = ReadTableRights(*adventure, TableNum::Locations);
    EXPECT_TRUE(locations.Allows(Command::Add));
    EXPECT_FALSE(locations.Allows(Command::AddBefore));
    EXPECT_TRUE(locations.Allows(Command::Delete));
    EXPECT_TRUE(locations.Allows(Command::Edit));
    EXPECT_FALSE(locations.Allows(Command::Load));
    EXPECT_FALSE(locations.Allows(Command::Save));
    EXPECT_TRUE(locations.Allows(Command::Print));
    EXPECT_TRUE(locations.Allows(Command::Preview));
    EXPECT_TRUE(locations.Allows(Command::BatchImport));
    EXPECT_TRUE(locations.Allows(Command::BatchExport));
    EXPECT_FALSE(locations.Allows(Command::Sort));
}

TEST(ReadTableRights, DifferByTable) {
    const test::OpenedAdventure adventure;
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::ProcessTables).addBefore);
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::Objects).changeSort);
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::Vocabulary).edit);
    EXPECT_FALSE(ReadTableRights(*adventure, TableNum::Codes).edit);
    EXPECT_FALSE(ReadTableRights(*adventure, TableNum::Flags).remove);
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::Characters).load);
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::Characters).save);
}

TEST(ReadTableRights, WithoutARecordAllowNothing) {
    const test::OpenedAdventure adventure;
    adventure->DeleteFrom(TableNum::Tables, "tablenum=1 and export=1");
    const TableRights rights = ReadTableRights(*adventure, TableNum::Locations);
    EXPECT_FALSE(rights.Allows(Command::Add));
    EXPECT_FALSE(rights.Allows(Command::Sort));
    EXPECT_TRUE(rights.Allows(Command::Find));
}

TEST(ReadTableRights, TakeTheBatchExportFromItsFieldAndFromNoOther) {
    const test::OpenedAdventure adventure;
    ASSERT_TRUE(ReadTableRights(*adventure, TableNum::Locations).batchExport);
    store::Cursor& row = adventure->OpenTable(TableNum::Tables, "def", "tablenum=1 and export=1");
    row.SetField("allowexp", std::string("N"));
    row.Update();
    EXPECT_FALSE(ReadTableRights(*adventure, TableNum::Locations).Allows(Command::BatchExport));
    EXPECT_TRUE(ReadTableRights(*adventure, TableNum::Locations).Allows(Command::Add));
}

TEST(ReadTableRights, OfAnOlderFileWithoutTheFieldForItOfferNoBatchExport) {
    const test::TempFolder folder;
    test::MakeAdventure(folder / "old.fbd");
    test::RawDatabase(folder / "old.fbd")
        .Run(
            "ALTER TABLE Tables DROP COLUMN allowexp; "
            "DELETE FROM Tables WHERE TableNum=12 AND fieldname='allowexp'");
    const auto old = store::Adventure::Open(folder / "old.fbd");
    const TableRights rights = ReadTableRights(*old, TableNum::Locations);
    EXPECT_FALSE(rights.Allows(Command::BatchExport));
    EXPECT_TRUE(rights.Allows(Command::Add));
}

TEST(FilterOf, ChoosesTheRecordsOfTheView) {
    EXPECT_EQ(FilterOf({TableNum::ProcessTables, 0}), "estype=0");
    EXPECT_EQ(FilterOf({TableNum::ProcessTables, 1}), "estype=1");
    EXPECT_EQ(FilterOf({TableNum::ProcessTables, 2}), "estype=2");
    EXPECT_EQ(FilterOf({TableNum::ProcessTables, kOtherProcesses}), "estype>2");
    EXPECT_EQ(FilterOf({TableNum::Tables}), "tablekey>=0");
    EXPECT_EQ(FilterOf({TableNum::DataBases}), "dbnum>=0");
    EXPECT_EQ(FilterOf({TableNum::Messages}), "");
}

TEST(TextsFor, NameTheRecordAndTheKey) {
    const TableView locations{TableNum::Locations};
    EXPECT_EQ(TextsFor(Command::Add, locations).text, "Add Location (CTRL/N)");
    EXPECT_EQ(TextsFor(Command::AddBefore, locations).text, "Add Location Before Current Entry");
    EXPECT_EQ(TextsFor(Command::Delete, locations).text, "Delete Location");
    EXPECT_EQ(TextsFor(Command::Edit, locations).text, "Edit Location (CTRL/E)");
    EXPECT_EQ(TextsFor(Command::Load, locations).text, "Load Location (CTRL/L)");
    EXPECT_EQ(TextsFor(Command::Print, locations).text, "Print Location");
    EXPECT_EQ(TextsFor(Command::Preview, locations).text, "Print Preview Location");
    EXPECT_EQ(TextsFor(Command::Save, locations).text, "Save Location");
}

TEST(TextsFor, CharacterSetsAddASet) {
    EXPECT_EQ(TextsFor(Command::Add, {TableNum::Characters}).text, "Add Character Set Set");
    EXPECT_EQ(TextsFor(Command::Add, {TableNum::Characters}).menuText, "&Add Character Set");
}

TEST(TextsFor, MenusShowTheKeyElsewhere) {
    EXPECT_EQ(TextsFor(Command::Add, {TableNum::Vocabulary}).text, "Add Vocabulary  (CTRL/N)");
    EXPECT_EQ(TextsFor(Command::Add, {TableNum::Vocabulary}).menuText, "&Add Vocabulary");
    EXPECT_EQ(TextsFor(Command::AddBefore, {TableNum::ProcessTables, 1}).menuText,
              "Add Process Record 1 &Before Current Entry");
    EXPECT_EQ(TextsFor(Command::Preview, {TableNum::Codes}).menuText, "Print Pre&view Special Code");
}

TEST(TextsFor, OtherCommandsAreThoseOfTheirTable) {
    EXPECT_EQ(TextsFor(Command::Open, {TableNum::Locations}).menuText, "&Open...");
    EXPECT_EQ(TextsFor(Command::Add, {TableNum::Package}).menuText, "&Add Entry");
}

TEST(CaptionWord, IsTheWordOfEachTable) {
    EXPECT_EQ(CaptionWord({TableNum::Locations}), "Location");
    EXPECT_EQ(CaptionWord({TableNum::Messages}), "Message");
    EXPECT_EQ(CaptionWord({TableNum::Objects}), "Object");
    EXPECT_EQ(CaptionWord({TableNum::Adventure}), "Adventure Settings");
    EXPECT_EQ(CaptionWord({TableNum::ProcessTables, 0}), "Process Record 0");
    EXPECT_EQ(CaptionWord({TableNum::ProcessTables, kOtherProcesses}), "Process Record 3 or above");
    EXPECT_EQ(CaptionWord({TableNum::SystemMessages}), "System Message");
    EXPECT_EQ(CaptionWord({TableNum::Vocabulary}), "Vocabulary ");
    EXPECT_EQ(CaptionWord({TableNum::Flags}), "Flag");
    EXPECT_EQ(CaptionWord({TableNum::CondActs}), "Condition/Action");
    EXPECT_EQ(CaptionWord({TableNum::DataBases}), "Database");
    EXPECT_EQ(CaptionWord({TableNum::Tables}), "Table");
    EXPECT_EQ(CaptionWord({TableNum::ProcDesc}), "Process Description");
    EXPECT_EQ(CaptionWord({TableNum::Header}), "Header");
    EXPECT_EQ(CaptionWord({TableNum::System}), "System");
    EXPECT_EQ(CaptionWord({TableNum::Codes}), "Special Code");
    EXPECT_EQ(CaptionWord({TableNum::Commands}), "Graphics Command");
    EXPECT_EQ(CaptionWord({TableNum::Characters}), "Character Set");
    EXPECT_EQ(CaptionWord({TableNum::Pictures}), "Picture Graphic");
    EXPECT_EQ(CaptionWord({TableNum::Templates}), "Template");
}

}  // namespace
}  // namespace fabula::authoring
