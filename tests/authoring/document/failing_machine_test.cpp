// The main window while the machine fails under it: a locked file, a full disk, a file that goes away. Each
// failure is told in one sentence, and the adventure and the window stay as they were.

#include <fstream>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "authoring/desk.h"
#include "authoring/main_screen_stand.h"
#include "platform/error.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using test::RawDatabase;

constexpr const char* kLocked = "Could not write to the adventure: it is in use by another program.";

constexpr std::chrono::milliseconds kNotLong(50);

class FailingMachine : public testing::Test {
  protected:
    FailingMachine() {
        window_.OpenNew();
        window_.AddMessage("first");
        window_.AddMessage("second");
        file_ = window_.main->CurrentContext().document.File();
    }

    MainScreen& Main() { return *window_.main; }
    std::string LastBox() { return window_.Boxes().empty() ? "" : window_.Boxes().back(); }
    /// Gives the first message another text.
    void StoreText(const std::string& text) {
        Change change(Main().CurrentContext().document, "edit message 0");
        store::Cursor& messages = window_.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=0");
        messages.SetField("msgmsg", text);
        messages.Update();
        change.Commit();
    }
    std::vector<std::string> Messages() {
        std::vector<std::string> texts;
        store::Cursor& messages = window_.Adventure().OpenTable(TableNum::Messages, "def");
        for (; !messages.Eof(); messages.MoveNext())
            texts.emplace_back(messages.Text("msgmsg"));
        return texts;
    }

    test::MainScreenStand window_;
    std::filesystem::path file_;
};

TEST_F(FailingMachine, ALockedFileRefusesUndoAndUndoesLater) {
    {
        const RawDatabase other(file_);
        other.Run("BEGIN IMMEDIATE");
        window_.Adventure().WaitForOthers(kNotLong);
        Main().Run(Command::Undo);
        EXPECT_EQ(LastBox(), kLocked);
        EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
        EXPECT_EQ(Main().CurrentContext().document.UndoName(), "add message 1");
    }
    Main().Run(Command::Undo);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"first"}));
}

TEST_F(FailingMachine, ALockedFileRefusesADeletionAndKeepsTheRow) {
    Main().SelectRow(1);
    window_.dialogs.AnswerNext(true);
    const RawDatabase other(file_);
    other.Run("BEGIN IMMEDIATE");
    window_.Adventure().WaitForOthers(kNotLong);
    Main().Run(Command::Delete);
    EXPECT_EQ(LastBox(), kLocked);
    EXPECT_EQ(Main().Grid().RowCount(), 2);
    EXPECT_EQ(Main().CurrentRow(), 1);
}

TEST_F(FailingMachine, AFileLockedForReadingTooLeavesTheViewAsItIs) {
    Main().SelectRow(1);
    {
        const RawDatabase other(file_);
        other.Run("BEGIN EXCLUSIVE");
        window_.Adventure().WaitForOthers(kNotLong);
        Main().Show({TableNum::Flags});
        EXPECT_EQ(LastBox(), "Could not read the adventure: it is in use by another program.");
    }
    EXPECT_EQ(Main().Grid().View(), (TableView{TableNum::Messages}));
    EXPECT_EQ(Main().Grid().RowCount(), 2);
    EXPECT_EQ(Main().CurrentRow(), 1);
    EXPECT_EQ(Main().CurrentContext().currentTable, TableNum::Messages);
    EXPECT_EQ(Main().CurrentContext().currentEntry, 1);
}

