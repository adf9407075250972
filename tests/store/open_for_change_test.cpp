#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include "store/adventure.h"
#include "store/file/change_lock.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

namespace fs = std::filesystem;

class OpenForChange : public testing::Test {
  protected:
    OpenForChange() {
        test::MakeAdventure(file_);
        // For the trials without rights.
        fs::permissions(folder_.Path(), static_cast<fs::perms>(0777));
        fs::permissions(file_, static_cast<fs::perms>(0666));
    }

    /// What opening for change says, and why.
    std::string Answer() const {
        try {
            Adventure::OpenForChange(file_);
        } catch (const OpenError& error) {
            return error.what();
        }
        return "it was opened";
    }
    /// The same without the administrator's rights, told by a status: 0 for the expected answer.
    int AsNobody(const std::string& expected) const {
        return test::RunInChild([&] {
            test::DropRights();
            return Answer() == expected ? 0 : 1;
        });
    }
    std::string CouldNot(const std::string& why) const {
        return "Could not open " + file_.string() + ": " + why + ".";
    }

    test::TempFolder folder_;
    test::TempFolder copy_;
    const fs::path file_ = folder_ / "game.fbd";
};

TEST_F(OpenForChange, IsRefusedWhileAnotherWindowHasTheFileSo) {
    const auto first = Adventure::OpenForChange(file_);
    EXPECT_EQ(Answer(), CouldNot("it is open for change in another window or program"));
}

TEST_F(OpenForChange, IsRefusedWhileAnotherProgramHasTheFileSo) {
    const auto first = Adventure::OpenForChange(file_);
    EXPECT_EQ(AsNobody(CouldNot("it is open for change in another window or program")), 0);
}

TEST_F(OpenForChange, WorksAgainWhenTheFirstHasClosed) {
    Adventure::OpenForChange(file_).reset();
    EXPECT_EQ(Answer(), "it was opened");
}

TEST_F(OpenForChange, WorksWhenTheFirstWasKilled) {
    ASSERT_EQ(test::RunInChild([&] {
                  const auto first = Adventure::OpenForChange(file_);
                  kill(getpid(), SIGKILL);
                  return 0;
              }),
              -SIGKILL);
    EXPECT_EQ(Answer(), "it was opened");
}

TEST_F(OpenForChange, KeepsNoReaderAway) {
    const auto first = Adventure::OpenForChange(file_);
    const auto reader = Adventure::Open(file_, OpenMode::ReadOnly);
    EXPECT_EQ(reader->AdventureType(), "Fabula");
    EXPECT_TRUE(ChangeLock::IsHeld(file_));
}

TEST_F(OpenForChange, AFileThatMayNotBeWrittenIsToldBeforeAnythingIsTyped) {
    fs::permissions(file_, static_cast<fs::perms>(0444));
    EXPECT_EQ(Answer(), CouldNot("it can only be read"));
    EXPECT_EQ(AsNobody(CouldNot("it can only be read")), 0);
}

TEST_F(OpenForChange, AFolderThatMayNotBeWrittenIsToldToo) {
    fs::permissions(folder_.Path(), static_cast<fs::perms>(0555));
    EXPECT_EQ(AsNobody(CouldNot("it can only be read")), 0);
    fs::permissions(folder_.Path(), static_cast<fs::perms>(0777));
}

TEST_F(OpenForChange, AFolderThatMayNotBeWrittenIsNoHindranceForReading) {
    fs::permissions(folder_.Path(), static_cast<fs::perms>(0555));
    EXPECT_EQ(test::RunInChild([&] {
                  test::DropRights();
                  const auto reader = Adventure::Open(file_, OpenMode::ReadOnly);
                  reader->SaveCopy(copy_.Path() / "copy.fbd");
                  return reader->AdventureType() == "Fabula" ? 0 : 1;
              }),
              99);  // only the copy fails, in the folder of another user
    fs::permissions(copy_.Path(), static_cast<fs::perms>(0777));
    EXPECT_EQ(test::RunInChild([&] {
                  test::DropRights();
                  const auto reader = Adventure::Open(file_, OpenMode::ReadOnly);
                  reader->SaveCopy(copy_.Path() / "copy.fbd");
                  return reader->AdventureType() == "Fabula" ? 0 : 1;
              }),
              0);
    EXPECT_TRUE(fs::exists(copy_.Path() / "copy.fbd"));
    fs::permissions(folder_.Path(), static_cast<fs::perms>(0777));
}

TEST_F(OpenForChange, AFileInWriteAheadModeIsToldWhatItIs) {
    test::RawDatabase(file_).Run("PRAGMA journal_mode=WAL");
    EXPECT_EQ(Answer(), CouldNot("another program keeps a write-ahead log for it; \"PRAGMA "
                                 "journal_mode=DELETE\" there ends that"));
}

TEST_F(OpenForChange, AWriteAheadLogPlantedBesideAnAdventureIsNotPlayed) {
    test::WriteBytes(file_.string() + "-wal", "planted");
    EXPECT_THROW(Adventure::Open(file_, OpenMode::ReadOnly), OpenError);
    EXPECT_EQ(test::ReadBytes(file_.string() + "-wal"), "planted");
}

TEST_F(OpenForChange, AChangeToAFileThatIsOpenForReadingSaysSo) {
    const auto reader = Adventure::Open(file_, OpenMode::ReadOnly);
    try {
        reader->DeleteFrom(TableNum::Messages);
        FAIL() << "it was changed";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "Could not delete records: it can only be read.");
    }
}

}  // namespace
}  // namespace fabula::store
