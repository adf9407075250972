#include "authoring/jobs/decompile_screen.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/doubles/scripted_pump.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using platform::ProgramCall;
using platform::ProgramEnd;
using std::filesystem::path;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

/// Programs that write what a test says, and note how they were called.
class ScriptedPrograms final : public platform::Programs {
  public:
    std::string writes = "a listing\n";
    ProgramEnd end;
    bool hasViewer = true;
    std::function<void()> atStart = [] {};
    std::vector<ProgramCall> calls;
    std::vector<path> shown;

    ProgramEnd Run(const ProgramCall& call, const std::function<bool()>& goesOn) override {
        calls.push_back(call);
        atStart();
        std::ofstream(call.output, std::ios::binary) << writes;
        return goesOn() ? end : ProgramEnd{ProgramEnd::How::Stopped, 0, ""};
    }
    bool ShowText(const path& file) override {
        shown.push_back(file);
        return hasViewer;
    }
};

class DecompileScreenTest : public testing::Test {
  protected:
    DecompileScreenTest() {
        for (const char* file : {"unMarlo", "UnVels", "game.sna"})
            std::ofstream(In(file)) << "x";
    }

    path In(const char* name) const { return folder_ / name; }
    std::string Name(const char* name) const { return In(name).string(); }
    DecompileScreen Screen() { return DecompileScreen(host_); }
    /// A screen on which everything is filled in.
    DecompileScreen Filled(Decompiler decompiler) {
        DecompileScreen screen(host_);
        screen.chosen = decompiler;
        screen.programs = {Name("unMarlo"), Name("UnVels")};
        screen.input = Name("game.sna");
        screen.output = Name("game.lst");
        return screen;
    }
    std::string LastBox() const { return dialogs_.Boxes().empty() ? "" : dialogs_.Boxes().back().text; }
    static std::string Content(const path& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    int Files() const {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_.Path()), {}));
    }

    test::TempFolder folder_;
    platform::ScriptedDialogs dialogs_;
    test::ScriptedPump pump_;
    platform::MemorySettings settings_;
    ScriptedPrograms programs_;
    DecompileHost host_{dialogs_, pump_, settings_, programs_};
};

TEST_F(DecompileScreenTest, WhatIsMissingIsToldInItsOrder) {
    DecompileScreen screen = Screen();
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "No Program Selected");
    EXPECT_EQ(dialogs_.Boxes().back().title, "Error");
    screen.chosen = Decompiler::UnMarlo;
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "No Location for the UnMarlo program");
    screen.chosen = Decompiler::UnVel;
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "No Location for the UnVel program");
    screen.programs = {Name("gone-unMarlo"), Name("gone-UnVels")};
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "The UnVel program is no longer where you said it was.");
    screen.chosen = Decompiler::UnMarlo;
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "The UnMarlo program is no longer where you said it was.");
    screen.programs = {Name("unMarlo"), Name("UnVels")};
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "No Input File Selected");
    screen.input = Name("game.sna");
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "No Output File Selected");
    EXPECT_TRUE(programs_.calls.empty());
}

TEST_F(DecompileScreenTest, UnMarloRunsTwice) {
    DecompileScreen screen = Filled(Decompiler::UnMarlo);
    EXPECT_TRUE(screen.Run());
    ASSERT_EQ(programs_.calls.size(), 2U);
    EXPECT_EQ(programs_.calls[0].program, In("unMarlo"));
    EXPECT_THAT(programs_.calls[0].arguments, ElementsAre(Name("game.sna"), "-O", "-TZB"));
    EXPECT_THAT(programs_.calls[1].arguments, ElementsAre(Name("game.sna"), "-O", "-TZ"));
    EXPECT_EQ(Content(In("game.lst.lis")), "a listing\n");
    EXPECT_EQ(Content(In("game.lst")), "a listing\n");
    EXPECT_THAT(programs_.shown, ElementsAre(In("game.lst")));
}

TEST_F(DecompileScreenTest, UnMarloTakesTheOptionLWhenAskedFor) {
    DecompileScreen screen = Filled(Decompiler::UnMarlo);
    screen.passL = true;
    EXPECT_TRUE(screen.Run());
    EXPECT_THAT(programs_.calls.at(0).arguments, ElementsAre(Name("game.sna"), "-O", "-L", "-TZB"));
    EXPECT_THAT(programs_.calls.at(1).arguments, ElementsAre(Name("game.sna"), "-O", "-L", "-TZ"));
}

TEST_F(DecompileScreenTest, UnVelsRunsOnceWithCharactersAndGraphics) {
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_TRUE(screen.Run());
    ASSERT_EQ(programs_.calls.size(), 1U);
    EXPECT_EQ(programs_.calls[0].program, In("UnVels"));
    EXPECT_THAT(programs_.calls[0].arguments, ElementsAre(Name("game.sna"), "-C", "-G"));
    EXPECT_EQ(Content(In("game.lst")), "a listing\n");
    EXPECT_EQ(Files(), 4);
}

