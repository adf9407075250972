#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Engine;
using engine::Waiting;
using std::chrono::milliseconds;
using store::AdventureKind;

GameBuilder InputWorld() {
    GameBuilder game;
    game.Message(1, "Done.").Entry(0, "DO", "_", "MES 1");
    return game;
}

void Press(GameRun& run, std::string_view keys) {
    for (const char key : keys)
        run.engine.Key(static_cast<unsigned char>(key));
}

// Keys

TEST(Key, IsShownInUpperCaseWithTheCursorBehind) {
    const auto run = InputWorld().Start();
    Press(*run, "dO");
    EXPECT_EQ(run->window.typed, "DO");
    EXPECT_EQ(run->window.cursor, "_");
}

TEST(Key, SeveralAreShownOnceBehindTheLast) {
    const auto run = InputWorld().Start();
    run->engine.Keys(U"do\bx\r");
    EXPECT_EQ(run->window.Screen(), "Room 0?\n>DX\n(6)?\n>");
    const int shownBefore = run->window.inputsShown;
    run->engine.Keys(U"do");
    EXPECT_EQ(run->window.typed, "DO");
    EXPECT_EQ(run->window.inputsShown, shownBefore + 1);
}

TEST(Key, EnterRunsTheLine) {
    const auto run = InputWorld().Start();
    run->Said();
    Press(*run, "do");
    run->engine.Key(Engine::kEnter);
    EXPECT_EQ(run->Said(), "Done.");
    EXPECT_EQ(run->window.Screen(), "Room 0?\n>DO\nDone.?\n>");
}

TEST(Key, EnterOnAnEmptyLineDoesNothing) {
    const auto run = InputWorld().Start();
    run->Said();
    run->engine.Key(Engine::kEnter);
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->Flag(31), 0);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Key, BackspaceTakesTheLastCharacterAway) {
    const auto run = InputWorld().Start();
    Press(*run, "dox");
    run->engine.Key(Engine::kBackspace);
    EXPECT_EQ(run->window.typed, "DO");
}

TEST(Key, BackspaceTakesAWholeCharacterOfSeveralBytes) {
    const auto run = InputWorld().Start();
    run->engine.Key(U'Ä');
    run->engine.Key(Engine::kBackspace);
    EXPECT_EQ(run->window.typed, "");
}

TEST(Key, BackspaceInAnEmptyLineChangesNothing) {
    const auto run = InputWorld().Start();
    run->engine.Key(Engine::kBackspace);
    EXPECT_EQ(run->window.typed, "");
    EXPECT_EQ(run->Type("DO").substr(run->Said().size()), "Room 0?\nDone.");
}

TEST(Key, OnlyLettersAToZBecomeCapitals) {
    const auto run = InputWorld().Start();
    run->engine.Key(U'ä');
    Press(*run, "z{");
    EXPECT_EQ(run->window.typed, "äZ{");
}

TEST(Key, ControlCharactersAreNoKeys) {
    const auto run = InputWorld().Start();
    Press(*run, "\t\x1b");
    EXPECT_EQ(run->window.typed, "");
}

TEST(Key, ALineHasALimit) {
    const auto run = InputWorld().Start();
    for (int i = 0; i < 10000; ++i)
        run->engine.Key(U'x');
    EXPECT_EQ(run->window.typed.size(), 4096U);
}

TEST(Key, OfAnAnswerGoesToTheAnswer) {
    const auto run =
        InputWorld().Message(2, "Sure?").Word("ASK", 101, 0).Entry(0, "ASK", "_", "YESNO 2 MES 1").Start();
    run->Type("ASK");
    Press(*run, "y");
    EXPECT_EQ(run->window.typed, "Y");
    run->Said();
    run->engine.Key(Engine::kEnter);
    EXPECT_EQ(run->Said(), "Done.");
}

TEST(Key, OfAMarloGameShowsNoCursor) {
    const auto run = GameBuilder(AdventureKind::Marlo).Start();
    Press(*run, "do");
    EXPECT_EQ(run->window.typed, "DO");
    EXPECT_EQ(run->window.cursor, "");
}

