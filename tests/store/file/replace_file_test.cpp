// How a finished file takes the place of another: what stays as it was, and what is never touched.

#include <algorithm>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/adventure.h"
#include "store/file/file_copy.h"
#include "support/child_process.h"
#include "support/games/template_adventure.h"
#include "support/raw_database.h"

namespace fabula::store {
namespace {

namespace fs = std::filesystem;

using test::ReadBytes;
using test::WriteBytes;

class ReplaceFile : public testing::Test {
  protected:
    fs::path File(const std::string& name) const { return folder_.Path() / name; }

    static std::string ErrorOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const Error& error) {
            return error.what();
        }
        return "no error";
    }
    std::string WriteError(const fs::path& file) {
        return ErrorOf([&] { WriteFile(file, "new"); });
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.Path()))
            names.push_back(entry.path().filename());
        std::ranges::sort(names);
        return names;
    }
    static unsigned ModeOf(const fs::path& file) {
        struct stat facts {};
        EXPECT_EQ(stat(file.c_str(), &facts), 0);
        return facts.st_mode & 0777;
    }

    test::TempFolder folder_;
};

using NameList = std::vector<std::string>;

TEST_F(ReplaceFile, ATextNamedLikeTheJournalOfATextIsLeftAlone) {
    WriteBytes(File("trip-journal"), "Day one.");
    WriteFile(File("trip"), "new");
    EXPECT_EQ(ReadBytes(File("trip")), "new");
    EXPECT_EQ(ReadBytes(File("trip-journal")), "Day one.");
}

TEST_F(ReplaceFile, APipeInThePlaceOfATextsJournalIsNotOpened) {
    ASSERT_EQ(mkfifo(File("trip-journal").c_str(), 0600), 0);
    WriteBytes(File("trip"), "old");
    WriteFile(File("trip"), "new");
    EXPECT_EQ(ReadBytes(File("trip")), "new");
}

TEST_F(ReplaceFile, AnAdventureIsNotPutBesideAJournalThatIsNotItsOwn) {
    test::MakeAdventure(File("new.fbd"));
    WriteBytes(File("trip-journal"), "Day one.");
    EXPECT_EQ(ErrorOf([&] { MoveIntoPlace(File("new.fbd"), File("trip")); }),
              "Could not write " + File("trip").string() + ": what lies at " +
                  File("trip-journal").string() + " would be taken for its journal.");
    EXPECT_EQ(Names(), (NameList{"new.fbd", "trip-journal"}));
}

// A journal ends with the name of a further one, which the database deletes, wherever it lies.
TEST_F(ReplaceFile, AJournalThatNamesAFurtherFileIsNotPlayed) {
    test::MakeAdventure(File("new.fbd"));
    test::MakeAdventure(File("game.fbd"));
    ASSERT_EQ(test::RunInChild([&] {
                  const test::RawDatabase raw(File("game.fbd"));
                  raw.Run(
                      "PRAGMA cache_size=1; BEGIN; DELETE FROM Flags; DELETE FROM CondActs; "
                      "DELETE FROM Tables");
                  kill(getpid(), SIGKILL);
                  return 0;
              }),
              -SIGKILL);
    const std::string victim = File("victim");
    WriteBytes(victim, "precious");
    const auto bigEndian = [](std::size_t number) {
        std::string bytes;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(number >> shift & 0xff);
        return bytes;
    };
    std::size_t sum = 0;
    for (const char c : victim)
        sum += static_cast<std::size_t>(c);
    const auto journal = File("game.fbd-journal");
    WriteBytes(journal, ReadBytes(journal) + bigEndian(0x40000000 / 4096 + 1) + victim +
                            bigEndian(victim.size()) + bigEndian(sum) + "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7");
    EXPECT_NE(ErrorOf([&] { MoveIntoPlace(File("new.fbd"), File("game.fbd")); }), "no error");
    EXPECT_EQ(ReadBytes(victim), "precious");
}

