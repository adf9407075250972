// Files from before each step come out as the file was before it was taken back.

#include <gtest/gtest.h>

#include "old_file.h"
#include "store/file_forms.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "upgrades/step.h"

namespace fabula::upgrades {
namespace {

using store::AdventureKind;
using test::Contents;

class Ages : public testing::Test {
  protected:
    /// The type is the one thing that no step knows.
    void AnswerType(AdventureKind kind) {
        host_.answer = ChosenType{std::string(store::NameOf(kind)), false, kind == AdventureKind::Marlo};
    }

    Contents Upgraded() { return test::ContentsOf(*OpenUpgraded(file_, test::DefaultDataFile(), host_)); }

    /// Names a table that differs, and its first line, so that a failure can be read.
    static void ExpectSame(const Contents& after, const Contents& before) {
        for (const auto& [table, lines] : before) {
            const auto& now = after.at(table);
            ASSERT_EQ(now.size(), lines.size()) << table;
            for (std::size_t i = 0; i < lines.size(); ++i)
                ASSERT_EQ(now[i], lines[i]) << table;
        }
    }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "game.fbd";
    test::RecordingHost host_;
};

class OneStep : public Ages, public testing::WithParamInterface<int> {};

TEST_P(OneStep, IsDoneAgain) {
    test::MakeGame(file_);
    const Contents before = test::ContentsOf(file_);
    test::TakeBack(file_, GetParam());
    AnswerType(AdventureKind::Fabula);
    ExpectSame(Upgraded(), before);
    const std::string number = std::to_string(GetParam()) + " - ";
    ASSERT_FALSE(host_.lists.empty());
    EXPECT_EQ(host_.lists.front().substr(0, number.size()), number);
    EXPECT_EQ(host_.changes, 1);
}

INSTANTIATE_TEST_SUITE_P(Numbered, OneStep, testing::Range(1, store::kLatestStep + 1));

/// A file as it was when the steps from a number on had not been written, of each kind in turn.
class Age : public Ages, public testing::WithParamInterface<int> {};

TEST_P(Age, BecomesThePresent) {
    const auto kind = static_cast<AdventureKind>(GetParam() % 3);
    test::MakeGame(file_, kind);
    const Contents before = test::ContentsOf(file_);
    for (int step = store::kLatestStep; step >= GetParam(); --step)
        test::TakeBack(file_, step);
    AnswerType(kind);
    ExpectSame(Upgraded(), before);
}

INSTANTIATE_TEST_SUITE_P(BeforeStep, Age, testing::Range(1, store::kLatestStep + 1));

class OldestAge : public Ages, public testing::WithParamInterface<AdventureKind> {};

TEST_P(OldestAge, BecomesThePresent) {
    test::MakeGame(file_, GetParam());
    const Contents before = test::ContentsOf(file_);
    for (int step = store::kLatestStep; step >= 1; --step)
        test::TakeBack(file_, step);
    AnswerType(GetParam());
    ExpectSame(Upgraded(), before);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OldestAge,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_F(Ages, APresentFilePassesWithoutABoxAndUnchanged) {
    test::MakeGame(file_);
    const std::string before = test::ReadBytes(file_);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_TRUE(test::ReadBytes(file_) == before);
    EXPECT_TRUE(host_.lists.empty());
    EXPECT_EQ(host_.changes, 0);
    EXPECT_TRUE(host_.reports.empty());
}

TEST_F(Ages, TheChainOnceMoreChangesNothing) {
    test::MakeGame(file_);
    for (int step = store::kLatestStep; step >= 1; --step)
        test::TakeBack(file_, step);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    const std::string once = test::ReadBytes(file_);
    test::RecordingHost again;
    OpenUpgraded(file_, test::DefaultDataFile(), again);
    EXPECT_TRUE(test::ReadBytes(file_) == once);
    EXPECT_TRUE(again.lists.empty());
}

TEST_F(Ages, AFileIsNumberedByTheLatestStep) {
    test::MakeGame(file_);
    test::TakeBack(file_, 46);
    test::RawDatabase(file_).Run("PRAGMA user_version=1");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(test::RawDatabase(file_).Ask("PRAGMA user_version"), std::to_string(store::kLatestStep));
}

TEST_F(Ages, APresentFileOfAnEarlierProgramIsNumberedAnew) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("PRAGMA user_version=1");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(test::RawDatabase(file_).Ask("PRAGMA user_version"), std::to_string(store::kLatestStep));
    EXPECT_TRUE(host_.lists.empty());
}

TEST(Steps, EndWithTheOneThatFilesAreNumberedBy) {
    EXPECT_EQ(SchemaSteps().back().number, store::kLatestStep);
}

TEST(Steps, AreSixGroupsInTheirOrder) {
    std::vector<std::pair<int, int>> ends;
    for (const Group group : Groups())
        ends.emplace_back(group.front().number, group.back().number);
    EXPECT_EQ(ends, (std::vector<std::pair<int, int>>{
                        {1, 10}, {11, 20}, {21, 31}, {32, 44}, {45, store::kLatestStep}, {-1, -50}}));
}

TEST(Steps, AreNumberedOnceAndSayTheirNumber) {
    int before = 0;
    for (const Step& step : SchemaSteps()) {
        EXPECT_EQ(step.number, ++before);
        EXPECT_TRUE(step.text.starts_with(std::to_string(step.number) + " - ")) << step.text;
    }
}

TEST_F(Ages, AFileWithoutThePackageTableGetsItBeforeItsField) {
    test::MakeGame(file_);
    test::TakeBack(file_, 3);
    test::TakeBack(file_, 2);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(host_.lists,
              (std::vector<std::string>{"2 - Add of Package Table\n3 - Add of PkgPackage to Package\n"}));
}

TEST_F(Ages, ATableIsMadeOfTheFieldsOfItsStepOnly) {
    test::MakeGame(file_);
    for (int step = store::kLatestStep; step >= 15; --step)
        test::TakeBack(file_, step);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    std::vector<std::string> steps;
    for (const std::string& list : host_.lists) {
        if (list.find("44 - ") != std::string::npos) steps.push_back("44");
        if (list.find("45 - ") != std::string::npos) steps.push_back("45");
    }
    EXPECT_EQ(steps, (std::vector<std::string>{"44", "45"}));
}

TEST_F(Ages, StepEightIsDoneBehindStepSevenInTheSameRun) {
    test::MakeGame(file_);
    test::TakeBack(file_, 7);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(host_.lists,
              (std::vector<std::string>{"7 - Add of NumericCondActs to ProcessTables\n",
                                        "7 - Add of NumericCondActs to ProcessTables\n8 - Correction of "
                                        "NumericCondActs\n"}));
    EXPECT_EQ(test::RawDatabase(file_).Ask("SELECT numericcondacts FROM ProcessTables WHERE canum=1"),
              "101 1 250 1 265");
}

TEST_F(Ages, AnEntryWithoutConditionsNeedsNoNumbers) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("UPDATE ProcessTables SET condacts='', numericcondacts='', numcas=0");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_TRUE(host_.lists.empty());
}

TEST_F(Ages, ProcessesInUseGetABlankDescription) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run("UPDATE ProcessTables SET estype=7 WHERE canum=2");
    test::TakeBack(file_, 5);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    const test::RawDatabase raw(file_);
    EXPECT_EQ(raw.Ask("SELECT group_concat(pmsgnum || ':' || pmsgmsg, ';') FROM ProcDesc"),
              "0:THE PROCESS TABLE;1:Done after a DESC;2:The computer does its thing.;7: ");
}

