#include "store/file/change_set.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "store/adventure.h"
#include "store/file/change_log.h"
#include "support/games/template_adventure.h"

namespace fabula::store {
namespace {

void AddMessage(Adventure& adventure, int number, const char* text) {
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    messages.AddNew();
    messages.SetField("msgnum", std::int64_t{number});
    messages.SetField("msgmsg", std::string(text));
    messages.Update();
}

void ChangeMessage(Adventure& adventure, int number, const char* text) {
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def", "msgnum=" + std::to_string(number));
    messages.SetField("msgmsg", std::string(text));
    messages.Update();
}

std::string Messages(Adventure& adventure) {
    std::string all;
    Cursor& messages = adventure.OpenTable(TableNum::Messages, "def");
    for (; !messages.Eof(); messages.MoveNext())
        all.append(std::to_string(messages.Number("msgnum"))).append(" ").append(messages.Text("msgmsg")) +=
            ";";
    return all;
}

TEST(ChangeSet, TakesBackAndDoesAgain) {
    test::OpenedAdventure adventure;
    AddMessage(*adventure, 1, "One");
    AddMessage(*adventure, 2, "Two");
    std::string changes;
    {
        const ChangeRecorder recorder(*adventure);
        ChangeMessage(*adventure, 1, "Uno");
        adventure->DeleteFrom(TableNum::Messages, "msgnum=2");
        AddMessage(*adventure, 3, "Three");
        changes = recorder.Changes();
    }
    TakeBack(*adventure, changes);
    EXPECT_EQ(Messages(*adventure), "1 One;2 Two;");
    DoAgain(*adventure, changes);
    EXPECT_EQ(Messages(*adventure), "1 Uno;3 Three;");
}

TEST(ChangeSet, IsEmptyWhenNothingChangedInTheEnd) {
    test::OpenedAdventure adventure;
    AddMessage(*adventure, 1, "One");
    const ChangeRecorder recorder(*adventure);
    ChangeMessage(*adventure, 1, "Uno");
    ChangeMessage(*adventure, 1, "One");
    EXPECT_EQ(recorder.Changes(), "");
}

TEST(ChangeSet, DoesNotHoldWhatWasRolledBack) {
    test::OpenedAdventure adventure;
    const ChangeRecorder recorder(*adventure);
    {
        const Transaction transaction(*adventure);
        AddMessage(*adventure, 1, "One");
    }
    EXPECT_EQ(recorder.Changes(), "");
}

TEST(ChangeSet, ThatNoLongerFitsChangesNothing) {
    test::OpenedAdventure adventure;
    AddMessage(*adventure, 1, "One");
    AddMessage(*adventure, 2, "Two");
    std::string changes;
    {
        const ChangeRecorder recorder(*adventure);
        ChangeMessage(*adventure, 1, "Uno");
        ChangeMessage(*adventure, 2, "Due");
        changes = recorder.Changes();
    }
    ChangeMessage(*adventure, 2, "Deux");
    EXPECT_THROW(TakeBack(*adventure, changes), Error);
    EXPECT_EQ(Messages(*adventure), "1 Uno;2 Deux;");
}

TEST(ChangeSet, IsNotHinderedByChangesOfOtherFields) {
    test::OpenedAdventure adventure;
    std::string changes;
    {
        const ChangeRecorder recorder(*adventure);
        Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
        settings.SetField("author", std::string("A. Writer"));
        settings.Update();
        changes = recorder.Changes();
    }
    Cursor& settings = adventure->OpenTable(TableNum::Adventure, "def");
    settings.SetField("sortobjects", std::string("objdesc"));
    settings.Update();
    TakeBack(*adventure, changes);
    Cursor& after = adventure->OpenTable(TableNum::Adventure, "def");
    EXPECT_NE(after.Text("author"), "A. Writer");
    EXPECT_EQ(after.Text("sortobjects"), "objdesc");
}

TEST(ChangeSet, KnowsItsTables) {
    test::OpenedAdventure adventure;
    const ChangeRecorder recorder(*adventure);
    AddMessage(*adventure, 1, "One");
    adventure->DeleteFrom(TableNum::Vocabulary);
    EXPECT_EQ(TablesOf(recorder.Changes()), (std::set{TableNum::Messages, TableNum::Vocabulary}));
    EXPECT_TRUE(TablesOf("").empty());
}

TEST(ChangeLog, GivesBackWhatItWasGiven) {
    test::TempFolder folder;
    ChangeLog log(folder / "game.fbd");
    const std::string bytes("a\0b", 3);
    const auto first = log.Add(bytes);
    const auto second = log.Add("second");
    EXPECT_EQ(log.Get(first), bytes);
    log.Remove(first);
    EXPECT_EQ(log.Get(first), "");
    EXPECT_EQ(log.Get(second), "second");
}

TEST(ChangeLog, LeavesNoFileBehind) {
    test::TempFolder folder;
    ChangeLog log(folder / "game.fbd");
    log.Add("changes");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(ChangeLog, WithoutAFolderToWriteToIsRefused) {
    test::TempFolder folder;
    EXPECT_THROW(ChangeLog(folder.Path() / "no such folder" / "game.fbd"), Error);
}

}  // namespace
}  // namespace fabula::store
