#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;

TEST(Done, EndsTheTable) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "DONE SET 200").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 0);
}

TEST(Done, InACalledTableEndsThatTableAlone) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 5 SET 200").Entry(5, "_", "_", "DONE").Entry(5, "_", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(201), 0);
}

TEST(Done, WithoutItASuccessfulEntryDoesNotEndTheTable) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "SET 200").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(NotDone, EndsTheTableAndCountsAsNotHavingActed) {
    GameBuilder game;
    game.Exit(0, 100, 2).Entry(0, "DO", "_", "SET 200 NOTDONE").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->Flag(38), 2);
}

TEST(NotDone, WithoutAnExitIsAnsweredAsIfNothingMatched) {
    EXPECT_EQ(GameBuilder().Do("NOTDONE")->Said(), "(7)");
}

TEST(Ok, SaysSystemMessage15AndEndsTheTable) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "OK SET 200").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO"), "(15)");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 0);
}

TEST(Ok, InACalledTableLetsTheCallerGoOnWithAnEmptyStack) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 5 SET 200").Entry(5, "_", "_", "OK");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_TRUE(run->engine.Running()->runner.callStack.empty());
}

TEST(Process, RunsATableAndGoesOn) {
    GameBuilder game;
    game.Message(1, "a").Message(2, "b").Message(3, "c");
    game.Entry(0, "DO", "_", "MES 1 PROCESS 5 MES 3").Entry(5, "_", "_", "MES 2");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO"), "abc");
}

TEST(Process, OfANumberAboveTheTopReturnsAtOnce) {
    EXPECT_EQ(GameBuilder().Do("PROCESS 99 SET 200")->Flag(200), 255);
}

TEST(DoCondActs, EnteredAtAnEntryPastItsLastDoesNothing) {
    const auto run = GameBuilder().Entry(0, "DO", "_", "SET 200").Start();
    engine::CondActRunner& runner = run->engine.Running()->runner;
    runner.DoCondActs(engine::kResponses, 1, 4);
    EXPECT_TRUE(runner.Run());
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(Process, MayBeNested200Deep) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 3").Entry(3, "_", "_", "PLUS 200 1 LT 200 200 PROCESS 3");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 200);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Process, NestedDeeperIsARunTimeFailure) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 3").Entry(3, "_", "_", "PLUS 200 1 LT 200 201 PROCESS 3");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Box(),
              "The game has gone wrong and ends. Process 3, entry 0 (record 1), PROCESS 3: more than 200 "
              "calls of "
              "PROCESS inside each other.");
}

TEST(Process, ReadsTheWordsInTablesCalledFromProcess0) {
    GameBuilder game;
    game.Word("GO", 101, 0);
    game.Entry(0, "DO", "_", "PROCESS 5").Entry(5, "GO", "_", "SET 200").Entry(5, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(Process, ReadsNoWordsInTablesCalledFromProcesses1And2) {
    GameBuilder game;
    game.Entry(2, "_", "_", "PROCESS 5").Entry(5, "DO", "_", "SET 200");
    EXPECT_EQ(game.Start()->Flag(200), 255);
}

TEST(Process, Bit7OfFlag58LetsTablesAboveZeroReadTheWords) {
    GameBuilder game;
    game.Entry(2, "_", "_", "PROCESS 5")
        .Entry(2, "_", "_", "LET 58 128 PROCESS 5")
        .Entry(5, "DO", "_", "PLUS 200 1");
    EXPECT_EQ(game.Start()->Flag(200), 1);
}

TEST(MatchWords, TheMarkIsTakenAwayWhenProcess1Or2Starts) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "LET 58 129").Entry(2, "_", "_", "PLUS 200 1");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(58), 1);
}

// DOALL

GameBuilder Things() {
    GameBuilder game;
    game.Word("ALL", 60, 2).Word("ROCK", 61, 2).Word("LAMP", 62, 2).Word("RED", 30, 3).Message(1, "!");
    game.Object(0, {.place = 1, .noun = "ROCK"}).Object(1, {.place = 0, .noun = "ROCK"});
    game.Object(2, {.place = 0, .noun = "LAMP", .adjective = "RED"});
    return game;
}

TEST(DoAll, RunsTheTableForEachObjectAtTheLocation) {
    GameBuilder game = Things();
    game.Entry(0, "DO", "ALL", "DOALL 0 MES 1 DONE")
        .Entry(0, "DO", "ROCK", "PLUS 200 1")
        .Entry(0, "DO", "LAMP", "PLUS 201 1");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO ALL"), "!");  // goes on behind DOALL, once
    EXPECT_EQ(run->Flag(200), 1);
    EXPECT_EQ(run->Flag(201), 1);
    EXPECT_EQ(run->Flag(50), 0);
    EXPECT_EQ(run->Flag(34), 62);
    EXPECT_EQ(run->Flag(35), 30);
}