TEST_F(Ages, TheFontIsFoundByItsName) {
    test::MakeGame(file_);
    test::TakeBack(file_, 18);
    test::RawDatabase(file_).Run("UPDATE Adventure SET Font='georgia'");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(test::RawDatabase(file_).Ask("SELECT Font FROM Adventure"), "4");
}

TEST_F(Ages, AFontThatIsNotKnownBecomesTheDefault) {
    test::MakeGame(file_);
    test::TakeBack(file_, 18);
    test::RawDatabase(file_).Run("UPDATE Adventure SET Font='Wanderlust'");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(test::RawDatabase(file_).Ask("SELECT Font FROM Adventure"), "0");
}

TEST_F(Ages, TheTablesOfPicturesAreTold) {
    test::MakeGame(file_);
    test::TakeBack(file_, 17);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(
        host_.reports,
        (std::vector<Report>{
            {Report::Kind::Notice, "Critical Changes",
             "Your Database is being updated to Version 4.\n"
             "This version has a Character Editor and Graphics Editor similar to the original VEL.\n"
             "It also has implemented more of the VEL character codes for ink & color, like Inverse & "
             "Paper.\n"
             "If you have imported this DataBase using UnMarlo or UnVels, redo the Decompile and "
             "Import to get the new functionality."}}));
}

TEST_F(Ages, AColumnThatAnInterruptedChainLeftBehindKeepsItsValues) {
    test::MakeGame(file_);
    test::RawDatabase(file_).Run(
        "UPDATE Adventure SET source='New'; DELETE FROM Tables WHERE tablenum=5 AND fieldname='source'");
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_EQ(host_.lists, (std::vector<std::string>{"46 - Add of Source to Adventure table\n"}));
    EXPECT_EQ(test::RawDatabase(file_).Ask("SELECT source FROM Adventure"), "New");
}

}  // namespace
}  // namespace fabula::upgrades
