#include "authoring/files/backups.h"

#include <fstream>

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;
using store::TableNum;

class BackupsTest : public testing::Test {
  protected:
    void Rename(const char* title) {
        store::Cursor& settings = adventure_->OpenTable(TableNum::Adventure, "def");
        settings.SetField("advname", std::string(title));
        settings.Update();
    }
    static std::string TitleIn(const path& copy) {
        const auto adventure = store::Adventure::Open(copy, store::OpenMode::ReadOnly);
        return std::string(adventure->OpenTable(TableNum::Adventure, "def").Text("advname"));
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const path& copy : backups_.Of(adventure_.File()))
            names.push_back(copy.filename().string());
        return names;
    }

    test::OpenedAdventure adventure_;
    platform::FixedClock clock_{{2026, 3, 9, 8, 5, 7}};
    Backups backups_{adventure_.Folder() / "backups", clock_};
};

TEST_F(BackupsTest, AreNamedByTheFileTheDateAndTheTime) {
    const auto copy = backups_.Add(*adventure_);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->filename(), "game_20260309_080507.fbd");
}

TEST_F(BackupsTest, AreCopiesOfTheFileByteForByte) {
    Rename("First");
    const auto copy = backups_.Add(*adventure_);
    adventure_.Close();
    std::ifstream left(*copy, std::ios::binary);
    std::ifstream right(adventure_.File(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(left), {});
    EXPECT_EQ(bytes, std::string(std::istreambuf_iterator<char>(right), {}));
    EXPECT_EQ(TitleIn(*copy), "First");
}

TEST_F(BackupsTest, AreNotMadeTwiceOfTheSameBytes) {
    backups_.Add(*adventure_);
    clock_.Set({2026, 3, 10, 9, 0, 0});
    EXPECT_EQ(backups_.Add(*adventure_), std::nullopt);
    EXPECT_EQ(Names(), (std::vector<std::string>{"game_20260309_080507.fbd"}));
}

TEST_F(BackupsTest, AreMadeAgainWhenTheFileHasChanged) {
    backups_.Add(*adventure_);
    Rename("Second");
    clock_.Set({2026, 3, 10, 9, 0, 0});
    const auto copy = backups_.Add(*adventure_);
    ASSERT_TRUE(copy);
    EXPECT_EQ(TitleIn(*copy), "Second");
    EXPECT_EQ(Names(),
              (std::vector<std::string>{"game_20260310_090000_2.fbd", "game_20260309_080507.fbd"}));
}

TEST_F(BackupsTest, OfTheSameSecondAreCounted) {
    for (const char* title : {"First", "Second", "Third"}) {
        Rename(title);
        backups_.Add(*adventure_);
    }
    EXPECT_EQ(Names(), (std::vector<std::string>{"game_20260309_080507_3.fbd", "game_20260309_080507_2.fbd",
                                                 "game_20260309_080507.fbd"}));
}

TEST_F(BackupsTest, TheLastTenAreKept) {
    for (int minute = 0; minute < 12; ++minute) {
        Rename(std::to_string(minute).c_str());
        clock_.Set({2026, 3, 9, 8, minute, 0});
        backups_.Add(*adventure_);
    }
    const auto copies = backups_.Of(adventure_.File());
    ASSERT_EQ(copies.size(), 10U);
    EXPECT_EQ(copies.front().filename(), "game_20260309_081100_12.fbd");
    EXPECT_EQ(copies.back().filename(), "game_20260309_080200_3.fbd");
}

TEST_F(BackupsTest, AreKeptInTheOrderOfMakingWhateverTheClockSays) {
    for (int minute = 0; minute < 10; ++minute) {
        Rename(std::to_string(minute).c_str());
        clock_.Set({2026, 3, 9, 8, minute, 0});
        backups_.Add(*adventure_);
    }
    Rename("After the clock was set back");
    clock_.Set({2020, 1, 1, 0, 0, 0});
    const auto copy = backups_.Add(*adventure_);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(std::filesystem::exists(*copy));
    EXPECT_EQ(backups_.Of(adventure_.File()).front(), *copy);
    EXPECT_EQ(backups_.Of(adventure_.File()).size(), 10U);
    EXPECT_EQ(backups_.Add(*adventure_), std::nullopt);
}

TEST_F(BackupsTest, OfOlderProgramsComeBeforeTheNewOnes) {
    const auto first = backups_.Add(*adventure_);
    for (const char* name : {"game_20260401_000000.fbd", "game_20260401_000000_2.fbd"})
        std::filesystem::copy_file(*first, first->parent_path() / name);
    Rename("Later");
    const auto copy = backups_.Add(*adventure_);
    EXPECT_EQ(Names(), (std::vector<std::string>{copy->filename(), "game_20260401_000000_2.fbd",
                                                 "game_20260401_000000.fbd", "game_20260309_080507.fbd"}));
}

TEST_F(BackupsTest, OneOfEachOfTheLastSevenDaysIsKept) {
    for (int day = 1; day <= 9; ++day) {
        for (int minute = 0; minute < (day == 9 ? 12 : 2); ++minute) {
            Rename((std::to_string(day) + ":" + std::to_string(minute)).c_str());
            clock_.Set({2026, 3, day, 8, minute, 0});
            backups_.Add(*adventure_);
        }
    }
    std::vector<std::string> older = Names();
    older.erase(older.begin(), older.begin() + 10);
    EXPECT_EQ(older,
              (std::vector<std::string>{"game_20260308_080100_16.fbd", "game_20260307_080100_14.fbd",
                                        "game_20260306_080100_12.fbd", "game_20260305_080100_10.fbd",
                                        "game_20260304_080100_8.fbd", "game_20260303_080100_6.fbd"}));
}

TEST_F(BackupsTest, AreListedWithTheirTimesAndSizes) {
    const auto copy = backups_.Add(*adventure_);
    const std::vector<Backup> list = backups_.List(adventure_.File());
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].file, *copy);
    EXPECT_EQ(list[0].made, (platform::DateTime{2026, 3, 9, 8, 5, 7}));
    EXPECT_EQ(list[0].size, std::filesystem::file_size(adventure_.File()));
}

