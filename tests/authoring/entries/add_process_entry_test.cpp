#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/entries/entries.h"
#include "authoring/entry_commands.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::Desk;
using test::StandOn;
using testing::ElementsAre;

TEST(AddProcessEntry, OpensTheScreenOnTheNextFreeKey) {
    Desk desk;
    desk.AddEntry(7, 0, {"_", 255}, {"_", 255}, "DESC");
    StandOn(desk, TableNum::ProcessTables, 7);
    const auto request = Entries(desk.context).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::ProcessEntry);
    EXPECT_EQ(request->key.key, 8);
    EXPECT_EQ(request->before, std::nullopt);
    EXPECT_EQ(desk.context.nextEntry, 8);
    EXPECT_EQ(desk.context.currentEntry, 7);
    EXPECT_EQ(desk.context.currentESNum, 0);
}

TEST(AddProcessEntry, TheFirstOfAllShowsProcessTwo) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel}) {
        Desk desk(kind);
        StandOn(desk, TableNum::ProcessTables, 12);
        EXPECT_TRUE(Entries(desk.context).AddEntry());
        EXPECT_EQ(desk.context.currentEntry, 0);
        EXPECT_EQ(desk.context.currentESNum, 2);
    }
}

TEST(AddProcessEntry, TheFirstOfAMarloAdventureStaysInItsTable) {
    Desk desk(AdventureKind::Marlo);
    StandOn(desk, TableNum::ProcessTables, 12);
    desk.context.currentESNum = 1;
    EXPECT_TRUE(Entries(desk.context).AddEntry());
    EXPECT_EQ(desk.context.currentEntry, 0);
    EXPECT_EQ(desk.context.currentESNum, 1);
}

class AddBefore : public testing::TestWithParam<AdventureKind> {
  protected:
    AddBefore() : desk(GetParam()) {
        desk.AddEntry(1, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
        desk.AddEntry(2, 0, {"GET", 20}, {"LAMP", 50}, "OK");
        desk.AddEntry(3, 0, {"GET", 20}, {"BOX", 51}, "OK");
        desk.AddEntry(4, 1, {"GET", 20}, {"LAMP", 50}, "OK");
        desk.AddEntry(5, 0, {"GET", 20}, {"LAMP", 50}, "DESC");
        desk.AddEntry(6, 0, {"DROP", 21}, {"LAMP", 50}, "DESC");
    }

    /// Add before, with a screen that stores an entry of the same words.
    void AddAndStore(int before) {
        StandOn(desk, TableNum::ProcessTables, before);
        const auto request = Entries(desk.context).AddEntryBefore();
        Change change(desk.document, "add process entry " + std::to_string(request->key.key));
        desk.AddEntry(request->key.key, 0, {"GET", 20}, {"LAMP", 50}, "INVEN");
        ++desk.context.nextEntry;
        change.Commit();
        Entries(desk.context).AfterScreen(*request);
    }

    std::vector<std::string> GetLamp() {
        return desk.Rows(TableNum::ProcessTables, "canum, condacts", "estype=0 and w1num=20 and w2num=50",
                         "estype, w1num, w2num, canum");
    }

    Desk desk;
};

INSTANTIATE_TEST_SUITE_P(Types, AddBefore,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_P(AddBefore, OpensTheScreenOnTheNextFreeKey) {
    StandOn(desk, TableNum::ProcessTables, 2);
    const auto request = Entries(desk.context).AddEntryBefore();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::ProcessEntry);
    EXPECT_EQ(request->key.key, 7);
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(request->before, 2);
}

TEST_P(AddBefore, GivesTheEntriesOfTheSameWordsFromThereOnHigherKeys) {
    AddAndStore(2);
    EXPECT_THAT(GetLamp(), ElementsAre("1|DONE", "7|INVEN", "8|OK", "9|DESC"));
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "canum", "w2num=51 or estype=1 or w1num=21", "canum"),
                ElementsAre("3", "4", "6"));
    EXPECT_EQ(desk.context.nextEntry, 10);
}

TEST_P(AddBefore, StandsBeforeTheEntryWithTheHighestKeyToo) {
    AddAndStore(5);
    EXPECT_THAT(GetLamp(), ElementsAre("1|DONE", "2|OK", "7|INVEN", "8|DESC"));
}

TEST_P(AddBefore, IsOneStepOfUndo) {
    const auto before = desk.Everything();
    AddAndStore(1);
    const auto after = desk.Everything();
    EXPECT_EQ(desk.document.UndoName(), "add process entry 7");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
    desk.document.Redo();
    EXPECT_EQ(desk.Everything(), after);
}

TEST_P(AddBefore, ThatWasCancelledMovesNothing) {
    const auto before = desk.Everything();
    StandOn(desk, TableNum::ProcessTables, 2);
    const auto request = Entries(desk.context).AddEntryBefore();
    Entries(desk.context).AfterScreen(*request);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST_P(AddBefore, IsForProcessEntriesOnly) {
    StandOn(desk, TableNum::Messages, 0);
    EXPECT_FALSE(Entries(desk.context).AddEntryBefore());
}

TEST(AddEntryBefore, InAnEmptyTableIsAddEntry) {
    Desk desk;
    StandOn(desk, TableNum::ProcessTables, 0);
    const auto request = Entries(desk.context).AddEntryBefore();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->before, std::nullopt);
}

}  // namespace
}  // namespace fabula::authoring
