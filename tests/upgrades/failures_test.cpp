// What goes wrong while a file is upgraded leaves it as it was.

#include <chrono>
#include <random>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "old_file.h"
#include "platform/error.h"
#include "store/file/file_forms.h"
#include "support/child_process.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "support/trials.h"

namespace fabula::upgrades {
namespace {

class Failures : public testing::Test {
  protected:
    /// The file as it was before every step, without free pages, whose bytes nobody restores.
    void MakeOldest() {
        test::MakeGameBefore(file_, store::AdventureKind::Fabula, 1);
        test::RawDatabase(file_).Run("VACUUM");
    }

    std::string ErrorOf(const std::filesystem::path& data) {
        try {
            OpenUpgraded(file_, data, host_);
        } catch (const Error& error) {
            return error.what();
        }
        return "it was upgraded";
    }

    /// The project's default data without a section.
    std::filesystem::path DataWithout(const std::string& section) const {
        std::string data = test::ReadBytes(test::DefaultDataFile());
        const std::size_t begin = data.find("::" + section + "\n");
        data.erase(begin, data.find("::END\n", begin) + 6 - begin);
        test::WriteBytes(folder_ / "Fabula.ini", data);
        return folder_ / "Fabula.ini";
    }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "game.fbd";
    test::RecordingHost host_;
};

TEST_F(Failures, ASectionThatIsMissingIsNamedAndTheFileStays) {
    MakeOldest();
    const std::string before = test::ReadBytes(file_);
    const auto data = DataWithout("VELCOMMANDS");
    EXPECT_EQ(ErrorOf(data), "The default data " + data.string() + " has no section ::VELCOMMANDS.");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, ASectionThatNoStepNeedsIsNotMissed) {
    test::MakeGame(file_);
    EXPECT_EQ(ErrorOf(DataWithout("VELCOMMANDS")), "it was upgraded");
}

TEST_F(Failures, ARowForAFieldThatIsNotThereIsRefusedInOneSentence) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("ALTER TABLE Adventure DROP COLUMN source");
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(ErrorOf(test::DefaultDataFile()), "Could not open " + file_.string() + ": it is damaged.");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, ARowForATableThatIsNotThereIsRefusedInOneSentence) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("DROP TABLE Templates");
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(ErrorOf(test::DefaultDataFile()), "Could not open " + file_.string() + ": it is damaged.");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, AFieldThatNoStepKnowsAndNoRowTellsOfIsRefused) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("DELETE FROM Tables WHERE tablenum=1 AND fieldname='exits'");
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(ErrorOf(test::DefaultDataFile()), "Could not open " + file_.string() + ": it is damaged.");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, AFullDiskLeavesTheOldFile) {
    MakeOldest();
    const std::string before = test::ReadBytes(file_);
    const std::size_t size = before.size();
    int failed = 0;
    for (std::size_t room = 0; room < 200000; room += 20000) {
        const int result = test::RunInChild([&] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{static_cast<rlim_t>(size / 4 + room), static_cast<rlim_t>(size / 4 + room)};
            setrlimit(RLIMIT_FSIZE, &limit);
            return ErrorOf(test::DefaultDataFile()) == "it was upgraded" ? 0 : 1;
        });
        if (result == 0) break;
        ++failed;
        // The journal, should there be one, mends the file at the next opening.
        store::Adventure::Open(file_, store::OpenMode::ReadOnly, store::Ages::Any);
        ASSERT_TRUE(test::ReadBytes(file_) == before) << "with room for " << room;
    }
    EXPECT_GT(failed, 2);
}

constexpr int kKills = 25;

TEST_F(Failures, AKilledUpgradeLeavesTheOldFileOrTheNewOne) {
    MakeOldest();
    const std::string old = test::ReadBytes(file_);
    const auto upgrade = [&] {
        test::RecordingHost host;
        OpenUpgraded(file_, test::DefaultDataFile(), host);
        return 0;
    };
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(test::RunInChild(upgrade), 0);
    const auto whole =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin) +
        std::chrono::microseconds(1);
    const test::Contents wholeNew = test::ContentsOf(file_);
    std::mt19937 random(3);
    int oldOnes = 0;
    const int kills = test::Trials("FABULA_KILLS", kKills);
    for (int round = 0; round < kills; ++round) {
        test::WriteBytes(file_, old);
        const pid_t child = test::StartChild(upgrade);
        // The first is killed before it can have begun, the others up to a quarter behind their end.
        if (round > 0) usleep(static_cast<useconds_t>(random() % (whole.count() * 5 / 4)));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const auto adventure = store::Adventure::Open(file_, store::OpenMode::ReadOnly, store::Ages::Any);
        if (test::ReadBytes(file_) == old) {
            ++oldOnes;
            continue;
        }
        ASSERT_EQ(test::ContentsOf(*adventure), wholeNew) << "round " << round;
    }
    EXPECT_GT(oldOnes, 0);
    RecordProperty("old", oldOnes);
}

TEST_F(Failures, AFileThatMayNotBeWrittenStaysAndIsRead) {
    MakeOldest();
    const std::string before = test::ReadBytes(file_);
    std::string told;
    const auto adventure =
        OpenForReading(file_, test::DefaultDataFile(), [&](std::string_view sentence) { told = sentence; });
    EXPECT_EQ(
        told,
        "game.fbd was made by an older version of Fabula; an upgraded copy in memory is used, and the "
        "file stays as it is.");
    EXPECT_EQ(adventure->OpenTable(store::TableNum::ProcDesc, "*").RecordCount(), 3);
    EXPECT_EQ(adventure->CurrentFile(), file_);
    EXPECT_THROW(adventure->DeleteFrom(store::TableNum::Flags), Error);
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, WithoutDefaultDataAPresentFileIsOpenedAsItIs) {
    test::MakeGame(file_);
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(ErrorOf(folder_ / "nowhere.ini"), "it was upgraded");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
    OpenForReading(file_, {}, [](std::string_view) {});
}

TEST_F(Failures, WithoutDefaultDataAnOldFileIsRefusedAndStays) {
    MakeOldest();
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(ErrorOf(folder_ / "nowhere.ini"),
              "Could not open " + file_.string() +
                  ": it was made by an older version of Fabula and must be upgraded first.");
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

TEST_F(Failures, APresentFileIsReadWithoutAWord) {
    test::MakeGame(file_);
    std::string told;
    OpenForReading(file_, test::DefaultDataFile(), [&](std::string_view sentence) { told = sentence; });
    EXPECT_EQ(told, "");
}

TEST_F(Failures, LookingAheadTellsTheStepsAndChangesNothing) {
    test::MakeGame(file_);
    test::TakeBack(file_, 46);
    const std::string before = test::ReadBytes(file_);
    EXPECT_EQ(LookAhead(file_, test::DefaultDataFile()).steps,
              std::vector<std::string>{"46 - Add of Source to Adventure table"});
    EXPECT_TRUE(test::ReadBytes(file_) == before);
}

}  // namespace
}  // namespace fabula::upgrades
