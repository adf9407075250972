#include "store/file/file_copy.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/adventure.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

using test::OpenedAdventure;
using test::ReadBytes;
using test::WriteBytes;

class SaveCopy : public testing::Test {
  protected:
    void AddMessage(int number, const std::string& text) {
        Cursor& messages = adventure_->OpenTable(TableNum::Free22, "* from messages");
        messages.AddNew();
        messages.SetField("msgnum", number);
        messages.SetField("msgmsg", text);
        messages.Update();
    }

    static std::string MessagesOf(const std::filesystem::path& file) {
        const auto adventure = Adventure::Open(file);
        std::string texts;
        Cursor& messages = adventure->OpenTable(TableNum::Messages, "*");
        for (; !messages.Eof(); messages.MoveNext())
            texts += (texts.empty() ? "" : " ") + std::string(messages.Text("msgmsg"));
        return texts;
    }

    std::string ErrorOf(const std::filesystem::path& target) {
        try {
            adventure_->SaveCopy(target);
        } catch (const Error& error) {
            return error.what();
        }
        return "no error";
    }

    std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    test::TempFolder folder_;
    const std::filesystem::path target_ = folder_ / "copy.fbd";
    OpenedAdventure adventure_;
};

TEST_F(SaveCopy, WritesAnAdventureOfItsOwn) {
    AddMessage(1, "one");
    adventure_->SaveCopy(target_);
    EXPECT_EQ(MessagesOf(target_), "one");
    EXPECT_EQ(adventure_->CurrentFile(), adventure_.File());
    AddMessage(2, "two");
    EXPECT_EQ(MessagesOf(target_), "one");
}

TEST_F(SaveCopy, LeavesNothingElseBehind) {
    adventure_->SaveCopy(target_);
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
}

TEST_F(SaveCopy, ReplacesAnExistingFile) {
    WriteBytes(target_, "something else");
    adventure_->SaveCopy(target_);
    EXPECT_EQ(MessagesOf(target_), "");
}

TEST_F(SaveCopy, APendingEditIsNotPartOfIt) {
    AddMessage(1, "one");
    Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
    messages.SetField("msgmsg", "changed");
    adventure_->SaveCopy(target_);
    EXPECT_EQ(MessagesOf(target_), "one");
    messages.Update();
    EXPECT_EQ(MessagesOf(adventure_.File()), "changed");
}

TEST_F(SaveCopy, WorksFromAFileThatIsOpenForReading) {
    AddMessage(1, "one");
    adventure_.Reopen(OpenMode::ReadOnly);
    adventure_->SaveCopy(target_);
    EXPECT_EQ(MessagesOf(target_), "one");
    EXPECT_THROW(adventure_->DeleteFrom(TableNum::Messages), Error);
}

TEST_F(SaveCopy, ThatCouldNotBeOpenedAgainReplacesNothing) {
    WriteBytes(target_, "as it was");
    test::RawDatabase(adventure_.File()).Run("CREATE TABLE stranger(number INTEGER)");
    EXPECT_THROW(adventure_->SaveCopy(target_), OpenError);
    EXPECT_EQ(ReadBytes(target_), "as it was");
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
}

TEST_F(SaveCopy, WorksWhileALookUpIsNotReadToItsEnd) {
    AddMessage(1, "one");
    AddMessage(2, "two");
    PreparedQuery query = adventure_->Prepare(TableNum::Messages, "msgmsg", "");
    ASSERT_TRUE(query.First({}));
    adventure_->SaveCopy(target_);
    EXPECT_EQ(MessagesOf(target_), "one two");
    ASSERT_TRUE(query.Next());
    EXPECT_EQ(query.Text(0), "two");
}

TEST_F(SaveCopy, WithinATransactionIsAFaultOfTheProgram) {
    WriteBytes(target_, "old");
    const Transaction transaction(*adventure_);
    EXPECT_THROW(adventure_->SaveCopy(target_), std::logic_error);
    EXPECT_EQ(ReadBytes(target_), "old");
}

TEST_F(SaveCopy, OntoTheOpenFileItselfIsRefused) {
    AddMessage(1, "one");
    EXPECT_EQ(ErrorOf(adventure_.File()),
              "Could not write " + adventure_.File().string() + ": it is the open adventure itself.");
    std::filesystem::create_symlink(adventure_.File(), target_);
    EXPECT_EQ(ErrorOf(target_),
              "Could not write " + target_.string() + ": it is the open adventure itself.");
    AddMessage(2, "two");
    EXPECT_EQ(MessagesOf(adventure_.File()), "one two");
}

TEST_F(SaveCopy, TakesANameWithEveryOddCharacter) {
    const auto odd = folder_ / "it's a \"copy\"; drop table x?mode=ro#1 \u00e4.fbd";
    adventure_->SaveCopy(odd);
    EXPECT_EQ(MessagesOf(odd), "");
}

TEST_F(SaveCopy, TakesANameInTheCurrentFolder) {
    EXPECT_EQ(test::RunInChild([&] {
                  std::filesystem::current_path(folder_.Path());
                  const auto adventure = Adventure::Open(adventure_.File());
                  adventure->SaveCopy("file:x.fbd");
                  return std::filesystem::exists(folder_ / "file:x.fbd") ? 0 : 1;
              }),
              0);
}