TEST_F(FailingMachine, ADiskThatFillsUpKeepsWhatCanBeUndone) {
    // Changes of one text do not make the adventure grow, but what is kept for Undo does.
    const int result = test::RunInChild([&] {
        Document& document = Main().CurrentContext().document;
        test::LimitFileSize(static_cast<long>(std::filesystem::file_size(file_)) + 400'000);
        int stored = 0;
        try {
            for (; stored < 1000; ++stored)
                StoreText(std::string(50'000, static_cast<char>('a' + stored % 26)));
        } catch (const Error& error) {
            EXPECT_EQ(error.what(), std::string("Could not keep the changes for Undo: disk I/O error."));
        }
        EXPECT_GT(stored, 3);
        EXPECT_LT(stored, 1000);
        for (int undone = 0; undone < stored; ++undone)
            document.Undo();
        EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
        for (int redone = 0; redone < stored; ++redone)
            document.Redo();
        EXPECT_EQ(Messages().at(0).size(), 50'000U);
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

TEST_F(FailingMachine, AFullDiskRefusesAChangeAndGoesOn) {
    const int result = test::RunInChild([&] {
        test::LimitFileSize(static_cast<long>(std::filesystem::file_size(file_)));
        try {
            StoreText(std::string(200'000, 'x'));
            return 2;
        } catch (const Error& error) {
            EXPECT_EQ(error.what(), std::string("Could not write to the adventure: disk I/O error."));
        }
        EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
        StoreText("short");
        EXPECT_EQ(Messages(), (std::vector<std::string>{"short", "second"}));
        Main().Run(Command::Undo);
        EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

TEST_F(FailingMachine, ANewAdventureOnANearlyFullDiskIsToldOnceAndLeavesNothing) {
    const int result = test::RunInChild([&] {
        const auto folder = window_.folder / "new";
        std::filesystem::create_directory(folder);
        const std::size_t boxes = window_.Boxes().size();
        test::LimitFileSize(100'000);
        EXPECT_FALSE(Main().NewAdventure(folder / "new.fbd", {}, true));
        EXPECT_EQ(window_.Boxes().size(), boxes + 1);
        EXPECT_TRUE(LastBox().starts_with("Could not ")) << LastBox();
        EXPECT_TRUE(std::filesystem::is_empty(folder));
        EXPECT_EQ(Main().Title(), "Fabula IDE - game") << "the open adventure stays";
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

TEST_F(FailingMachine, AFileThatWasDeletedIsToldAndCanBeSavedElsewhere) {
    std::filesystem::remove(file_);
    try {
        StoreText("lost");
        ADD_FAILURE() << "it was stored";
    } catch (const Error& error) {
        EXPECT_EQ(error.what(),
                  std::string("Could not store the record: its file is no longer where it was opened."));
    }
    const auto copy = window_.folder / "saved.fbd";
    window_.dialogs.AnswerFile(copy);
    EXPECT_TRUE(Main().SaveAs()) << LastBox();
    EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
    Main().Run(Command::Undo);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"first"}));
}

TEST_F(FailingMachine, UndoAndRedoInAFileThatWasMovedSayWhatUpdateSays) {
    StoreText("changed");
    Main().Run(Command::Undo);
    std::filesystem::rename(file_, window_.folder / "elsewhere.fbd");
    const std::string moved = "Could not change the records: its file is no longer where it was opened.";
    Main().Run(Command::Redo);
    EXPECT_EQ(LastBox(), moved);
    Main().Run(Command::Undo);
    EXPECT_EQ(LastBox(), moved);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(FailingMachine, AFileThatWasReplacedIsNotWrittenAndNotTakenForTheOpenOne) {
    const auto other = window_.Make("other.fbd");
    std::filesystem::rename(other, file_);
    const std::string before = test::ReadBytes(file_);
    EXPECT_THROW(StoreText("lost"), Error);
    EXPECT_TRUE(test::ReadBytes(file_) == before);
    window_.dialogs.AnswerFile(window_.folder / "saved.fbd");
    EXPECT_TRUE(Main().SaveAs()) << LastBox();
    EXPECT_EQ(Messages(), (std::vector<std::string>{"first", "second"}));
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(FailingMachine, AChangeOfMoreThanOnePictureIsKeptForUndo) {
    // Each within the limit of a field, together beyond it.
    const auto locations = [&] {
        return window_.Adventure().OpenTable(TableNum::Locations, "locnum").RecordCount();
    };
    const int before = locations();
    Document& document = Main().CurrentContext().document;
    Change change(document, "copy the pictures");
    store::Cursor& pictures = window_.Adventure().OpenTable(TableNum::Locations, "def");
    for (int number = 1; number <= 2; ++number) {
        pictures.AddNew();
        pictures.SetField("locnum", std::int64_t{number});
        pictures.SetField("picgraphic", text::Blob(40'000'000));
        pictures.Update();
    }
    change.Commit();
    document.Undo();
    EXPECT_EQ(locations(), before);
}

TEST_F(FailingMachine, AFileWhoseNameIsNearlyTheLongestIsOpened) {
    const auto file = window_.Make((std::string(246, 'n') + ".fbd").c_str());
    EXPECT_TRUE(Main().OpenFile(file));
    EXPECT_EQ(Main().Title(), "Fabula IDE - " + std::string(246, 'n'));
}

/// Opens the adventure and stores one message after the other without end, as an author who never rests.
/// Tells of being ready, and then of every change that was stored, by one byte.
int StoreForever(const std::filesystem::path& file, int number, int report) {
    Document document(file);
    while (write(report, "+", 1) == 1) {
        Change change(document, "add message " + std::to_string(number));
        store::Cursor& messages = document.Adventure().OpenTable(TableNum::Messages, "def");
        messages.AddNew();
        messages.SetField("msgnum", std::int64_t{number++});
        messages.SetField("msgmsg", std::string(5000, 'x'));
        messages.Update();
        change.Commit();
    }
    return 1;
}

/// Kills such an author after `changes` changes and a while; how many changes were told of.
int ChangesUntilKilled(const std::filesystem::path& file, int number, int changes, unsigned microseconds) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t author = test::StartChild([&] { return StoreForever(file, number, ends[1]); });
    close(ends[1]);
    char byte = 0;
    int told = -1;  // the first byte tells of no change
    while (told < changes && read(ends[0], &byte, 1) == 1)
        ++told;
    usleep(microseconds);
    kill(author, SIGKILL);
    waitpid(author, nullptr, 0);
    while (read(ends[0], &byte, 1) == 1)
        ++told;
    close(ends[0]);
    return told;
}

TEST(KilledAuthor, LosesNothingThatWasStoredAndLeavesNoFileOfUndo) {
    const test::TempFolder folder;
    const auto file = folder / "game.fbd";
    test::MakeAdventure(file);
    int stored = 0;
    for (unsigned round = 0; round < 20; ++round) {
        const int told =
            stored + ChangesUntilKilled(file, stored, static_cast<int>(round % 4), round * 150);
        Document document(file);
        EXPECT_EQ(document.UndoName(), std::nullopt);
        stored = document.Adventure().OpenTable(TableNum::Messages, "msgnum").RecordCount();
        // The last change may have been stored before it could be told of.
        ASSERT_TRUE(stored == told || stored == told + 1) << stored << " after " << told;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            EXPECT_NE(entry.path().extension(), ".tmp");
    }
    EXPECT_GT(stored, 20);
}

}  // namespace
}  // namespace fabula::authoring