TEST_F(DecompileScreenTest, NamesMayHoldWhatAShellWouldTake) {
    const char* input = "a b;$(touch x)`&|'\".sna";
    std::ofstream(In(input)) << "x";
    DecompileScreen screen = Filled(Decompiler::UnVel);
    screen.input = Name(input);
    EXPECT_TRUE(screen.Run());
    EXPECT_EQ(programs_.calls.at(0).arguments.at(0), Name(input));
}

TEST_F(DecompileScreenTest, BlanksGoOutOfTheNameOfTheOutputAndStayInItsFolder) {
    std::filesystem::create_directory(In("my games"));
    DecompileScreen screen = Filled(Decompiler::UnVel);
    screen.output = Name("my games/the  game.unp");
    EXPECT_TRUE(screen.Run());
    EXPECT_EQ(screen.output, Name("my games/thegame.unp"));
    EXPECT_EQ(Content(In("my games/thegame.unp")), "a listing\n");
}

TEST_F(DecompileScreenTest, AnOutputThatIsEmptyIsToldAndNotKept) {
    programs_.writes = "";
    DecompileScreen marlo = Filled(Decompiler::UnMarlo);
    EXPECT_FALSE(marlo.Run());
    EXPECT_EQ(LastBox(), Name("game.lst.lis") + " does not exist and there is no UnMarlo output");
    DecompileScreen vel = Filled(Decompiler::UnVel);
    EXPECT_FALSE(vel.Run());
    EXPECT_EQ(LastBox(), Name("game.lst") + " does not exist and there is no UnVel output");
    EXPECT_EQ(Files(), 3);
    EXPECT_TRUE(programs_.shown.empty());
}

TEST_F(DecompileScreenTest, AnOlderListingStaysWhenThereIsNoNewOne) {
    std::ofstream(In("game.lst")) << "older";
    programs_.writes = "";
    dialogs_.AnswerNext(true);
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), Name("game.lst") + " is as it was: there is no UnVel output");
    EXPECT_EQ(Content(In("game.lst")), "older");
}

TEST_F(DecompileScreenTest, AnOlderListingIsReplacedOnlyAfterAQuestion) {
    std::ofstream(In("game.lst")) << "older";
    DecompileScreen screen = Filled(Decompiler::UnVel);
    dialogs_.AnswerNext(false);
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "All information in " + Name("game.lst") + " will be deleted.");
    EXPECT_TRUE(programs_.calls.empty());
    dialogs_.AnswerNext(true);
    EXPECT_TRUE(screen.Run());
    EXPECT_EQ(Content(In("game.lst")), "a listing\n");
}

TEST_F(DecompileScreenTest, TheGameIsNotWrittenOver) {
    DecompileScreen screen = Filled(Decompiler::UnVel);
    screen.output = screen.input;
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "The listing cannot be written over the game itself");
    EXPECT_EQ(Content(In("game.sna")), "x");
}

TEST_F(DecompileScreenTest, WhatAProgramTellsIsShown) {
    programs_.end = {ProgramEnd::How::Exited, 3, "  Not a snapshot\n\x1B[2J\n"};
    programs_.writes = "";
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_FALSE(screen.Run());
    EXPECT_THAT(screen.Status(), HasSubstr("UnVel tells:\n"));
    EXPECT_THAT(screen.Status(), HasSubstr("Not a snapshot\n"));
    EXPECT_THAT(screen.Status(), HasSubstr("UnVel ended with status 3.\n"));
    EXPECT_EQ(screen.Status().find('\x1B'), std::string::npos);
}

TEST_F(DecompileScreenTest, AListingIsKeptWhateverStatusTheProgramEndsWith) {
    programs_.end = {ProgramEnd::How::Exited, 3, ""};
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_TRUE(screen.Run());
    EXPECT_THAT(screen.Status(), HasSubstr("UnVel ended with status 3.\nWritten: " + Name("game.lst")));
}

TEST_F(DecompileScreenTest, NothingIsKeptOfAProgramThatCrashes) {
    programs_.end.how = ProgramEnd::How::Crashed;
    DecompileScreen screen = Filled(Decompiler::UnMarlo);
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "UnMarlo has crashed.");
    EXPECT_EQ(programs_.calls.size(), 1U);
    EXPECT_EQ(Files(), 3);
}

TEST_F(DecompileScreenTest, CancelEndsTheProgramAndNothingIsLeft) {
    DecompileScreen screen = Filled(Decompiler::UnMarlo);
    pump_.atTurn = [&] { screen.Cancel(); };
    EXPECT_FALSE(screen.Run());
    EXPECT_THAT(screen.Status(), EndsWith("Decompiling cancelled\n"));
    EXPECT_EQ(programs_.calls.size(), 1U);
    EXPECT_EQ(Files(), 3);
    pump_.atTurn = [] {};
    EXPECT_TRUE(screen.Run());
}

