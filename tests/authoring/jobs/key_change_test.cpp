#include "authoring/jobs/key_change.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using ShownChange = platform::ScriptedDialogs::Shown;
using store::TableNum;

class KeyChange : public testing::Test {
  protected:
    /// The screen on the records of a table under a key.
    KeyChangeScreen Open(std::string_view table, const std::string& key) {
        KeySelectScreen select(desk_.context);
        select.table = table;
        select.key = key;
        return KeyChangeScreen(desk_.context, select.Select().value());
    }
    KeyChangeScreen OpenEntries(const char* process, const char* w1, const char* w2) {
        KeySelectScreen select(desk_.context);
        select.table = "ProcessTables";
        select.process = process;
        select.w1 = w1;
        select.w2 = w2;
        return KeyChangeScreen(desk_.context, select.Select().value());
    }

    test::Desk desk_;
};

TEST_F(KeyChange, OffersTheTablesThatMayBeRepaired) {
    const KeySelectScreen select(desk_.context);
    EXPECT_THAT(select.Tables(), testing::UnorderedElementsAre("Locations", "Messages", "Objects",
                                                               "ProcessTables", "SystemMessages", "Flags",
                                                               "ProcDesc", "Characters", "Pictures"));
}

TEST_F(KeyChange, AsksForATable) {
    KeySelectScreen select(desk_.context);
    EXPECT_FALSE(select.Select());
    EXPECT_EQ(desk_.dialogs.Boxes(), (std::vector<ShownChange>{{"Must make a Table Selection", "Error"}}));
}

TEST_F(KeyChange, SaysThatNoRecordHasTheKey) {
    KeySelectScreen select(desk_.context);
    select.table = "Messages";
    select.key = " 77 ";
    EXPECT_FALSE(select.Select());
    select.key = "x";
    EXPECT_FALSE(select.Select());
    EXPECT_EQ(desk_.dialogs.Boxes(), (std::vector<ShownChange>{{"There are no records with 77", "Error"},
                                                               {"There are no records with x", "Error"}}));
}

TEST_F(KeyChange, ExplainsTheKeysOfProcesses) {
    KeySelectScreen select(desk_.context);
    EXPECT_EQ(select.Explanation(), "");
    select.table = "ProcessTables";
    EXPECT_EQ(
        select.Explanation(),
        "The Table Key for Processes is CaNum, which is not shown on Process Table Views. However, "
        "CaNum is the number which determines in what order the W1, W2 entries are shown. Process "
        "duplicate key entries are looked up using the Process Table number (EsType), W1 and W2. You "
        "may then look at the bad key number shown on the Duplicate Key listing and determine whether "
        "the entry is in the wrong place or not. YOU WILL HAVE TO CHANGE ONE OF THE BAD KEYS OR IT "
        "WILL KEEP COMING UP AS AN ERROR!!");
}

TEST_F(KeyChange, AQuoteInAWordIsNoPartOfTheFilter) {
    KeySelectScreen select(desk_.context);
    select.table = "ProcessTables";
    select.process = "0";
    select.w1 = "x' or canum>=0 or w1='";
    EXPECT_FALSE(select.Select());
}

TEST_F(KeyChange, GivesOneOfTwoRecordsAFreeKeyWithAllItsFields) {
    desk_.Clear(TableNum::Messages);
    desk_.Add(TableNum::Messages, {{"msgnum", 5}, {"msgmsg", std::string("one")}});
    desk_.Add(TableNum::Messages, {{"msgnum", 5}, {"msgmsg", std::string("two")}});
    KeyChangeScreen screen = Open("Messages", "5");
    ASSERT_EQ(screen.Rows().size(), 2u);
    EXPECT_EQ(screen.Rows()[1].shown, "two");
    EXPECT_EQ(screen.Instruction(), "");
    EXPECT_TRUE(screen.SetKey(1, "7"));
    EXPECT_TRUE(screen.Finish());
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum, msgmsg"),
              (std::vector<std::string>{"5|one", "7|two"}));
}

