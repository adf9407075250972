#include "store/schema/schema_change.h"

#include <gtest/gtest.h>

#include "store/file/connection.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

class SchemaChanges : public testing::Test {
  protected:
    SchemaChanges() { test::MakeAdventure(file_); }

    /// A fresh adventure after `sql`, opened as one of any age.
    std::unique_ptr<Adventure> OpenAfter(const std::string& sql) const {
        test::RawDatabase(file_).Run(sql);
        return Adventure::Open(file_, OpenMode::ReadWrite, Ages::Any);
    }
    std::string Ask(const std::string& sql) const { return test::RawDatabase(file_).Ask(sql); }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "game.fbd";
};

constexpr const char* kWithoutSource =
    "ALTER TABLE Adventure DROP COLUMN source; DELETE FROM Tables WHERE fieldname='source'";

TEST_F(SchemaChanges, AFieldIsAddedBehindTheOthersAndNull) {
    const auto adventure = OpenAfter(kWithoutSource);
    Transaction step(*adventure);
    SchemaChange(*adventure).AddField(TableNum::Adventure, {"source", FieldType::VarWChar, 255});
    EXPECT_TRUE(adventure->OpenTable(TableNum::Adventure, "source").IsNull("source"));
    step.Commit();
    EXPECT_EQ(Ask("SELECT name FROM pragma_table_info('Adventure') ORDER BY cid DESC"), "source");
}

TEST_F(SchemaChanges, AFieldWhoseColumnIsThereTakesIt) {
    const auto adventure = OpenAfter("DELETE FROM Tables WHERE fieldname='source'");
    Transaction step(*adventure);
    SchemaChange(*adventure).AddField(TableNum::Adventure, {"source", FieldType::VarWChar, 255});
    EXPECT_EQ(adventure->OpenTable(TableNum::Adventure, "source").Text("source"), "Unknown");
    step.Commit();
}

TEST_F(SchemaChanges, GoWithTheirTransaction) {
    const auto adventure = OpenAfter(kWithoutSource);
    const std::string before = test::ReadBytes(file_);
    {
        const Transaction step(*adventure);
        SchemaChange change(*adventure);
        change.AddField(TableNum::Adventure, {"source", FieldType::VarWChar, 255});
        change.Finish();
    }
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(SchemaChanges, ATableThatIsMadeAnewKeepsItsRecords) {
    const auto adventure = OpenAfter("SELECT 1");
    Transaction step(*adventure);
    TableSchema schema = adventure->Schema(TableNum::ProcDesc);
    schema.fields[schema.Find("pmsgmsg").value()].type = FieldType::LongVarWChar;
    SchemaChange(*adventure).Redefine(TableNum::ProcDesc, schema, [](const Field&, text::Value value) {
        return value;
    });
    const Cursor& records = adventure->OpenTable(TableNum::ProcDesc, "*");
    EXPECT_EQ(records.RecordCount(), 3);
    EXPECT_EQ(records.Text("pmsgmsg"), "THE PROCESS TABLE");
    step.Commit();
}

TEST_F(SchemaChanges, TheLastMakesIndexesAndNumbersTheFile) {
    const auto adventure = OpenAfter("DROP INDEX Flags_flgnum; PRAGMA user_version=1");
    EXPECT_EQ(SchemaChange(*adventure).FileNumber(), 1);
    Transaction step(*adventure);
    SchemaChange(*adventure).Finish();
    step.Commit();
    EXPECT_EQ(Ask("SELECT count(*) FROM sqlite_schema WHERE name='Flags_flgnum'"), "1");
    EXPECT_EQ(Ask("PRAGMA user_version"), std::to_string(kFileVersion));
}

TEST_F(SchemaChanges, TheLastRefusesAFileThatStillLacksAField) {
    const auto adventure = OpenAfter(kWithoutSource);
    const Transaction step(*adventure);
    try {
        SchemaChange(*adventure).Finish();
        FAIL() << "it was finished";
    } catch (const OpenError& error) {
        EXPECT_EQ(error.what(),
                  "Could not upgrade " + file_.string() + ": its table Adventure is not complete.");
    }
}

TEST_F(SchemaChanges, ACopyInMemoryLeavesTheFileAlone) {
    const auto adventure = OpenAfter(kWithoutSource);
    const std::string before = test::ReadBytes(file_);
    const auto copy = adventure->CopyInMemory();
    copy->DeleteFrom(TableNum::Flags);
    EXPECT_TRUE(copy->OpenTable(TableNum::Flags, "*").Eof());
    EXPECT_FALSE(adventure->OpenTable(TableNum::Flags, "*").Eof());
    EXPECT_EQ(copy->CurrentFile(), file_);
    EXPECT_TRUE(test::ReadBytes(file_) == before);
    copy->ForbidChanges();
    EXPECT_THROW(copy->DeleteFrom(TableNum::Messages), Error);
}

TEST_F(SchemaChanges, AFileOfAnyAgeCanBeCopied) {
    const auto adventure = OpenAfter(kWithoutSource);
    adventure->SaveCopy(folder_ / "copy.fbd");
    EXPECT_NO_THROW(Adventure::Open(folder_ / "copy.fbd", OpenMode::ReadOnly, Ages::Any));
}

}  // namespace
}  // namespace fabula::store