TEST_F(SaveCopy, IntoAFolderThatDoesNotExistIsAnError) {
    const auto lost = folder_ / "nowhere" / "copy.fbd";
    EXPECT_EQ(ErrorOf(lost).rfind("Could not write", 0), 0u) << ErrorOf(lost);
    EXPECT_TRUE(FilesIn(folder_.Path()).empty());
}

TEST_F(SaveCopy, ATooLongNameIsAnError) {
    const auto longName = folder_ / (std::string(300, 'x') + ".fbd").c_str();
    EXPECT_EQ(ErrorOf(longName).rfind("Could not write", 0), 0u) << ErrorOf(longName);
}

TEST_F(SaveCopy, OntoAFolderIsAnErrorThatLeavesTheFolder) {
    std::filesystem::create_directory(target_);
    EXPECT_EQ(ErrorOf(target_), "Could not write " + target_.string() + ": Is a directory.");
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
}

TEST_F(SaveCopy, AFolderWithoutRightsLeavesTheTargetUntouched) {
    WriteBytes(target_, "old");
    chmod(target_.c_str(), 0444);
    chmod(folder_.Path().c_str(), 0555);
    chmod(adventure_.Folder().Path().c_str(), 0777);
    chmod(adventure_.File().c_str(), 0666);
    const int result = test::RunInChild([&] {
        test::DropRights();
        const auto adventure = Adventure::Open(adventure_.File());
        try {
            adventure->SaveCopy(target_);
        } catch (const Error&) {
            return 0;
        }
        return 1;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(ReadBytes(target_), "old");
    chmod(folder_.Path().c_str(), 0755);
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
}

TEST_F(SaveCopy, AFullDiskLeavesTheTargetUntouchedAndNothingBesideIt) {
    WriteBytes(target_, "old");
    const int result = test::RunInChild([&] {
        const auto adventure = Adventure::Open(adventure_.File());
        test::LimitFileSize(64 * 1024);
        try {
            adventure->SaveCopy(target_);
        } catch (const Error&) {
            return 0;
        }
        return 1;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(ReadBytes(target_), "old");
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
}

// A journal that a broken-off program left beside the old file would otherwise be played into the new one.
TEST_F(SaveCopy, AJournalLeftBesideTheOldFileDoesNotSpoilTheCopy) {
    test::MakeAdventure(target_);
    const int killed = test::RunInChild([&] {
        const test::RawDatabase raw(target_);
        raw.Run("PRAGMA cache_size=1; BEGIN; DELETE FROM Flags; DELETE FROM CondActs; DELETE FROM Tables");
        kill(getpid(), SIGKILL);
        return 0;
    });
    ASSERT_EQ(killed, -SIGKILL);
    ASSERT_TRUE(std::filesystem::exists(folder_ / "copy.fbd-journal"));
    AddMessage(1, std::string(300000, 'x'));
    adventure_->SaveCopy(target_);
    EXPECT_EQ(FilesIn(folder_.Path()), std::vector<std::string>{"copy.fbd"});
    EXPECT_EQ(MessagesOf(target_).size(), 300000u);
}

TEST_F(SaveCopy, AFileThatAnotherProgramIsWritingIsNotReplaced) {
    test::MakeAdventure(target_);
    int ready[2];
    int done[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(done), 0);
    const pid_t writer = test::StartChild([&] {
        const test::RawDatabase raw(target_);
        raw.Run("BEGIN; DELETE FROM Flags");
        char byte = '+';
        if (write(ready[1], &byte, 1) != 1 || read(done[0], &byte, 1) != 1) return 1;
        raw.Run("COMMIT");
        return raw.Ask("PRAGMA integrity_check") == "ok" && raw.Ask("SELECT count(*) FROM Flags") == "0"
                   ? 0
                   : 2;
    });
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_EQ(ErrorOf(target_),
              "Could not write " + target_.string() + ": it is in use by another program.");
    ASSERT_EQ(write(done[1], "+", 1), 1);
    int status = -1;
    waitpid(writer, &status, 0);
    EXPECT_EQ(status, 0);
    for (const int end : {ready[0], ready[1], done[0], done[1]})
        close(end);
}

TEST_F(SaveCopy, AJournalBesideAFileOfAnotherKindStaysAndNoAdventureIsPutBesideIt) {
    WriteBytes(target_, "something else");
    WriteBytes(target_.string() + "-journal", "something more");
    EXPECT_EQ(ErrorOf(target_), "Could not write " + target_.string() + ": what lies at " +
                                    target_.string() + "-journal would be taken for its journal.");
    EXPECT_EQ(ReadBytes(target_), "something else");
    EXPECT_EQ(ReadBytes(target_.string() + "-journal"), "something more");
}

TEST(MoveIntoPlace, AMissingFileLeavesTheTargetAsItWas) {
    const test::TempFolder folder;
    WriteBytes(folder / "target", "old");
    EXPECT_THROW(MoveIntoPlace(folder / "finished", folder / "target"), Error);
    EXPECT_EQ(ReadBytes(folder / "target"), "old");
}

TEST(TemporaryFile, IsDeletedWithItsJournalUnlessItWasMoved) {
    const test::TempFolder folder;
    {
        const TemporaryFile file(folder / "game.fbd");
        WriteBytes(file.Path(), "half");
        WriteBytes(file.Path().string() + "-journal", "half");
        EXPECT_NE(TemporaryFile(folder / "game.fbd").Path(), file.Path());
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

}  // namespace
}  // namespace fabula::store
