#include "authoring/jobs/verify_screen.h"

#include <fstream>

#include <gtest/gtest.h>

#include "support/doubles/scripted_dialogs.h"
#include "support/doubles/scripted_pump.h"
#include "support/games/template_adventure.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using test::ScriptedPump;

void AddEntries(store::Adventure& adventure, int count, const char* condacts, const char* numbers) {
    store::Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "def");
    for (int number = 0; number < count; ++number) {
        entries.AddNew();
        entries.SetField("canum", std::int64_t{number});
        entries.SetField("estype", std::int64_t{0});
        entries.SetField("w1", std::string("*"));
        entries.SetField("w2", std::string("*"));
        entries.SetField("w1num", std::int64_t{1});
        entries.SetField("w2num", std::int64_t{1});
        entries.SetField("condacts", std::string(condacts));
        entries.SetField("numericcondacts", std::string(numbers));
        entries.Update();
    }
}

TEST(VerifyScreen, PassesAnAdventureWithoutErrors) {
    const test::OpenedAdventure adventure;
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    EXPECT_FALSE(verify.Finished());
    verify.Run();
    EXPECT_TRUE(verify.Finished());
    EXPECT_TRUE(verify.Passed());
    EXPECT_EQ(verify.Status(), "Verifying Process/Response Tables \nNo Errors Found\nVerify Completed\n");
}

TEST(VerifyScreen, DoesNotPassOneWithAnError) {
    const test::OpenedAdventure adventure;
    AddEntries(*adventure, 1, "FROB 3", "");
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    verify.Run();
    EXPECT_TRUE(verify.Finished());
    EXPECT_FALSE(verify.Passed());
    EXPECT_EQ(verify.Status(),
              "Verifying Process/Response Tables \n"
              "Process Table 0 Entry # 0 (* * FROB 3)\n"
              "FROB is an invalid Condition/Action\n"
              "Verify Completed\n");
}

TEST(VerifyScreen, ShowsHowFarItIsEveryTenEntries) {
    const test::OpenedAdventure adventure;
    AddEntries(*adventure, 25, "DONE", "265");
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    std::vector<std::string> shown;
    verify.changed = [&] {
        if (!verify.ProgressLine().empty()) shown.push_back(verify.ProgressLine());
    };
    verify.Run();
    ASSERT_GE(shown.size(), 2U);
    EXPECT_EQ(shown[0], "    Process 10");
    EXPECT_EQ(shown[1], "    Process 20");
    EXPECT_EQ(verify.ProgressLine(), "");
}

TEST(VerifyScreen, OkEndsARunningCheckWhichHasNotPassed) {
    const test::OpenedAdventure adventure;
    AddEntries(*adventure, 100, "DONE", "265");
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    pump.atTurn = [&] {
        if (pump.turns == 2) verify.Ok();
    };
    verify.Run();
    EXPECT_TRUE(verify.Finished());
    EXPECT_FALSE(verify.Passed());
    EXPECT_EQ(verify.Status(), "Verifying Process/Response Tables \nVerify cancelled\n");
}

TEST(VerifyScreen, OkFinishesACheckThatWasNotBegun) {
    const test::OpenedAdventure adventure;
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    verify.Ok();
    EXPECT_TRUE(verify.Finished());
    EXPECT_FALSE(verify.Passed());
}

TEST(VerifyScreen, IsNotStartedTwice) {
    const test::OpenedAdventure adventure;
    AddEntries(*adventure, 30, "DONE", "265");
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    pump.atTurn = [&] { verify.Run(); };
    verify.Run();
    verify.Run();
    EXPECT_EQ(verify.Status(), "Verifying Process/Response Tables \nNo Errors Found\nVerify Completed\n");
}

TEST(VerifyScreen, StatusCanBeSaved) {
    const test::OpenedAdventure adventure;
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    verify.Run();
    platform::ScriptedDialogs dialogs;
    dialogs.AnswerFile(adventure.Folder() / "status.txt");
    EXPECT_TRUE(verify.SaveStatus(dialogs));
    EXPECT_EQ(dialogs.Questions().at(0).start, adventure.Folder() / "game-verify.txt");
    std::ifstream stream(adventure.Folder() / "status.txt");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), verify.Status());
}

TEST(VerifyScreen, StatusTakesThePlaceOfAnOlderFileAsAWhole) {
    const test::OpenedAdventure adventure;
    const auto file = adventure.Folder() / "status.txt";
    const auto older = adventure.Folder() / "older.txt";
    std::ofstream(file) << "an older status";
    std::filesystem::create_hard_link(file, older);
    ScriptedPump pump;
    VerifyScreen verify(*adventure, kForPlay, pump);
    verify.Run();
    platform::ScriptedDialogs dialogs;
    dialogs.AnswerFile(file);
    EXPECT_TRUE(verify.SaveStatus(dialogs));
    std::ifstream written(file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), verify.Status());
    std::ifstream kept(older);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), "an older status");
}

TEST(VerifyScreen, StatusThatCannotBeSavedIsTold) {
    const test::OpenedAdventure adventure;
    ScriptedPump pump;
    const VerifyScreen verify(*adventure, kForPlay, pump);
    platform::ScriptedDialogs dialogs;
    dialogs.AnswerFile("/nowhere/status.txt");
    EXPECT_FALSE(verify.SaveStatus(dialogs));
    EXPECT_EQ(dialogs.Boxes().at(0).text,
              "Could not write /nowhere/status.txt: No such file or directory.");
}

TEST(VerifyScreen, FindsTheEntryThatALineNames) {
    const auto entry = VerifyScreen::EntryOf("Process Table 3 Entry # 112 (TAKE LAMP FROB)");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->estype, 3);
    EXPECT_EQ(entry->canum, 112);
}

TEST(VerifyScreen, FindsNoEntryInOtherLines) {
    for (const char* line : {"", "Verify Completed", "Process Table x Entry # 1 (", "Process Table 3",
                             "Process Table 3 Entry # 99999999999999999999 ("})
        EXPECT_FALSE(VerifyScreen::EntryOf(line)) << line;
}

}  // namespace
}  // namespace fabula::authoring
