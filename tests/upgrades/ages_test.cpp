// Files from before each step come out as the file was before it was taken back.

#include <map>

#include <gtest/gtest.h>

#include "old_file.h"
#include "store/file/file_forms.h"
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

    /// What a fresh game of a kind holds. It is the same each time.
    static const Contents& Fresh(AdventureKind kind) {
        static std::map<AdventureKind, Contents> known;
        Contents& contents = known[kind];
        if (contents.empty()) {
            const test::TempFolder folder;
            test::MakeGame(folder / "game.fbd", kind);
            contents = test::ContentsOf(folder / "game.fbd");
        }
        return contents;
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

/// The chain on a file that it has brought up to date shows no box and changes no byte.
void ExpectDone(const std::filesystem::path& file) {
    const std::string once = test::ReadBytes(file);
    test::RecordingHost again;
    OpenUpgraded(file, test::DefaultDataFile(), again);
    EXPECT_TRUE(test::ReadBytes(file) == once) << "once more changed something";
    EXPECT_TRUE(again.lists.empty());
    EXPECT_EQ(again.changes, 0);
    EXPECT_TRUE(again.proposals.empty());
}

const auto kEveryKind = testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo);

/// A step of the chain, and the kind of the game that it is tried on.
using StepAndKind = std::tuple<int, AdventureKind>;

std::string NameOf(const testing::TestParamInfo<StepAndKind>& tested) {
    return std::string(store::NameOf(std::get<1>(tested.param))) +
           std::to_string(std::get<0>(tested.param));
}

class OneStep : public Ages, public testing::WithParamInterface<StepAndKind> {};

TEST_P(OneStep, IsDoneAgain) {
    const auto [step, kind] = GetParam();
    test::MakeGame(file_, kind);
    test::TakeBack(file_, step);
    AnswerType(kind);
    ExpectSame(Upgraded(), Fresh(kind));
    const std::string number = std::to_string(step) + " - ";
    ASSERT_FALSE(host_.lists.empty());
    EXPECT_EQ(host_.lists.front().substr(0, number.size()), number);
    EXPECT_EQ(host_.changes, 1);
}

INSTANTIATE_TEST_SUITE_P(Numbered, OneStep,
                         testing::Combine(testing::Range(1, store::kLatestStep + 1), kEveryKind), NameOf);

/// A file as it was when the steps from a number on had not been written.
class Age : public Ages, public testing::WithParamInterface<StepAndKind> {};

TEST_P(Age, BecomesThePresent) {
    const auto [step, kind] = GetParam();
    test::MakeGameBefore(file_, kind, step);
    AnswerType(kind);
    ExpectSame(Upgraded(), Fresh(kind));
    ExpectDone(file_);
}

INSTANTIATE_TEST_SUITE_P(BeforeStep, Age,
                         testing::Combine(testing::Range(1, store::kLatestStep + 1), kEveryKind), NameOf);

/// What the corrections find in files of old: the texts, colours, flags and catalogues as they were, each
/// with what it becomes.
struct OldData {
    const char* old;
    const char* present;
    int since = 0;  ///< the step that made it possible; 0 for every file
};

constexpr OldData kOldData[] = {
    {"UPDATE SystemMessages SET smsgmsg='Press any KEY to go on.' WHERE smsgnum=16",
     "UPDATE SystemMessages SET smsgmsg='Press ENTER to go on.' WHERE smsgnum=16"},
    {"UPDATE Messages SET msgmsg='one'||char(13,10)||'two'||char(10)||'three' WHERE msgnum=0",
     "UPDATE Messages SET msgmsg='one'||char(140)||'two'||char(140)||'three' WHERE msgnum=0"},
    {"UPDATE Messages SET msgmsg='four'||char(30)||'five' WHERE msgnum=1",
     "UPDATE Messages SET msgmsg='four'||char(140)||'five' WHERE msgnum=1"},
    {"UPDATE Adventure SET BackColor=16777215, textcolor=58880",
     "UPDATE Adventure SET BackColor=15, textcolor=4"},
    {"UPDATE ProcessTables SET condacts='PLACE 0 NOTCR', numericcondacts='208 0 NOTCR', numcas=2 WHERE "
     "canum=1",
     "UPDATE ProcessTables SET condacts='PLACE 0 252', numericcondacts='208 0 252', numcas=2 WHERE "
     "canum=1",
     8},
    {"UPDATE Flags SET flgtype='System', flguse='Switch' WHERE flgnum IN (28,255)",
     "UPDATE Flags SET flgtype='User', flguse='Unknown' WHERE flgnum IN (28,255)"},
    {"DELETE FROM Flags WHERE flgnum>255", ""},
    {"UPDATE CondActs SET caparam1=4 WHERE caname='PUTO'", ""},
    {"UPDATE CondActs SET camaxval1=9 WHERE caname IN ('CHARSET','PAPER')", ""},
    {"DELETE FROM CondActs WHERE canum IN (283,288,289,290,291) OR canum>=292", ""},
    {"UPDATE CondActs SET caname='BOLD' WHERE canum=284; UPDATE CondActs SET caname='ITALIC' WHERE "
     "canum=285; UPDATE CondActs SET caname='UNDLINE' WHERE canum=286; UPDATE CondActs SET caname='FONT' "
     "WHERE canum=287",
     ""},
    {"DELETE FROM Codes WHERE codenum>127", ""},
    {"DELETE FROM DataBases WHERE dbnum IN (33,34)", ""},
    {"UPDATE Tables SET tablename='DataBases' WHERE tablenum=14", ""},
    {"UPDATE Tables SET tablename='Messages' WHERE tablenum=15", ""},
};