TEST_F(ReplaceFile, AnAdventureIsNeverReplacedByAText) {
    test::MakeAdventure(File("game.fbd"));
    const std::string before = ReadBytes(File("game.fbd"));
    EXPECT_EQ(WriteError(File("game.fbd")),
              "Could not write " + File("game.fbd").string() + ": it is an adventure.");
    EXPECT_EQ(ReadBytes(File("game.fbd")), before);
    EXPECT_EQ(Names(), NameList{"game.fbd"});
}

TEST_F(ReplaceFile, AFileOfAnotherKindOfOursIsRefusedByItsName) {
    WriteBytes(File("deep.sav"), "a saved game");
    EXPECT_EQ(ErrorOf([&] { CheckTarget(File("deep.sav"), Content::Text, ".ext"); }),
              "Could not write " + File("deep.sav").string() +
                  ": by its name it is a file of another kind, *.sav.");
    EXPECT_EQ(ErrorOf([&] { CheckTarget(File("deep.sav"), Content::Adventure); }),
              "Could not write " + File("deep.sav").string() +
                  ": by its name it is a file of another kind, *.sav.");
    EXPECT_EQ(ErrorOf([&] { CheckTarget(File("deep.sav"), Content::Text, ".sav"); }), "no error");
    EXPECT_EQ(ErrorOf([&] { CheckTarget(File("other.sav"), Content::Text, ".ext"); }), "no error");
}

TEST_F(ReplaceFile, AnAdventureThatIsOpenForChangeIsNotReplaced) {
    test::MakeAdventure(File("new.fbd"));
    test::MakeAdventure(File("game.fbd"));
    auto open = Adventure::OpenForChange(File("game.fbd"));
    EXPECT_EQ(
        ErrorOf([&] { MoveIntoPlace(File("new.fbd"), File("game.fbd")); }),
        "Could not write " + File("game.fbd").string() + ": it is open for change in another program.");
    open.reset();
    EXPECT_EQ(ErrorOf([&] { MoveIntoPlace(File("new.fbd"), File("game.fbd")); }), "no error");
}

TEST_F(ReplaceFile, AReadOnlyFileIsKept) {
    WriteBytes(File("out.txt"), "old");
    fs::permissions(File("out.txt"), fs::perms::owner_read);
    EXPECT_EQ(WriteError(File("out.txt")),
              "Could not write " + File("out.txt").string() + ": it is read-only.");
    EXPECT_EQ(ReadBytes(File("out.txt")), "old");
}

TEST_F(ReplaceFile, TheModeStays) {
    WriteBytes(File("out.txt"), "old");
    fs::permissions(File("out.txt"), static_cast<fs::perms>(0640));
    WriteFile(File("out.txt"), "new");
    EXPECT_EQ(ReadBytes(File("out.txt")), "new");
    EXPECT_EQ(ModeOf(File("out.txt")), 0640u);
}

TEST_F(ReplaceFile, ANewFileHasTheModeThatThePersonsMaskGives) {
    EXPECT_EQ(test::RunInChild([&] {
                  umask(027);
                  WriteFile(File("out.txt"), "new");
                  return 0;
              }),
              0);
    EXPECT_EQ(ModeOf(File("out.txt")), 0640u);
}