TEST(DoAll, OfAnEmptyLocationJustGoesOn) {
    GameBuilder game = Things();
    game.Entry(0, "DO", "ALL", "DOALL 2 MES 1 DONE").Entry(0, "DO", "ROCK", "PLUS 200 1");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO ALL"), "!");
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(DoAll, HereIsThePlayersLocation) {
    GameBuilder game = Things();
    game.Setting("startloc", 1)
        .Entry(0, "DO", "ALL", "DOALL HERE DONE")
        .Entry(0, "DO", "ROCK", "PLUS 200 1");
    const auto run = game.Start();
    run->Type("DO ALL");
    EXPECT_EQ(run->Flag(200), 1);
}

TEST(DoAll, Above255IsALocationWhereThereIsOne) {
    GameBuilder game = Things();
    game.Location(300, "Room 300")
        .Object(1, {.place = 300, .noun = "ROCK"})
        .Entry(0, "DO", "ALL", "DOALL 300 DONE")
        .Entry(0, "DO", "ROCK", "PLUS 200 1");
    const auto run = game.Start();
    run->Type("DO ALL");
    EXPECT_EQ(run->Flag(200), 1);
}

TEST(DoAll, LooksFlag50UpAgainForEachObject) {
    GameBuilder game = Things();
    game.Entry(0, "DO", "ALL", "DOALL 0 DONE").Entry(0, "DO", "ROCK", "PLUS 200 1 LET 50 2");
    game.Entry(0, "DO", "LAMP", "PLUS 201 1");
    const auto run = game.Start();
    run->Type("DO ALL");
    EXPECT_EQ(run->Flag(200), 1);
    EXPECT_EQ(run->Flag(201), 0);
}

TEST(DoAll, DoneEndsTheRunForOneObjectAlone) {
    GameBuilder game = Things();
    game.Entry(0, "DO", "ALL", "DOALL 0 MES 1 DONE").Entry(0, "DO", "_", "PLUS 200 1 DONE");
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO ALL"), "!");
    EXPECT_EQ(run->Flag(200), 2);
}

TEST(DoAll, InATableThatMatchesWithoutWordsIsARunTimeFailureInsteadOfAnEndlessWalk) {
    GameBuilder game = Things();
    game.Entry(2, "_", "_", "DOALL 0");
    EXPECT_EQ(game.Start()->Box(),
              "The game has gone wrong and ends. Process 2, entry 0 (record 0), DOALL 0: more than 400 "
              "tables are "
              "running inside each other.");
}

TEST(Pause, InTheMidstOfCallsAndWalksGoesOnThere) {
    GameBuilder game = Things();
    game.Entry(0, "DO", "ALL", "PROCESS 5 SET 203").Entry(5, "DO", "ALL", "DOALL 0 DONE");
    game.Entry(5, "DO", "_", "PLUS 200 1 PAUSE 1 PLUS 201 1");
    const auto run = game.Start();
    run->Type("DO ALL");
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(200), 2);
    EXPECT_EQ(run->Flag(201), 1);
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(201), 2);
    EXPECT_EQ(run->Flag(203), 255);
}

TEST(NewText, ThrowsTheRestOfTheLineAway) {
    GameBuilder game;
    game.Word("GO", 101, 0).Entry(0, "DO", "_", "NEWTEXT").Entry(0, "GO", "_", "SET 200");
    const auto run = game.Start();
    run->Type("DO. GO");
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(NewText, WithoutItTheRestOfTheLineRuns) {
    GameBuilder game;
    game.Word("GO", 101, 0).Entry(0, "DO", "_", "DONE").Entry(0, "GO", "_", "SET 200");
    const auto run = game.Start();
    run->Type("DO. GO");
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(OldActions, DoNothingButCountAsHavingActed) {
    for (const char* action :
         {"LINE 1", "INPUT 1", "BORDER 1", "PROTECT", "SAVEAT", "BACKAT", "PRINTAT 1 2", "EXTERN 1"}) {
        EXPECT_EQ(GameBuilder().Do(action)->Said(), "") << action;
    }
}

TEST(OldActions, LetTheEntryGoOn) {
    EXPECT_EQ(GameBuilder()
                  .Do("LINE 1 INPUT 1 BORDER 1 PROTECT SAVEAT BACKAT PRINTAT 1 2 EXTERN 1 SET 200")
                  ->Flag(200),
              255);
}

}  // namespace
}  // namespace fabula::test