TEST_F(DecompileScreenTest, ShowsHowMuchIsWrittenAndCanNotBeStartedTwice) {
    programs_.writes = std::string(12'345, 'x');
    DecompileScreen screen = Filled(Decompiler::UnVel);
    std::string progress;
    pump_.atTurn = [&] {
        progress = screen.ProgressLine();
        EXPECT_TRUE(screen.Running());
        EXPECT_FALSE(screen.Run());
    };
    EXPECT_TRUE(screen.Run());
    EXPECT_EQ(progress, "game.lst: 12,345 bytes");
    EXPECT_EQ(screen.ProgressLine(), "");
    EXPECT_THAT(screen.Status(), HasSubstr("12,345 bytes\n"));
}

TEST_F(DecompileScreenTest, AProgramThatCanNotBeStartedIsTold) {
    programs_.atStart = [] { throw Error("Could not start UnVels: not allowed."); };
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "Could not start UnVels: not allowed.");
    EXPECT_FALSE(screen.Running());
    EXPECT_EQ(Files(), 3);
}

TEST_F(DecompileScreenTest, ASystemWithoutAViewerSaysSo) {
    programs_.hasViewer = false;
    DecompileScreen screen = Filled(Decompiler::UnVel);
    EXPECT_TRUE(screen.Run());
    EXPECT_THAT(screen.Status(), EndsWith("The system has no program that shows the listing.\n"));
}

TEST_F(DecompileScreenTest, AProgramOfAnotherNameIsRefused) {
    DecompileScreen screen = Screen();
    dialogs_.AnswerFile(In("game.sna"));
    screen.FindProgram(Decompiler::UnMarlo);
    EXPECT_EQ(LastBox(), "The executable does not have UnMarlo in it.");
    dialogs_.AnswerFile(In("unMarlo"));
    screen.FindProgram(Decompiler::UnVel);
    EXPECT_EQ(LastBox(), "The executable does not have UnVels in it.");
    EXPECT_EQ(screen.programs[0] + screen.programs[1], "");
    ASSERT_EQ(dialogs_.Questions().size(), 2U);
    EXPECT_EQ(dialogs_.Questions()[0].title, "Find UnMarlo Executable");
    EXPECT_EQ(dialogs_.Questions()[1].title, "Find UnVel Executable");
}

TEST_F(DecompileScreenTest, AProgramOfAnotherNameThatWasTypedIsRefusedToo) {
    DecompileScreen screen = Filled(Decompiler::UnVel);
    screen.programs[1] = Name("unMarlo");
    EXPECT_FALSE(screen.Run());
    EXPECT_EQ(LastBox(), "The executable does not have UnVels in it.");
}

TEST_F(DecompileScreenTest, ProgramsAreRememberedAndNeedNoExtension) {
    DecompileScreen screen = Screen();
    dialogs_.AnswerFile(In("unMarlo"));
    screen.FindProgram(Decompiler::UnMarlo);
    dialogs_.AnswerFile(In("UnVels"));
    screen.FindProgram(Decompiler::UnVel);
    EXPECT_EQ(Screen().programs, (std::array<std::string, 2>{Name("unMarlo"), Name("UnVels")}));
}

TEST_F(DecompileScreenTest, FilesAreAskedForInTheDialogsOfTheProgram) {
    DecompileScreen screen = Screen();
    screen.ChooseInput();
    EXPECT_EQ(LastBox(), "No Program Selected");
    screen.chosen = Decompiler::UnMarlo;
    dialogs_.AnswerFile(In("game.sna"));
    screen.ChooseInput();
    EXPECT_EQ(screen.output, Name("game.unq"));
    dialogs_.AnswerFile(In("other.unq"));
    screen.ChooseOutput();
    EXPECT_EQ(screen.output, Name("other.unq"));
    screen.chosen = Decompiler::UnVel;
    dialogs_.AnswerFile(std::nullopt);
    screen.ChooseInput();
    dialogs_.AnswerFile(std::nullopt);
    screen.ChooseOutput();
    const auto& asked = dialogs_.Questions();
    ASSERT_EQ(asked.size(), 4U);
    EXPECT_EQ(asked[0].title, "Open Existing Sinclair Marloed Game File");
    EXPECT_EQ(asked[0].filter, "SNA Files|*.sna");
    EXPECT_EQ(asked[1].title, "Save as UnMarloed File ");
    EXPECT_EQ(asked[1].filter, "UnMarloed File (*.unq)|*.unq");
    EXPECT_EQ(asked[1].extension, "unq");
    EXPECT_EQ(asked[2].title, "Open Existing Sinclair Veled Game File");
    EXPECT_EQ(asked[2].filter,
              "All Snapshots|*.sna;*.z80;*.sp|*.SNA Files|*.sna|Z80 Files|*.z80|SP files|*.sp");
    EXPECT_EQ(asked[2].start, folder_.Path());
    EXPECT_EQ(asked[3].title, "Save as UnVeled File");
    EXPECT_EQ(asked[3].filter, "UnVeled File (*.unp)|*.unp");
    EXPECT_EQ(settings_.Get("Decompile", "QPLoc"), folder_.Path().string());
}

}  // namespace
}  // namespace fabula::authoring