TEST_F(KeyChange, IsOneStepOfUndo) {
    desk_.Clear(TableNum::Messages);
    desk_.Add(TableNum::Messages, {{"msgnum", 5}, {"msgmsg", std::string("one")}});
    desk_.Add(TableNum::Messages, {{"msgnum", 5}, {"msgmsg", std::string("two")}});
    desk_.Add(TableNum::Messages, {{"msgnum", 5}, {"msgmsg", std::string("three")}});
    const test::Snapshot before = desk_.Everything();
    KeyChangeScreen screen = Open("Messages", "5");
    screen.SetKey(0, "6");
    screen.SetKey(2, "7");
    EXPECT_TRUE(screen.Finish());
    EXPECT_EQ(desk_.document.UndoName(), "change key 5");
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum, msgmsg", "", "msgnum"),
              (std::vector<std::string>{"5|two", "6|one", "7|three"}));
    desk_.document.Undo();
    EXPECT_EQ(desk_.Everything(), before);
}

TEST_F(KeyChange, LeavesDuplicatesThatNobodyChanged) {
    desk_.Clear(TableNum::Messages);
    desk_.Add(TableNum::Messages, {{"msgnum", 5}});
    desk_.Add(TableNum::Messages, {{"msgnum", 5}});
    EXPECT_TRUE(Open("Messages", "5").Finish());
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum").size(), 2u);
    EXPECT_FALSE(desk_.document.UndoName());
}

TEST_F(KeyChange, RefusesAKeyThatARecordHas) {
    desk_.Clear(TableNum::Messages);
    for (const int key : {5, 5, 6})
        desk_.Add(TableNum::Messages, {{"msgnum", key}});
    KeyChangeScreen screen = Open("Messages", "5");
    screen.SetKey(0, "6");
    EXPECT_FALSE(screen.Finish());
    EXPECT_EQ(desk_.dialogs.Boxes(),
              (std::vector<ShownChange>{{"Already a record with a key of 6", "Error"}}));
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum"), (std::vector<std::string>{"5", "5", "6"}));
}

TEST_F(KeyChange, RefusesOneKeyForTwoRecords) {
    desk_.Clear(TableNum::Messages);
    for (const int key : {5, 5})
        desk_.Add(TableNum::Messages, {{"msgnum", key}});
    KeyChangeScreen screen = Open("Messages", "5");
    screen.SetKey(0, "6");
    screen.SetKey(1, "6");
    EXPECT_FALSE(screen.Finish());
    EXPECT_EQ(desk_.dialogs.Boxes(), (std::vector<ShownChange>{{"More than 1 record in key 6", "Error"}}));
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum"), (std::vector<std::string>{"5", "5"}));
}

TEST_F(KeyChange, RefusesAKeyThatIsNoNumber) {
    desk_.Clear(TableNum::Messages);
    desk_.Add(TableNum::Messages, {{"msgnum", 5}});
    KeyChangeScreen screen = Open("Messages", "5");
    EXPECT_FALSE(screen.SetKey(0, "x"));
    EXPECT_EQ(screen.Rows()[0].key, "5");
    EXPECT_EQ(desk_.dialogs.Boxes(),
              (std::vector<ShownChange>{{"The value for msgnum is not numeric", "Error"}}));
}

TEST_F(KeyChange, ComparesAProcessKeyOverTheWholeTable) {
    desk_.AddEntry(1, 0, {"_", 255}, {"_", 255}, "DONE");
    desk_.AddEntry(2, 5, {"_", 255}, {"_", 255}, "DONE");
    KeyChangeScreen screen = OpenEntries("0", "_", "_");
    EXPECT_FALSE(screen.Instruction().empty());
    EXPECT_FALSE(screen.SetKey(0, "2"));
    EXPECT_EQ(desk_.dialogs.Boxes(), (std::vector<ShownChange>{{"The value 2 is already used", "Error"}}));
    EXPECT_EQ(screen.Rows()[0].key, "1");
}

TEST_F(KeyChange, ListsTheFreeNumbersAtTheThirdTry) {
    for (const int key : {0, 3, 6})
        desk_.AddEntry(key, 0, {"_", 255}, {"_", 255}, "DONE");
    KeyChangeScreen screen = OpenEntries("0", "_", "_");
    screen.SetKey(0, "3");
    screen.SetKey(0, "6");
    EXPECT_TRUE(desk_.dialogs.Reports().empty());
    screen.SetKey(0, "3");
    EXPECT_EQ(desk_.dialogs.Reports(),
              (std::vector<ShownChange>{
                  {"You have made 3 tries to find an unused CaNum.  Below are a list of UnUsed CaNums.\n"
                   "Keep in mind that most duplicate keys are caused by the first key on a view being "
                   "overwritten. A record's correct key should be low.\n1, 2, 4, 5",
                   "UnUsed CaNums"}}));
}

