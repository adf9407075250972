#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;
using std::chrono::milliseconds;
using store::AdventureKind;

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

// PAUSE

TEST(Pause, WaitsTwentyMillisecondsAUnitAndGoesOnBehindItself) {
    const auto run = GameBuilder().Do("SET 200 PAUSE 50 SET 201");
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    EXPECT_EQ(run->window.waits, std::vector<milliseconds>{milliseconds(1000)});
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(201), 0);
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(201), 255);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Pause, Of0DoesNotWait) {
    const auto run = GameBuilder().Do("PAUSE 0 SET 200");
    EXPECT_TRUE(run->window.waits.empty());
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(Pause, TakesNoKeysAndLines) {
    const auto run = GameBuilder().Do("PAUSE 50 SET 201");
    run->engine.Key(U'x');
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    EXPECT_EQ(run->Flag(201), 0);
    EXPECT_EQ(run->window.typed, "");
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

TEST(Pause, BeforeTheFirstPromptGoesOnToIt) {
    GameBuilder game;
    game.Entry(1, "_", "_", "PAUSE 5").Entry(2, "_", "_", "PAUSE 6");
    const auto run = game.Start();
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    run->engine.WaitTick();
    EXPECT_EQ(run->Waits(), Waiting::Pause);
    run->engine.WaitTick();
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Pause, WithoutAPauseAWaitTickChangesNothing) {
    const auto run = GameBuilder().Do("SET 200");
    run->Said();
    run->engine.WaitTick();
    EXPECT_EQ(run->Said(), "");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

// PAUSE in "marlo", by flag 28

std::unique_ptr<GameRun> MarloPause(int function, int value) {
    return GameBuilder(AdventureKind::Marlo)
        .Setting("defsndvoice", 7)
        .Setting("sound", 1)
        .Do("LET 28 " + std::to_string(function) + " PAUSE " + std::to_string(value) + " PLUS 30 1");
}

void LetPass(GameRun& run) {
    while (run.Waits() == Waiting::Pause)
        run.engine.WaitTick();
}

TEST(MarloPause, IsAPlainWaitWhileFlag28Is0) {
    EXPECT_EQ(MarloPause(0, 50)->window.waits.size(), 1U);
}

TEST(MarloPause, IsAPlainWaitWhileFlag28IsAbove21) {
    const auto run = MarloPause(22, 50);
    EXPECT_EQ(run->window.waits.size(), 1U);
    EXPECT_EQ(run->Flag(28), 22);
}

TEST(MarloPause, AFunctionClearsFlag28) {
    EXPECT_EQ(MarloPause(4, 50)->Flag(28), 0);
}

TEST(MarloPause, Function1RisesFromPitch100) {
    const auto run = MarloPause(1, 2);
    LetPass(*run);
    EXPECT_EQ(run->sound.notes, (std::vector<std::pair<int, long long>>{{-10, 50}, {-10, 50}, {-9, 50}}));
    EXPECT_EQ(run->sound.voices, std::vector<int>{7});
    EXPECT_EQ(run->Flag(30), 1);
}

TEST(MarloPause, Function3FallsToPitch100) {
    const auto run = MarloPause(3, 2);
    LetPass(*run);
    EXPECT_EQ(run->sound.notes, (std::vector<std::pair<int, long long>>{{-9, 50}, {-10, 50}, {-10, 50}}));
}

TEST(MarloPause, Functions2And5And6RepeatPitch120) {
    for (const int function : {2, 5, 6}) {
        const auto run = MarloPause(function, 3);
        LetPass(*run);
        EXPECT_EQ(run->sound.notes, (std::vector<std::pair<int, long long>>{{0, 50}, {0, 50}, {0, 50}}))
            << function;
    }
}

TEST(MarloPause, Functions4And9And10And16To18And20DoNothing) {
    for (const int function : {4, 9, 10, 16, 17, 18, 20}) {
        const auto run = MarloPause(function, 5);
        EXPECT_TRUE(run->window.waits.empty()) << function;
        EXPECT_EQ(run->Flag(30), 1) << function;
    }
}

TEST(MarloPause, Functions7And8ChooseACharacterSet) {
    GameBuilder game(AdventureKind::Marlo);
    game.SystemMessage(15, "fine");
    const auto run = game.Do("LET 28 7 PAUSE 3 OK");
    EXPECT_EQ(run->window.StyleOf("fine").font, 3);
}

TEST(MarloPause, Functions11And14WriteFlag28WhichIsThenCleared) {
    EXPECT_EQ(MarloPause(11, 9)->Flag(28), 0);
    EXPECT_EQ(MarloPause(14, 9)->Flag(28), 0);
}

TEST(MarloPause, Functions12And13StartTheGameAgain) {
    for (const int function : {12, 13}) {
        const auto run = MarloPause(function, 1);
        EXPECT_EQ(run->window.starts, 2) << function;
        EXPECT_EQ(run->Flag(30), 0) << function;
        EXPECT_EQ(run->Waits(), Waiting::Sentence) << function;
    }
}

TEST(MarloPause, Function15LowersWhatCanBeCarried) {
    EXPECT_EQ(MarloPause(15, 4)->Flag(37), 6);
}

TEST(MarloPause, Function19IsGraphic) {
    EXPECT_EQ(MarloPause(19, 2)->Flag(1013), 64);
}

TEST(MarloPause, Function21WithValue50IsRamsaveAndElseRamloadUpToThatFlag) {
    GameBuilder game(AdventureKind::Marlo);
    game.Word("BACK", 101, 0).Entry(0, "DO", "_", "LET 5 9 LET 11 9 LET 28 21 PAUSE 50");
    game.Entry(0, "BACK", "_", "LET 11 1 LET 30 1 LET 28 21 PAUSE 11");
    const auto run = game.Start();
    run->Type("DO");
    run->Type("BACK");
    EXPECT_EQ(run->Flag(11), 9);
    EXPECT_EQ(run->Flag(30), 1);
}

TEST(MarloBeep, RunsTheFunctionOfFlag28InsteadOfThePauseBehindIt) {
    const auto run =
        GameBuilder(AdventureKind::Marlo).Setting("sound", 1).Do("LET 28 15 LET 37 40 BEEP 5 120");
    EXPECT_EQ(run->window.waits, std::vector<milliseconds>{milliseconds(50)});
    LetPass(*run);
    EXPECT_EQ(run->Flag(37), 40 - 12);
    EXPECT_EQ(run->Flag(28), 0);
}

TEST(MarloBeep, PlaysTheSeriesOfAFunctionBehindItselfOnce) {
    const auto run = GameBuilder(AdventureKind::Marlo)
                         .Setting("sound", 1)
                         .Do("LET 1012 2 LET 28 2 BEEP 7 100 PLUS 30 1");
    LetPass(*run);
    EXPECT_EQ(run->sound.notes, (std::vector<std::pair<int, long long>>{{-10, 70}, {0, 50}, {0, 50}}));
    EXPECT_EQ(run->Flag(30), 1);
}

TEST(MarloBeep, WithoutAPauseBehindItLeavesFlag28) {
    const auto run = GameBuilder(AdventureKind::Marlo).Do("LET 1012 0 LET 28 15 BEEP 5 120");
    LetPass(*run);
    EXPECT_EQ(run->Flag(28), 15);
}

TEST(MarloPause, OfOtherTypesKnowsNoFunctions) {
    const auto run = GameBuilder().Do("LET 28 15 PAUSE 4");
    EXPECT_EQ(run->Flag(37), 10);
    EXPECT_EQ(run->window.waits, std::vector<milliseconds>{milliseconds(80)});
}

// BEEP, SOUND

GameBuilder Sounding() {
    GameBuilder game;
    game.Setting("sound", 1);
    return game;
}

TEST(Beep, PlaysHalfThePitchLess60ForTenMillisecondsAUnit) {
    const auto run = Sounding().Do("BEEP 50 144");
    EXPECT_EQ(run->sound.notes, (std::vector<std::pair<int, long long>>{{12, 500}}));
}

TEST(Beep, RoundsAHalfNoteToTheEvenOne) {
    EXPECT_EQ(Sounding().Do("BEEP 1 121")->sound.notes.front().first, 0);
    EXPECT_EQ(Sounding().Do("BEEP 1 123")->sound.notes.front().first, 2);
}

TEST(Beep, WaitsForTheNoteAndForThePauseOfFlag1012) {
    EXPECT_EQ(Sounding().Do("BEEP 50 144")->window.waits, std::vector<milliseconds>{milliseconds(740)});
}

TEST(Beep, WaitsForTheNoteAloneWhenFlag1012Is0) {
    EXPECT_EQ(Sounding().Do("CLEAR 1012 BEEP 50 144")->window.waits,
              std::vector<milliseconds>{milliseconds(500)});
}

TEST(Beep, PlaysNothingAndSkipsTheNotesWaitWithSoundOff) {
    const auto run = GameBuilder().Setting("sound", 0).Do("BEEP 50 144 SET 200");
    EXPECT_TRUE(run->sound.notes.empty());
    EXPECT_EQ(run->window.waits, std::vector<milliseconds>{milliseconds(240)});
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(Beep, WaitsForNoNoteThatThereIsNot) {
    for (const char* beep : {"CLEAR 1012 BEEP 50 255 SET 200", "CLEAR 1012 BEEP 50 32000 SET 200"}) {
        const auto run = Sounding().Do(beep);
        EXPECT_TRUE(run->sound.notes.empty()) << beep;
        EXPECT_TRUE(run->window.waits.empty()) << beep;
        EXPECT_EQ(run->Flag(200), 255) << beep;
    }
}

TEST(Beep, PlaysTheLowestAndTheHighestNote) {
    EXPECT_EQ(Sounding().Do("BEEP 1 0")->sound.notes.front().first, -60);
    EXPECT_EQ(Sounding().Do("BEEP 1 254")->sound.notes.front().first, 67);
}

TEST(Beep, SkipsTheNotesWaitWhenTheDeviceIsSilent) {
    GameBuilder game = Sounding();
    const auto run = game.Entry(0, "DO", "_", "CLEAR 1012 BEEP 50 144 SET 200").Start();
    run->sound.SetSilent(true);
    run->Type("DO");
    EXPECT_TRUE(run->window.waits.empty());
    EXPECT_EQ(run->Flag(200), 255);
}

TEST(Sound, ChoosesAVoice) {
    EXPECT_EQ(Sounding().Do("SOUND 41")->sound.voices, std::vector<int>{41});
}

TEST(Sound, PlaysNothingByItself) {
    EXPECT_TRUE(Sounding().Do("SOUND 41")->sound.notes.empty());
}

TEST(SoundSwitch, IsTheSettingAtFirstAndThePlayersFromThenOn) {
    const auto run = Sounding().Start();
    EXPECT_EQ(run->window.status[engine::StatusField::Sound], "Sound ON");
    run->engine.ToggleSound();
    EXPECT_EQ(run->window.status[engine::StatusField::Sound], "Sound OFF");
    run->engine.Initialize();
    EXPECT_FALSE(run->engine.SoundOn());
}

}  // namespace
}  // namespace fabula::test