TEST(Key, BeforeAGameRunsIsIgnored) {
    const auto run = InputWorld().Do("END");
    run->engine.EnterLine("N");
    run->engine.Key(U'x');
    run->engine.EnterLine("DO");
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
}

TEST(EnterLine, RunsALineAsIfItWereTyped) {
    const auto run = InputWorld().Start();
    run->Said();
    EXPECT_EQ(run->Type("do"), "Done.");
}

TEST(EnterLine, TakesTheCharactersThatKeysCouldHaveTyped) {
    const auto run = InputWorld().Start();
    run->Said();
    EXPECT_EQ(run->Type("d\x01o\t\r\n"), "Done.");
}

// Time-out

/// A game whose time-out is 2 units from the start, and which tells a turn that it brought.
GameBuilder Timed() {
    GameBuilder game = InputWorld();
    game.Message(2, "You doze. ");
    game.Entry(1, "_", "_", "TIME 2 4").Entry(2, "_", "_", "TIMEOUT MES 2");
    return game;
}

TEST(TimeOutTick, RunsATurnWithoutWordsAndSaysMessage35) {
    const auto run = Timed().Start();
    EXPECT_EQ(run->window.timeOut, milliseconds(2560));
    run->Said();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "You doze. (35)");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(TimeOutTick, CountsNoTurn) {
    const auto run = Timed().Start();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Flag(31), 0);
}

TEST(TimeOutTick, TakesItsMarkAwayAndStartsAgain) {
    const auto run = Timed().Start();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Flag(49), 4);
    EXPECT_TRUE(run->window.timeOut.has_value());
    run->Said();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "You doze. (35)");
}

TEST(TimeOutTick, ThrowsAwayWhatWasTyped) {
    const auto run = Timed().Start();
    run->Said();
    Press(*run, "do");
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "You doze. (35)");
    run->engine.Key(Engine::kEnter);
    EXPECT_EQ(run->Said(), "");
}

TEST(TimeOutTick, IsPutOffByEachKey) {
    const auto run = Timed().Start();
    const int starts = run->window.timeOutStarts;
    Press(*run, "d");
    EXPECT_EQ(run->window.timeOutStarts, starts + 1);
}

TEST(TimeOutTick, StopsWhenALineIsEntered) {
    const auto run =
        Timed().Message(3, "Wait.").Word("WAIT", 101, 0).Entry(0, "WAIT", "_", "PAUSE 1").Start();
    run->Type("WAIT");
    EXPECT_FALSE(run->window.timeOut.has_value());
    run->engine.WaitTick();
    EXPECT_TRUE(run->window.timeOut.has_value());
}

TEST(TimeOutTick, WithoutARunningTimeOutIsIgnored) {
    const auto run = InputWorld().Start();
    run->Said();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "");
}

TEST(TimeOutTick, WhileAQuestionWaitsLetsItStandAndAsksAgain) {
    const auto run = Timed().Word("WAIT", 101, 0).Entry(0, "WAIT", "_", "ANYKEY MES 1").Start();
    run->Type("WAIT");
    run->Said();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->Waits(), Waiting::AnyKey);
    EXPECT_EQ(run->Flag(49), 4);
    EXPECT_TRUE(run->window.timeOut.has_value());
    EXPECT_EQ(run->Type(""), "Done.");
}

TEST(TimeOutTick, OfATurnThatPausesTakesItsMarkAwayWhenTheTurnEnds) {
    const auto run = Timed().Entry(2, "_", "_", "TIMEOUT PAUSE 1").Start();
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Flag(49), 132);
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(49), 4);
}

TEST(TimeOutTick, AfterALineThatIsEnteredLaterTheAnswerIsNotMessage35) {
    const auto run = Timed().Start();
    run->engine.TimeOutTick();
    run->Said();
    EXPECT_EQ(run->Type("XYZZY"), "(6)");
}

TEST(TimeOutTick, OfAStateLoadedWithoutTimeUsesFlag48) {
    const auto run = InputWorld().Start();
    run->SetFlag(48, 3);
    run->SetFlag(49, 4);
    run->Type("DO");
    EXPECT_EQ(run->window.timeOut, milliseconds(3840));
}

}  // namespace
}  // namespace fabula::test
