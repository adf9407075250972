#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::StatusField;
using engine::Waiting;

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteFile(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

/// WRITE, PLAY and CLOSE drive the scripts; SAY prints, ASK asks.
GameBuilder ScriptWorld() {
    GameBuilder game;
    game.Word("WRITE", 101, 0)
        .Word("PLAY", 102, 0)
        .Word("CLOSE", 103, 0)
        .Word("SAY", 104, 0)
        .Word("ASK", 105, 0);
    game.Word("NAP", 106, 0).Message(1, "Fish &amp; chips.").Message(2, "Sure?").Message(3, "Yes.");
    game.Entry(0, "WRITE", "_", "SCRIPT 1 SET 200").Entry(0, "PLAY", "_", "SCRIPT 2 SET 201");
    game.Entry(0, "CLOSE", "_", "SCRIPT 0").Entry(0, "SAY", "_", "PLUS 202 1 MESSAGE 1");
    game.Entry(0, "ASK", "_", "YESNO 2 MESSAGE 3").Entry(0, "NAP", "_", "PAUSE 1 PLUS 203 1");
    return game;
}

std::string Status(GameRun& run) {
    return run.window.status[StatusField::Script];
}

std::unique_ptr<GameRun> Writing() {
    auto run = ScriptWorld().Start();
    run->window.AnswerFile(run->File("out.scr"));
    run->Type("WRITE");
    return run;
}

std::unique_ptr<GameRun> Loaded(const std::string& script) {
    auto run = ScriptWorld().Start();
    WriteFile(run->File("in.scr"), script);
    run->window.AnswerFile(run->File("in.scr"));
    run->Type("PLAY");
    return run;
}

TEST(ScriptAction, IsOffAtTheStart) {
    const auto run = ScriptWorld().Start();
    EXPECT_EQ(Status(*run), "Script Off");
    EXPECT_FALSE(run->window.nextEnabled);
    EXPECT_EQ(run->Flag(1001), 0);
}

TEST(ScriptAction, Of1Writes) {
    const auto run = Writing();
    EXPECT_EQ(run->window.fileQuestions, std::vector<std::string>{"Output SCRIPT Name"});
    EXPECT_EQ(Status(*run), "Script Writing");
    EXPECT_EQ(run->Flag(1001), 1);
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(ScriptAction, Of1WhileWritingIsRefused) {
    const auto run = Writing();
    run->SetFlag(200, 0);
    run->Type("WRITE");
    EXPECT_EQ(run->person.Boxes().back(),
              (platform::ScriptedPerson::Shown{"Script is already on!", "Error"}));
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(ScriptAction, Of2Loads) {
    const auto run = Loaded(">>SAY\n");
    EXPECT_EQ(run->window.fileQuestions, std::vector<std::string>{"Input SCRIPT Name"});
    EXPECT_EQ(Status(*run), "Script Loaded");
    EXPECT_EQ(run->Flag(1001), 2);
    EXPECT_TRUE(run->window.nextEnabled);
}

TEST(ScriptAction, Of2WhileLoadedIsRefused) {
    const auto run = Loaded(">>SAY\n");
    run->Type("PLAY");
    EXPECT_EQ(run->Box(), "Script is already loaded!");
}

TEST(ScriptAction, OfAFileThatDoesNotExistIsToldAndEndsTheTable) {
    const auto run = ScriptWorld().Start();
    run->window.AnswerFile(run->File("none.scr"));
    run->Type("PLAY");
    EXPECT_EQ(run->person.Boxes().size(), 1U);
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->Flag(1001), 0);
}

TEST(ScriptAction, CancelledChangesNothing) {
    const auto run = ScriptWorld().Start();
    run->window.AnswerFile(std::nullopt);
    run->Type("WRITE");
    EXPECT_EQ(Status(*run), "Script Off");
    EXPECT_EQ(run->Flag(1001), 0);
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(ScriptAction, Of1OverTheFileThatIsPlayedIsToldAndLeavesIt) {
    const auto run = Loaded(">>SAY\n>>SAY\n");
    run->window.AnswerFile(run->File("in.scr"));
    run->Type("WRITE");
    EXPECT_EQ(run->person.Boxes().back().text,
              "Could not write the script " + run->File("in.scr").string() + ": it is being played.");
    EXPECT_EQ(ReadFile(run->File("in.scr")), ">>SAY\n>>SAY\n");
    EXPECT_EQ(run->Flag(1001), 2);
}

TEST(ScriptAction, Of2OfTheFileThatIsWrittenIsTold) {
    const auto run = Writing();
    run->window.AnswerFile(run->File("out.scr"));
    run->Type("PLAY");
    EXPECT_EQ(run->person.Boxes().back().text,
              "Could not read the script " + run->File("out.scr").string() + ": it is being written.");
    EXPECT_EQ(run->Flag(1001), 1);
}

TEST(ScriptAction, Of0ClosesBoth) {
    const auto run = Writing();
    WriteFile(run->File("in.scr"), ">>SAY\n");
    run->window.AnswerFile(run->File("in.scr"));
    run->Type("PLAY");
    EXPECT_EQ(Status(*run), "Script Loaded & Writing");
    EXPECT_EQ(run->Flag(1001), 3);
    run->Type("CLOSE");
    EXPECT_EQ(Status(*run), "Script Off");
    EXPECT_EQ(run->Flag(1001), 0);
    EXPECT_FALSE(run->window.nextEnabled);
}

TEST(WrittenScript, HoldsTypedLinesWithTheirMarkAndWhatTheGameSaid) {
    const auto run = Writing();
    run->Type("say. say");
    run->Type("CLOSE");
    EXPECT_EQ(ReadFile(run->File("out.scr")), "?\n>>SAY. SAY\nFish & chips.\nFish & chips.\n?\n>>CLOSE\n");
}

TEST(WrittenScript, MarksAnswersAtTheHeadOfTheirLine) {
    const auto run = Writing();
    run->Type("ASK");
    run->Type("yes");
    run->Type("CLOSE");
    EXPECT_EQ(ReadFile(run->File("out.scr")), "?\n>>ASK\n\nSure?\n>>YES\nYes.\n?\n>>CLOSE\n");
}

TEST(WrittenScript, HasNoLooksAndIsNotWrapped) {
    const auto run = ScriptWorld()
                         .Message(4, "<INK=2>red</BRIGHT> one two")
                         .Word("LOOK", 110, 0)
                         .Entry(0, "LOOK", "_", "MESSAGE 4")
                         .Start();
    run->window.measures.textWidth = 8;
    run->window.AnswerFile(run->File("out.scr"));
    run->Type("WRITE");
    run->Type("LOOK");
    run->Type("CLOSE");
    EXPECT_EQ(ReadFile(run->File("out.scr")), "?\n>>LOOK\nred one two\n?\n>>CLOSE\n");
}

TEST(WrittenScript, ThatCantBeWrittenAnyLongerIsClosedAndToldOnce) {
    auto run = ScriptWorld().Start();
    std::filesystem::create_symlink("/dev/full", run->File("out.scr"));
    run->window.AnswerFile(run->File("out.scr"));
    run->Type("WRITE");
    for (int i = 0; i < 3; ++i)
        run->Type("SAY");
    EXPECT_EQ(run->person.Boxes().size(), 1U);
    EXPECT_EQ(Status(*run), "Script Off");
    EXPECT_EQ(run->Flag(1001), 0);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(DoNextScript, PlaysTheMarkedLinesToTheEnd) {
    const auto run = Loaded("noise\n>>say\nmore noise\n>>SAY. SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(202), 3);
    EXPECT_EQ(run->Box(), "End-of-file reached.");
    EXPECT_EQ(Status(*run), "Script Off");
    EXPECT_FALSE(run->window.nextEnabled);
    EXPECT_EQ(run->Flag(1001), 0);
}

TEST(DoNextScript, PlaysAFileWithAByteOrderMarkAndLineEndsOfOtherSystems) {
    const auto run = Loaded("\xEF\xBB\xBF>>SAY\r\n>>SAY\r\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(202), 2);
}

TEST(DoNextScript, PlaysAFileThatBeginsLikeAByteOrderMark) {
    const auto run = Loaded("\xEF\xBB>>SAY\n>>SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(202), 1);
}

TEST(DoNextScript, ShowsThePlayedLines) {
    const auto run = Loaded(">>SAY\n");
    run->engine.DoNextScript();
    EXPECT_NE(run->window.Screen().find(">SAY\nFish & chips.\n"), std::string::npos)
        << run->window.Screen();
}

TEST(DoNextScript, StopsAtAQuestionAndAnswersItAtTheNextStep) {
    const auto run = Loaded(">>ASK\n>>YES\n>>SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Waits(), Waiting::Answer);
    EXPECT_EQ(run->Flag(202), 0);
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(1000), 2);
    EXPECT_EQ(run->Flag(202), 1);
}

TEST(DoNextScript, GoesOnBehindAPause) {
    const auto run = Loaded(">>NAP\n>>SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    EXPECT_EQ(run->Flag(202), 0);
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(203), 1);
    EXPECT_EQ(run->Flag(202), 1);
}

TEST(DoNextScript, WithoutAScriptDoesNothing) {
    const auto run = ScriptWorld().Start();
    run->Said();
    run->engine.DoNextScript();
    EXPECT_EQ(run->Said(), "");
    EXPECT_TRUE(run->person.Boxes().empty());
}

TEST(DoNextScript, PassesOverAnEmptyLine) {
    const auto run = Loaded(">>\n>>SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(202), 1);
}

TEST(DoNextScript, CutsALineThatIsTooLong) {
    const auto run = Loaded(">>" + std::string(100000, 'x') + "\n>>SAY\n");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Flag(202), 1);
}

TEST(DoNextScript, EndsWithTheGame) {
    const auto run = ScriptWorld().Word("STOP", 110, 0).Entry(0, "STOP", "_", "SET 5000").Start();
    WriteFile(run->File("in.scr"), ">>STOP\n>>SAY\n");
    run->window.AnswerFile(run->File("in.scr"));
    run->Type("PLAY");
    run->engine.DoNextScript();
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
}

TEST(WrittenScript, OfAPlayedOneHoldsThePlayedLinesAndCanItselfBePlayed) {
    const auto run = Writing();
    WriteFile(run->File("in.scr"), ">>SAY\n>>ASK\n>>YES\n");
    run->window.AnswerFile(run->File("in.scr"));
    run->Type("PLAY");
    run->engine.DoNextScript();
    run->engine.DoNextScript();
    run->Type("CLOSE");
    EXPECT_EQ(ReadFile(run->File("out.scr")),
              "?\n>>PLAY\n?\n>>Read:>>SAY\nFish & "
              "chips.\n?\n>>Read:>>ASK\n\nSure?\n>>Read:>>YES\nYes.\n?\n>>CLOSE\n");
    const auto again = Loaded(ReadFile(run->File("out.scr")).substr(9));
    again->engine.DoNextScript();
    again->engine.DoNextScript();
    EXPECT_EQ(again->Flag(202), 1);
    EXPECT_EQ(again->Flag(1000), 2);
}

TEST(WrittenScript, OutlivesARestartOfTheGame) {
    const auto run = Writing();
    run->engine.Initialize();
    EXPECT_EQ(run->Flag(1001), 1);
    EXPECT_EQ(Status(*run), "Script Writing");
}

}  // namespace
}  // namespace fabula::test
