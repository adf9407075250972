#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;

GameBuilder Asking() {
    GameBuilder game;
    game.Message(1, "Eat it?").Message(2, "Yum.");
    return game;
}

TEST(YesNo, AsksItsMessageOnALineOfItsOwnAndWaits) {
    const auto run = Asking().Do("YESNO 1 MES 2");
    EXPECT_EQ(run->window.TakeText(), "\nEat it?");
    EXPECT_EQ(run->Waits(), Waiting::Answer);
    EXPECT_EQ(run->Flag(1000), 0);
    EXPECT_EQ(run->Flag(1017), 255);
}

TEST(YesNo, HoldsForAnAnswerThatBeginsAsSystemMessage30) {
    const auto run = Asking().Do("YESNO 1 MES 2");
    run->Said();
    EXPECT_EQ(run->Type("yes please"), "Yum.");
    EXPECT_EQ(run->Flag(1000), 2);
    EXPECT_EQ(run->Flag(1017), 0);
}

TEST(YesNo, FailsForAnyOtherAnswer) {
    const auto run = Asking().Do("YESNO 1 MES 2");
    run->Said();
    EXPECT_EQ(run->Type("NO"), "(6)");
    EXPECT_EQ(run->Flag(1000), 1);
}

TEST(YesNo, LeavesItsAnswerInTheVerbToo) {
    const auto yes = Asking().Do("YESNO 1");
    yes->Type("Y");
    EXPECT_EQ(yes->Flag(33), 2);
    const auto no = Asking().Do("YESNO 1");
    no->Type("N");
    EXPECT_EQ(no->Flag(33), 1);
}

TEST(YesNo, AnEmptyAnswerIsTheLastCharacterOfTheQuestion) {
    const auto yes = GameBuilder().Message(1, "Eat it (N/Y").Do("YESNO 1");
    yes->Type("");
    EXPECT_EQ(yes->Flag(1000), 2);
    const auto no = GameBuilder().Message(1, "Eat it (Y/N").Do("YESNO 1");
    no->Type("");
    EXPECT_EQ(no->Flag(1000), 1);
}

TEST(YesNo, AnAnswerCountsAsInputSoThatNothingSaysItWasNotUnderstood) {
    const auto run = Asking().Do("YESNO 1 MES 2");
    run->Said();
    EXPECT_EQ(run->Type("Y"), "Yum.");
}

TEST(YesNo, ResetsTheCellAtWhichLaterEntriesStart) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "SET 200 YESNO 1").Entry(0, "_", "_", "SET 201 SET 202");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("Y");
    EXPECT_EQ(run->Flag(201), 255);
    EXPECT_EQ(run->Flag(202), 255);
}

TEST(Quit, AsksSystemMessage12AndWaits) {
    const auto run = Asking().Do("QUIT MES 2");
    EXPECT_EQ(run->window.TakeText(), "\n(12)");
    EXPECT_EQ(run->Waits(), Waiting::Answer);
}

TEST(Quit, HoldsForYes) {
    const auto run = Asking().Do("QUIT MES 2");
    run->Said();
    EXPECT_EQ(run->Type("Y"), "Yum.");
}

TEST(Quit, WritesNeitherFlag1000NorTheVerb) {
    const auto run = Asking().Do("QUIT");
    run->SetFlag(1000, 77);
    run->Type("Y");
    EXPECT_EQ(run->Flag(1000), 77);
    EXPECT_EQ(run->Flag(33), 100);
}

TEST(Quit, NoEndsTheTableAndThrowsTheRestOfTheLineAway) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "QUIT MES 2").Entry(0, "DO", "_", "SET 201").Word("GO", 101, 0);
    game.Entry(0, "GO", "_", "SET 202");
    const auto run = game.Start();
    run->Said();
    run->Type("DO. GO");
    run->Type("N");
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->Flag(202), 0);
}

TEST(Quit, AnEmptyAnswerIsTheLastCharacterOfTheQuestion) {
    const auto run = Asking().SystemMessage(12, "Sure? Y").Do("QUIT MES 2");
    run->Said();
    EXPECT_EQ(run->Type(""), "Yum.");
}

TEST(Quit, LaterEntriesStartAtItsCellBecauseOnlyAnykeyAndYesnoResetIt) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "SET 200 QUIT").Entry(0, "DO", "_", "SET 201 SET 202");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("Y");
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->Flag(202), 255);
}

TEST(AnyKey, SaysSystemMessage16AndWaitsForAKey) {
    const auto run = Asking().Do("ANYKEY MES 2");
    EXPECT_EQ(run->window.TakeText(), "\n(16)");
    EXPECT_EQ(run->Waits(), Waiting::AnyKey);
    EXPECT_EQ(run->Flag(1017), 255);
    EXPECT_EQ(run->Flag(1018), 255);
}