TEST_F(KeyChange, ListsTheFreeNumbersAlsoWhenThereAreMany) {
    desk_.AddEntry(20000, 0, {"_", 255}, {"_", 255}, "DONE");
    desk_.AddEntry(20001, 0, {"_", 255}, {"_", 255}, "DONE");
    KeyChangeScreen screen = OpenEntries("0", "_", "_");
    for (int i = 0; i < 3; ++i)
        screen.SetKey(0, "20001");
    ASSERT_EQ(desk_.dialogs.Reports().size(), 1u);
    EXPECT_TRUE(desk_.dialogs.Reports()[0].text.ends_with(", 19998, 19999"));
}

TEST_F(KeyChange, GivesTheOneOfTwoEntriesThatWasChosenItsPlace) {
    desk_.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DONE");
    desk_.AddEntry(4, 0, {"_", 255}, {"_", 255}, "OK");
    KeyChangeScreen screen = OpenEntries("0", "_", "_");
    ASSERT_EQ(screen.Rows().size(), 2u);
    EXPECT_TRUE(screen.SetKey(1, "1"));
    EXPECT_TRUE(screen.Finish());
    EXPECT_EQ(desk_.Rows(TableNum::ProcessTables, "canum, condacts, numericcondacts, numcas", "", "canum"),
              (std::vector<std::string>{"1|OK|267|1", "4|DONE|265|1"}));
}

struct TableCase {
    const char* table;
    TableNum number;
    const char* key;
};

class EachTable : public KeyChange, public testing::WithParamInterface<TableCase> {};

TEST_P(EachTable, KeepsAllFieldsOfTheRecord) {
    const TableCase& c = GetParam();
    desk_.Clear(c.number);
    store::Cursor& records = desk_.Adventure().OpenTable(c.number, "*");
    for (const int copy : {1, 2}) {
        records.AddNew();
        for (const store::Field& field : desk_.Adventure().Schema(c.number).fields) {
            const auto kind = store::ClassOf(field.type);
            if (kind == store::FieldClass::Text) records.SetField(field.name, std::to_string(copy));
            if (kind == store::FieldClass::Number) records.SetField(field.name, std::int64_t{copy});
            if (kind == store::FieldClass::Truth) records.SetField(field.name, std::int64_t{1});
            if (kind == store::FieldClass::Binary)
                records.SetField(field.name, text::Blob{std::byte{7}, std::byte{8}});
        }
        records.SetField(c.key, std::int64_t{5});
        records.Update();
    }
    const auto others = [&] {
        std::vector<std::string> fields;
        for (const store::Field& field : desk_.Adventure().Schema(c.number).fields) {
            if (field.name != c.key) fields.push_back(field.name);
        }
        std::string list;
        for (const std::string& field : fields)
            list += (list.empty() ? "" : ", ") + field;
        return desk_.Rows(c.number, list);
    };
    const auto before = others();
    KeyChangeScreen screen = Open(c.table, "5");
    ASSERT_EQ(screen.Rows().size(), 2u);
    EXPECT_TRUE(screen.SetKey(1, "9"));
    EXPECT_TRUE(screen.Finish());
    EXPECT_EQ(desk_.Rows(c.number, c.key), (std::vector<std::string>{"5", "9"}));
    EXPECT_EQ(others(), before);
}

INSTANTIATE_TEST_SUITE_P(Tables, EachTable,
                         testing::Values(TableCase{"Locations", TableNum::Locations, "locnum"},
                                         TableCase{"Objects", TableNum::Objects, "objnum"},
                                         TableCase{"Messages", TableNum::Messages, "msgnum"},
                                         TableCase{"SystemMessages", TableNum::SystemMessages, "smsgnum"},
                                         TableCase{"Pictures", TableNum::Pictures, "locnum"},
                                         TableCase{"Flags", TableNum::Flags, "flgnum"},
                                         TableCase{"ProcDesc", TableNum::ProcDesc, "pmsgnum"},
                                         TableCase{"Characters", TableNum::Characters, "charkey"}),
                         [](const auto& tested) { return std::string(tested.param.table); });

}  // namespace
}  // namespace fabula::authoring