TEST_F(ReplaceFile, ALinkStaysAndItsFileIsReplaced) {
    fs::create_directory(File("far"));
    WriteBytes(File("far/real.txt"), "old");
    fs::create_symlink("far/real.txt", File("link.txt"));
    WriteFile(File("link.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(File("link.txt")));
    EXPECT_EQ(ReadBytes(File("far/real.txt")), "new");
    EXPECT_EQ(Names(), (NameList{"far", "link.txt"}));
}

TEST_F(ReplaceFile, ALinkToNothingMakesTheFileThatItNames) {
    fs::create_symlink("real.txt", File("link.txt"));
    WriteFile(File("link.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(File("link.txt")));
    EXPECT_EQ(ReadBytes(File("real.txt")), "new");
}

TEST_F(ReplaceFile, ALinkInARingIsAnErrorAndNoHang) {
    fs::create_symlink("b", File("a"));
    fs::create_symlink("a", File("b"));
    EXPECT_EQ(WriteError(File("a")),
              "Could not write " + File("a").string() + ": too many links lead from one to the next.");
    EXPECT_TRUE(fs::is_symlink(File("a")));
}

TEST_F(ReplaceFile, ADeviceIsWrittenToAndNeverReplaced) {
    WriteFile("/dev/null", "new");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(WriteError("/dev/full"), "Could not write /dev/full: No space left on device.");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(ReplaceFile, APipeIsWrittenToAndStaysAPipe) {
    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    const int reader = open(File("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    WriteFile(File("pipe"), "new");
    char bytes[10];
    EXPECT_EQ(std::string(bytes, static_cast<std::size_t>(read(reader, bytes, sizeof bytes))), "new");
    close(reader);
    EXPECT_TRUE(fs::is_fifo(File("pipe")));
    EXPECT_EQ(Names(), NameList{"pipe"});
}

TEST_F(ReplaceFile, AnAdventureIsPutIntoNoDevice) {
    test::MakeAdventure(File("new.fbd"));
    EXPECT_EQ(ErrorOf([&] { MoveIntoPlace(File("new.fbd"), "/dev/null"); }),
              "Could not write /dev/null: an adventure needs a file.");
}

TEST_F(ReplaceFile, AFullDiskIsToldWithItsReasonAndLeavesTheOldFile) {
    WriteBytes(File("out.txt"), "old");
    EXPECT_EQ(
        test::RunInChild([&] {
            test::LimitFileSize(1000);
            const std::string error = ErrorOf([&] { WriteFile(File("out.txt"), std::string(5000, 'x')); });
            return error == "Could not write " + File("out.txt").string() + ": File too large." ? 0 : 1;
        }),
        0);
    EXPECT_EQ(ReadBytes(File("out.txt")), "old");
    EXPECT_EQ(Names(), NameList{"out.txt"});
}

TEST_F(ReplaceFile, TheLongestNameThatAFolderTakesWorks) {
    for (const std::string& name : {std::string(251, 'x') + ".txt", [] {
                                        std::string umlauts;
                                        for (int i = 0; i < 127; ++i)
                                            umlauts += "\u00e4";
                                        return umlauts;
                                    }()}) {
        WriteFile(File(name), "new");
        EXPECT_EQ(ReadBytes(File(name)), "new");
        WriteFile(File(name), "newer");
        EXPECT_EQ(ReadBytes(File(name)), "newer");
    }
    EXPECT_EQ(Names().size(), 2u);
}

TEST_F(ReplaceFile, WhatAKilledProgramLeftIsSweptByTheNextThatWritesTheSame) {
    ASSERT_EQ(test::RunInChild([&] {
                  const TemporaryFile half(File("out.txt"));
                  WriteBytes(half.Path().string() + "-journal", "half");
                  kill(getpid(), SIGKILL);
                  return 0;
              }),
              -SIGKILL);
    ASSERT_EQ(Names().size(), 2u);
    WriteBytes(File("out.txt.notes-0.tmp"), "mine");
    WriteBytes(File("other.txt.99999999-0.tmp"), "another's");
    WriteFile(File("out.txt"), "new");
    EXPECT_EQ(Names(), (NameList{"other.txt.99999999-0.tmp", "out.txt", "out.txt.notes-0.tmp"}));
}

TEST_F(ReplaceFile, WhatALivingProgramIsMakingStays) {
    const TemporaryFile own(File("out.txt"));
    WriteFile(File("out.txt"), "new");
    EXPECT_TRUE(fs::exists(own.Path()));
}

TEST_F(ReplaceFile, ALinkPlantedAtTheNameOfATemporaryFileIsNotWrittenThrough) {
    const std::string planted = "out.txt." + std::to_string(getpid()) + "-0.tmp";
    fs::create_symlink("victim", File(planted));
    WriteFile(File("out.txt"), "new");
    EXPECT_EQ(ReadBytes(File("out.txt")), "new");
    EXPECT_FALSE(fs::exists(File("victim")));
}

}  // namespace
}  // namespace fabula::store