TEST(AnyKey, GoesOnBehindItselfAtAnyKey) {
    const auto run = Asking().Do("ANYKEY MES 2");
    run->Said();
    run->engine.Key(U'x');
    EXPECT_EQ(run->Said(), "Yum.");
    EXPECT_EQ(run->Flag(1017), 0);
    EXPECT_EQ(run->Flag(1018), 0);
}

TEST(AnyKey, TakesEnterAndPrintsNoCharacter) {
    const auto run = Asking().Do("ANYKEY MES 2");
    run->Said();
    run->engine.Key(engine::Engine::kEnter);
    EXPECT_EQ(run->Said(), "Yum.");
    EXPECT_EQ(run->window.typed, "");
}

TEST(AnyKey, ResetsTheCellAtWhichLaterEntriesStart) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "SET 200 ANYKEY").Entry(0, "DO", "_", "SET 201 SET 202");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("");
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(AnyKey, BeforeTheFirstPromptGoesOnToIt) {
    GameBuilder game;
    game.Entry(1, "_", "_", "ANYKEY");
    const auto run = game.Start();
    EXPECT_EQ(run->Waits(), Waiting::AnyKey);
    run->Said();
    EXPECT_EQ(run->Type(""), "");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(End, AsksSystemMessage13AndWaits) {
    const auto run = Asking().Do("END");
    EXPECT_EQ(run->window.TakeText(), "\n(13)");
    EXPECT_EQ(run->Waits(), Waiting::Answer);
}

TEST(End, EndsForAnAnswerThatBeginsAsSystemMessage31) {
    const auto run = Asking().Do("END");
    run->engine.EnterLine("no");
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
    EXPECT_EQ(run->window.ends, 1);
}

TEST(End, StartsAgainForAnyOtherAnswer) {
    const auto run = Asking().Do("SET 200 END");
    run->engine.EnterLine("what?");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    EXPECT_EQ(run->window.starts, 2);
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Said(), "\n(13)Room 0");
}

TEST(End, StartsAgainForAnEmptyAnswerSinceItHasNoDefault) {
    const auto run = Asking().SystemMessage(13, "Again? N").Do("END");
    run->engine.EnterLine("");
    EXPECT_EQ(run->window.starts, 2);
}

TEST(KeyWaits, InACalledTableResumeThatTableAndLeaveTheRestOfTheCallersEntry) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "PROCESS 5 SET 200").Entry(5, "_", "_", "ANYKEY SET 201");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("");
    EXPECT_EQ(run->Flag(201), 255);
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(KeyWaits, ACalledTableFinishesAsIfItWereProcess0WithTheExitsSearchedBehindIt) {
    GameBuilder game = Asking();
    game.Exit(0, 100, 1).Entry(0, "DO", "_", "PROCESS 5").Entry(5, "_", "_", "YESNO 1 SET 201");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("N");  // the verb is now 1
    EXPECT_EQ(run->Flag(38), 0);
    const auto moved = GameBuilder()
                           .Message(1, "Eat it?")
                           .Exit(0, 1, 2)
                           .Entry(0, "DO", "_", "PROCESS 5")
                           .Entry(5, "_", "_", "YESNO 1 SET 201")
                           .Start();
    moved->Type("DO");
    moved->Type("N");
    EXPECT_EQ(moved->Flag(38), 2);
}

TEST(KeyWaits, AResumedEntryIsTakenWithoutMatchingItsWordsAgain) {
    GameBuilder game = Asking();
    game.Entry(0, "DO", "_", "LET 33 7 ANYKEY SET 201");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("");
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(KeyWaits, InADoallEndTheWalk) {
    GameBuilder game = Asking();
    game.Word("LAMP", 60, 2).Word("ALL", 61, 2);
    game.Object(0, {.place = 0, .noun = "LAMP"}).Object(1, {.place = 0, .noun = "LAMP"});
    game.Entry(0, "DO", "LAMP", "PLUS 201 1 ANYKEY").Entry(0, "DO", "ALL", "DOALL HERE SET 202");
    const auto run = game.Start();
    run->Type("DO ALL");
    EXPECT_EQ(run->Waits(), Waiting::AnyKey);
    EXPECT_EQ(run->Flag(201), 1);
    run->Type("");
    EXPECT_EQ(run->Flag(201), 1);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(KeyWaits, InProcess2GoOnWithTheSentenceBehind) {
    GameBuilder game = Asking();
    game.Entry(2, "_", "_", "ZERO 200 SET 200 ANYKEY").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    EXPECT_EQ(run->Waits(), Waiting::AnyKey);
    run->Type("");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    run->Type("DO");
    EXPECT_EQ(run->Flag(201), 255);
}

}  // namespace
}  // namespace fabula::test
