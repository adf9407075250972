// What goes wrong while a file is upgraded leaves it as it was.

#include <random>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "old_file.h"
#include "platform/error.h"
#include "store/file_forms.h"
#include "support/child_process.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"

namespace fabula::upgrades {
namespace {

class Failures : public testing::Test {
  protected:
    /// The file as it was before every step, without free pages, whose bytes nobody restores.
    void MakeOldest() {
        test::MakeGame(file_);
        for (int step = store::kLatestStep; step >= 1; --step)
            test::TakeBack(file_, step);
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

TEST_F(Failures, AKilledUpgradeLeavesTheOldFileOrTheNewOne) {
    constexpr int kKills = 200;
    MakeOldest();
    const std::string old = test::ReadBytes(file_);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    const test::Contents wholeNew = test::ContentsOf(file_);
    std::mt19937 random(3);
    int oldOnes = 0;
    int newOnes = 0;
    int journals = 0;
    useconds_t longest = 400000;
    for (int round = 0; round < kKills; ++round) {
        test::WriteBytes(file_, old);
        const pid_t upgrade = test::StartChild([&] {
            test::RecordingHost host;
            OpenUpgraded(file_, test::DefaultDataFile(), host);
            return 0;
        });
        usleep(static_cast<useconds_t>(random() % longest));
        kill(upgrade, SIGKILL);
        int status = 0;
        waitpid(upgrade, &status, 0);
        if (WIFEXITED(status)) longest = longest * 9 / 10 + 1;
        journals += std::filesystem::exists(file_.string() + "-journal");
        const auto adventure = store::Adventure::Open(file_, store::OpenMode::ReadOnly, store::Ages::Any);
        if (test::ReadBytes(file_) == old) {
            ++oldOnes;
            continue;
        }
        ++newOnes;
        ASSERT_EQ(test::ContentsOf(*adventure), wholeNew) << "round " << round;
    }
    EXPECT_GT(oldOnes, 0);
    EXPECT_GT(newOnes, 0);
    RecordProperty("old", oldOnes);
    RecordProperty("new", newOnes);
    RecordProperty("journals", journals);
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