TEST_F(BackupsTest, AreComparedByTheCountsOfTheirRecords) {
    const auto copy = backups_.Add(*adventure_);
    adventure_->DeleteFrom(TableNum::Sounds);
    store::Cursor& messages = adventure_->OpenTable(TableNum::Messages, "*");
    const std::int64_t before = messages.RecordCount();
    messages.AddNew();
    messages.SetField("msgnum", 900);
    messages.Update();
    const auto backup = store::Adventure::Open(*copy, store::OpenMode::ReadOnly);
    const std::int64_t sounds = backup->OpenTable(TableNum::Sounds, "sndnum").RecordCount();
    std::vector<CountDifference> expected{{"Messages", before, before + 1}};
    if (sounds > 0) expected.push_back({"Sounds", sounds, 0});
    EXPECT_EQ(CompareCounts(*backup, *adventure_), expected);
}

TEST_F(BackupsTest, OtherFilesInTheFolderStay) {
    const auto first = backups_.Add(*adventure_);
    const path notes = first->parent_path() / "game_notes.fbd";
    std::ofstream(notes) << "mine";
    for (int minute = 0; minute < 12; ++minute) {
        Rename(std::to_string(minute).c_str());
        clock_.Set({2026, 3, 9, 9, minute, 0});
        backups_.Add(*adventure_);
    }
    EXPECT_TRUE(std::filesystem::exists(notes));
    EXPECT_FALSE(std::filesystem::exists(*first));
}

TEST_F(BackupsTest, OfFilesWithTheSameNameInOtherFoldersAreKeptApart) {
    backups_.Add(*adventure_);
    const test::OpenedAdventure other;
    EXPECT_TRUE(backups_.Of(other.File()).empty());
    EXPECT_TRUE(backups_.Add(*other));
    EXPECT_EQ(Names().size(), 1U);
}

TEST_F(BackupsTest, ThatCannotBeMadeLeaveNothingBehind) {
    std::ofstream(adventure_.Folder() / "backups") << "a file where the folder should be";
    EXPECT_THROW(backups_.Add(*adventure_), Error);
    EXPECT_TRUE(backups_.Of(adventure_.File()).empty());
}

TEST_F(BackupsTest, ThatCannotBeMadeAtOpeningAreToldAndWorkGoesOn) {
    std::ofstream(adventure_.Folder() / "backups") << "a file where the folder should be";
    platform::ScriptedDialogs dialogs;
    BackUpAtOpening(backups_, *adventure_, dialogs);
    ASSERT_EQ(dialogs.Boxes().size(), 1U);
    EXPECT_EQ(dialogs.Boxes()[0].title, "Warning");
    EXPECT_EQ(dialogs.Boxes()[0].text,
              "Could not make a backup copy of " + adventure_.File().string() + ": Not a directory.");
    Rename("Goes on");
}

TEST_F(BackupsTest, AtOpeningAreMadeWithoutAWord) {
    platform::ScriptedDialogs dialogs;
    BackUpAtOpening(backups_, *adventure_, dialogs);
    EXPECT_TRUE(dialogs.Boxes().empty());
    EXPECT_EQ(Names().size(), 1U);
}

}  // namespace
}  // namespace fabula::authoring
