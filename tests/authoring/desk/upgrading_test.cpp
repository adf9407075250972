// A file of an older program that the main window opens.

#include "authoring/desk/upgrading.h"

#include <gtest/gtest.h>

#include "authoring/files/backups.h"
#include "authoring/main_screen_stand.h"
#include "support/raw_database.h"

namespace fabula::authoring {
namespace {

constexpr const char* kWithoutType =
    "ALTER TABLE Adventure DROP COLUMN adventype; DELETE FROM Tables WHERE fieldname='adventype'";
constexpr const char* kWithoutSource =
    "ALTER TABLE Adventure DROP COLUMN source; DELETE FROM Tables WHERE fieldname='source'";

class Upgrades : public testing::Test {
  protected:
    std::filesystem::path MakeOld(const std::string& sql) {
        const auto file = stand_.Make("old.fbd");
        test::RawDatabase(file).Run(sql);
        return file;
    }

    test::MainScreenStand stand_;
};

TEST_F(Upgrades, AFileOfAnOlderProgramIsBroughtUpToDateAndOpened) {
    const auto file = MakeOld(kWithoutSource);
    std::vector<std::string> boxes;
    stand_.main->upgradeBoxes.steps = [&](std::string_view list) { boxes.emplace_back(list); };
    EXPECT_TRUE(stand_.main->OpenFile(file));
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - old");
    EXPECT_EQ(boxes, (std::vector<std::string>{"46 - Add of Source to Adventure table\n", ""}));
    EXPECT_TRUE(stand_.main->CurrentContext()
                    .document.Adventure()
                    .Schema(store::TableNum::Adventure)
                    .Find("source"));
}

TEST_F(Upgrades, TheFileAsItWasIsKeptAsABackupCopy) {
    const auto file = MakeOld(kWithoutSource);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    const Backups backups(stand_.paths.state / "backups", stand_.clock);
    ASSERT_EQ(backups.Of(file).size(), 1u);
    EXPECT_EQ(test::RawDatabase(backups.Of(file)[0])
                  .Ask("SELECT count(*) FROM pragma_table_info('Adventure') WHERE name='source'"),
              "0");
}

TEST_F(Upgrades, AnUpgradedFileIsOpenForChangeOnce) {
    const auto file = MakeOld(kWithoutSource);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    EXPECT_THROW(store::Adventure::OpenForChange(file), store::OpenError);
}

TEST_F(Upgrades, AnOldFileThatCannotBeWrittenIsReadAsAnUpgradedCopy) {
    const auto file = MakeOld(kWithoutSource);
    const std::string before = test::ReadBytes(file);
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    EXPECT_EQ(stand_.Boxes(),
              (std::vector<std::string>{
                  "old.fbd was made by an older version of Fabula; an upgraded copy in memory is used, and "
                  "the file stays as it is.",
                  "Could not open " + file.string() +
                      ": it can only be read. It is opened to read only; Save As makes a copy that can be "
                      "changed."}));
    EXPECT_TRUE(stand_.Adventure().Schema(store::TableNum::Adventure).Find("source"));
    EXPECT_TRUE(test::ReadBytes(file) == before);
}

TEST_F(Upgrades, SaveAsOfAnUpgradedCopyMakesAFileOfThePresentForm) {
    const auto file = MakeOld(kWithoutSource);
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    stand_.dialogs.AnswerFile(stand_.folder / "new.fbd");
    EXPECT_TRUE(stand_.main->SaveAs());
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - new");
    stand_.StoreMessage(9, "nine");
    EXPECT_EQ(test::RawDatabase(stand_.folder / "new.fbd").Ask("SELECT source FROM Adventure"), "Unknown");
    EXPECT_EQ(
        test::RawDatabase(stand_.folder / "new.fbd").Ask("SELECT msgmsg FROM Messages WHERE msgnum=9"),
        "nine");
}

TEST_F(Upgrades, WithoutTheDefaultDataAPresentFileIsOpenedAndAnOldOneRefused) {
    const auto present = stand_.Make("present.fbd");
    const auto old = MakeOld(kWithoutSource);
    stand_.paths.defaultData = stand_.folder / "Fabula.ini";
    stand_.Restart();
    EXPECT_TRUE(stand_.main->OpenFile(present));
    EXPECT_FALSE(stand_.main->OpenFile(old));
    EXPECT_EQ(stand_.Boxes(),
              std::vector<std::string>{"Could not open " + old.string() +
                                       ": it was made by an older version of Fabula and must be "
                                       "upgraded first."});
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - present");
}

TEST_F(Upgrades, TheBoxOfTheStepsGoesWhenAStepFails) {
    std::vector<std::string> boxes;
    const MainScreen::UpgradeBoxes shown{.steps = [&](std::string_view list) { boxes.emplace_back(list); }};
    const IdeHost host{stand_.dialogs, stand_.settings, stand_.clock, stand_.events};
    {
        Upgrading upgrading(host, stand_.paths, shown);
        upgrading.BeginSteps("1 - Add of a field\n");
    }
    EXPECT_EQ(boxes, (std::vector<std::string>{"1 - Add of a field\n", ""}));
}

TEST_F(Upgrades, TheTypeOfAFileThatHasNoneIsAskedOnce) {
    const auto file = MakeOld(kWithoutType);
    int asked = 0;
    stand_.main->upgradeBoxes.chooseType = [&](store::AdventureSetup& setup) {
        ++asked;
        EXPECT_EQ(setup.Type(), store::AdventureKind::Fabula);
        setup.ChooseType(store::AdventureKind::Vel);
        setup.ChooseGraphics(true);
    };
    EXPECT_TRUE(stand_.main->OpenFile(file));
    EXPECT_EQ(stand_.main->AdventureStatus(), "Adventure Type: VEL     Graphics: ON    CharSets: OFF");
    stand_.main->Close();
    EXPECT_TRUE(stand_.main->OpenFile(file));
    EXPECT_EQ(asked, 1);
}

TEST_F(Upgrades, DoubleKeysAreReportedAndTheAdventureIsOpen) {
    const auto file = MakeOld("INSERT INTO Messages(msgnum, msgmsg) VALUES(3,'a'),(3,'b')");
    EXPECT_TRUE(stand_.main->OpenFile(file));
    ASSERT_EQ(stand_.dialogs.Reports().size(), 1u);
    EXPECT_EQ(stand_.dialogs.Reports()[0].title, "Duplicate Key Errors");
}

TEST_F(Upgrades, CancelEndsTheReportOfMovedFlags) {
    const auto file = MakeOld(
        "UPDATE System SET flagchange=0;"
        "INSERT INTO ProcessTables(canum, estype, w1, w2, w1num, w2num, numcas, condacts, numericcondacts) "
        "VALUES(1,0,'_','_',255,255,2,'SET 260','224 260')");
    stand_.dialogs.AnswerNext(true);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    stand_.main->Close();
    stand_.dialogs.AnswerNext(false);
    EXPECT_TRUE(stand_.main->OpenFile(file));
    stand_.main->Close();
    EXPECT_TRUE(stand_.main->OpenFile(file));
    ASSERT_EQ(stand_.dialogs.Reports().size(), 2u);
    EXPECT_EQ(stand_.dialogs.Reports()[1].title, "Version 6 Flag Change");
}

TEST_F(Upgrades, AFailureLeavesTheOpenAdventureAndTheFile) {
    stand_.OpenNew();
    const auto file =
        MakeOld("ALTER TABLE Locations DROP COLUMN exits; DELETE FROM Tables WHERE fieldname='exits'");
    const std::string before = test::ReadBytes(file);
    EXPECT_FALSE(stand_.main->OpenFile(file));
    EXPECT_EQ(stand_.main->Title(), "Fabula IDE - game");
    EXPECT_TRUE(test::ReadBytes(file) == before);
}

}  // namespace
}  // namespace fabula::authoring
