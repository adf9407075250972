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
using test::Delete;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(DeleteEntry, AsksWithTheCaptionAndTheKey) {
    Desk desk(AdventureKind::Fabula, true);
    desk.FillUp(TableNum::Messages, 2);
    desk.FillUp(TableNum::Objects, 2);
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    desk.Add(TableNum::Pictures, {{"locnum", std::int64_t{6}}});
    const auto question = [&](TableNum table, int key) {
        desk.dialogs.AnswerNext(false);
        EXPECT_FALSE(Delete(desk, table, key));
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Confirm");
        return desk.Boxes().back();
    };
    const auto before = desk.Everything();
    EXPECT_EQ(question(TableNum::Locations, 0), "Are you sure you want to delete Locations 0 ?");
    EXPECT_EQ(question(TableNum::Messages, 1), "Are you sure you want to delete Messages 1 ?");
    EXPECT_EQ(question(TableNum::Objects, 1), "Are you sure you want to delete Objects 1 ?");
    EXPECT_EQ(question(TableNum::SystemMessages, 53),
              "Are you sure you want to delete System Messages 53 ?");
    EXPECT_EQ(question(TableNum::ProcDesc, 3), "Are you sure you want to delete Process Descriptions 3 ?");
    EXPECT_EQ(question(TableNum::Pictures, 6), "Are you sure you want to delete Pictures 6 ?");
    EXPECT_EQ(desk.Everything(), before);
}

class DeletePlain : public testing::TestWithParam<AdventureKind> {};

INSTANTIATE_TEST_SUITE_P(Types, DeletePlain,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_P(DeletePlain, TakesTheRecordAloneAndIsUndoneAsAWhole) {
    Desk desk(GetParam(), true);
    desk.FillUp(TableNum::Messages, 3);
    desk.FillUp(TableNum::Objects, 3);
    desk.FillUp(TableNum::Locations, 3);
    const auto tryOut = [&](TableNum table, int key, const std::string& name) {
        const auto before = desk.Everything();
        desk.dialogs.AnswerNext(true);
        EXPECT_TRUE(Delete(desk, table, key));
        const auto after = desk.Everything();
        const std::string tableName(store::FindTable(table)->name);
        EXPECT_EQ(after.tables.at(tableName).size(), before.tables.at(tableName).size() - 1);
        EXPECT_EQ(desk.document.UndoName(), name);
        EXPECT_EQ(desk.document.Undo(), std::set{table});
        EXPECT_EQ(desk.Everything(), before);
        desk.document.Redo();
        EXPECT_EQ(desk.Everything(), after);
    };
    tryOut(TableNum::Locations, 1, "delete location 1");
    tryOut(TableNum::Messages, 1, "delete message 1");
    tryOut(TableNum::Objects, 2, "delete object 2");
    tryOut(TableNum::SystemMessages, 53, "delete system message 53");
}

TEST(DeleteEntry, OfAProcessEntryShowsItInTheQuestion) {
    Desk desk;
    desk.AddEntry(3, 0, {"GET", 20}, {"LAMP", 50}, "PRESENT 0 GET 0 DONE");
    desk.dialogs.AnswerNext(false);
    EXPECT_FALSE(Delete(desk, TableNum::ProcessTables, 3));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete Process Record 3 ?\n"
                                          "GET LAMP\n"
                                          "PRESENT 0 GET 0 DONE"));
}

TEST(DeleteEntry, OfTheHighestProcessEntryLowersTheNextKey) {
    Desk desk;
    desk.AddEntry(3, 0, {"_", 255}, {"_", 255}, "DONE");
    desk.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DONE");
    desk.AddEntry(5, 0, {"_", 255}, {"_", 255}, "DONE");
    ReadNextKeys(desk.context);
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    Delete(desk, TableNum::ProcessTables, 3);
    EXPECT_EQ(desk.context.nextEntry, 6);
    Delete(desk, TableNum::ProcessTables, 5);
    EXPECT_EQ(desk.context.nextEntry, 5);
    EXPECT_EQ(desk.document.UndoName(), "delete process entry 5");
}

TEST(DeleteEntry, OfTheFirstThreeProcessDescriptionsIsRefused) {
    Desk desk;
    for (const int process : {0, 1, 2}) {
        EXPECT_FALSE(Delete(desk, TableNum::ProcDesc, process));
        EXPECT_EQ(desk.Boxes().back(), "That Process table Description cannot be deleted");
    }
}

TEST(DeleteEntry, OfFlagsSettingsAndCataloguesIsRefused) {
    Desk desk;
    EXPECT_FALSE(Delete(desk, TableNum::Flags, 11));
    EXPECT_EQ(desk.Boxes().back(), "Flags cannot be deleted");
    EXPECT_FALSE(Delete(desk, TableNum::Adventure, 0));
    EXPECT_EQ(desk.Boxes().back(), "Adventure cannot be deleted");
    EXPECT_FALSE(Delete(desk, TableNum::CondActs, 101));
    EXPECT_EQ(desk.Boxes().back(), "CondActs cannot be deleted");
}

TEST(DeleteEntry, OfARecordThatIsNotThereAsksNothing) {
    Desk desk;
    EXPECT_FALSE(Delete(desk, TableNum::Messages, 7));
    EXPECT_FALSE(Delete(desk, TableNum::Vocabulary, 7000));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace fabula::authoring