/// Whether texts were written before there was markup.
enum class Texts { BeforeMarkup, WithMarkup };

/// A game with what the corrections are to make of the records of old, and all that it holds.
struct PresentGame {
    std::filesystem::path file;
    Contents contents;
};

/// A file of an age with records of its age, from before the markup or from its first versions, of each
/// kind in turn.
class AgeWithItsData : public Ages, public testing::WithParamInterface<int> {
  protected:
    void MakeOld(AdventureKind kind, Texts texts, int step) {
        std::filesystem::copy_file(OldGame(kind, texts, step), file_);
    }

    static const PresentGame& PresentOf(AdventureKind kind) {
        static std::map<AdventureKind, PresentGame> made;
        PresentGame& game = made[kind];
        if (!game.file.empty()) return game;
        game.file = Made() / (std::string(store::NameOf(kind)) + ".fbd");
        test::MakeGame(game.file, kind);
        const test::RawDatabase raw(game.file);
        for (const OldData& data : kOldData)
            raw.Run(data.present);
        raw.Run("UPDATE Locations SET locdesc='&lt;Fish&gt; &amp; chips' WHERE locnum=1");
        game.contents = test::ContentsOf(game.file);
        return game;
    }

  private:
    static std::filesystem::path Made() {
        static const test::TempFolder made;
        return made.Path();
    }

    /// Each is made once, from the one a step later, and copied.
    static std::filesystem::path OldGame(AdventureKind kind, Texts texts, int step) {
        const std::filesystem::path game =
            Made() / (std::string(store::NameOf(kind)) + (texts == Texts::WithMarkup ? "-markup" : "") +
                      std::to_string(step));
        if (std::filesystem::exists(game)) return game;
        if (step > store::kLatestStep) {
            std::filesystem::copy_file(PresentOf(kind).file, game);
            WriteOldData(game, texts);
        } else {
            std::filesystem::copy_file(OldGame(kind, texts, step + 1), game);
            WriteWhatOnlyLaterFilesHave(game, step);
            test::TakeBack(game, step);
        }
        return game;
    }

    static void WriteOldData(const std::filesystem::path& game, Texts texts) {
        const test::RawDatabase raw(game);
        if (texts == Texts::BeforeMarkup) {
            raw.Run(
                "UPDATE Locations SET locdesc='<Fish> & chips' WHERE locnum=1;"
                "UPDATE SystemMessages SET smsgmsg='>' WHERE smsgnum=33");
        }
        for (const OldData& data : kOldData)
            raw.Run(data.old);
        raw.Run(std::string("UPDATE System SET sysinidate='1999-01-01', sysexportversion=") +
                (texts == Texts::BeforeMarkup ? "'1.9.9'" : "'2.0.5'"));
    }

    /// In a file from before the step that made it possible, such data is as it is today.
    static void WriteWhatOnlyLaterFilesHave(const std::filesystem::path& game, int step) {
        for (const OldData& data : kOldData) {
            if (data.since == step) test::RawDatabase(game).Run(data.present);
        }
    }
};

TEST_P(AgeWithItsData, FromBeforeTheMarkupBecomesThePresent) {
    const int step = GetParam();
    const auto kind = static_cast<AdventureKind>(step % 3);
    MakeOld(kind, Texts::BeforeMarkup, step);
    AnswerType(kind);
    ExpectSame(Upgraded(), PresentOf(kind).contents);
    ExpectDone(file_);
}

INSTANTIATE_TEST_SUITE_P(BeforeStep, AgeWithItsData, testing::Range(1, store::kLatestStep + 2));

/// Step 14 adds the version of a file's texts, so that only later files can say that theirs has markup.
class AgeWithMarkup : public AgeWithItsData {};

TEST_P(AgeWithMarkup, BecomesThePresentAndKeepsItsTexts) {
    const int step = GetParam();
    const auto kind = static_cast<AdventureKind>(step % 3);
    MakeOld(kind, Texts::WithMarkup, step);
    AnswerType(kind);
    ExpectSame(Upgraded(), PresentOf(kind).contents);
    ExpectDone(file_);
}

INSTANTIATE_TEST_SUITE_P(BeforeStep, AgeWithMarkup, testing::Range(15, store::kLatestStep + 2));

class Present : public Ages, public testing::WithParamInterface<AdventureKind> {};

TEST_P(Present, PassesWithoutABoxAndUnchanged) {
    test::MakeGame(file_, GetParam());
    const std::string before = test::ReadBytes(file_);
    OpenUpgraded(file_, test::DefaultDataFile(), host_);
    EXPECT_TRUE(test::ReadBytes(file_) == before);
    EXPECT_TRUE(host_.lists.empty());
    EXPECT_EQ(host_.changes, 0);
    EXPECT_TRUE(host_.reports.empty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, Present, kEveryKind);

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
