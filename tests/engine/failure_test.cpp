#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;
using store::AdventureKind;

TEST(RunTimeFailure, NamesProcessEntryCondactAndNumbers) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "NOTZERO 100")
        .Entry(0, "DO", "_", "PROCESS 4")
        .Entry(4, "_", "_", "SET 100 COPYFF 100 3000");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->person.Boxes().back(),
              (platform::ScriptedPerson::Shown{"The game has gone wrong and ends. Process 4, entry 0 "
                                               "(record 2), COPYFF 100 3000: flag 3000 does not "
                                               "exist.",
                                               "Run-time failure"}));
}

TEST(RunTimeFailure, EndsTheGameThroughTheWindowAndLeavesTheProgramRunning) {
    const auto run = GameBuilder().Do("SET 5000");
    EXPECT_EQ(run->window.ends, 1);
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
    EXPECT_EQ(run->engine.Running(), nullptr);
    run->engine.Initialize();
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(RunTimeFailure, StopsTheTimeOut) {
    GameBuilder game;
    game.Entry(1, "_", "_", "TIME 2 4").Entry(2, "_", "_", "NOTZERO 200 SET 5000");
    const auto run = game.Start();
    run->SetFlag(200, 1);
    run->engine.TimeOutTick();
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
    EXPECT_FALSE(run->window.timeOut.has_value());
}

TEST(RunTimeFailure, OfACondactThatDoesNotExist) {
    EXPECT_EQ(GameBuilder().Numbers(0, 100, 255, "300").Do("DONE")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0): condition or action 300 "
              "does not exist.");
}

TEST(RunTimeFailure, OfAListThatEndsWhereAParameterIsDue) {
    EXPECT_EQ(GameBuilder().Numbers(0, 100, 255, "228 100").Do("DONE")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), LET 100: the entry ends "
              "where a parameter "
              "is due.");
}

TEST(RunTimeFailure, OfAnObjectOutOfRange) {
    EXPECT_EQ(GameBuilder().Do("PRESENT -1")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), PRESENT -1: object -1 does "
              "not exist.");
}

TEST(RunTimeFailure, OfAProcessWithANegativeNumber) {
    EXPECT_EQ(GameBuilder().Do("PROCESS -1")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), PROCESS -1: process -1 "
              "does not exist.");
}

TEST(RunTimeFailure, OfAStartAtALocationThatDoesNotExist) {
    EXPECT_EQ(GameBuilder().Setting("startloc", 9).Start()->Box(),
              "The game has gone wrong and ends. location 9 does not exist.");
}

TEST(Runaway, ADescLoopInProcess1IsNoticed) {
    GameBuilder game;
    game.Entry(1, "_", "_", "DESC").CondactLimit(1000);
    EXPECT_EQ(game.Start()->Box(),
              "The game has gone wrong and ends. Process 1, entry 0 (record 0), DESC: the game ran more "
              "than 1000 "
              "conditions and actions without waiting for the player.");
}

TEST(Runaway, ALoopOfProcess0AndALineIsNoLoop) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "DESC").CondactLimit(1000);
    const auto run = game.Start();
    for (int turn = 0; turn < 2000; ++turn)
        run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Runaway, IsCountedFromTheLastTimeThatThePlayerWasAsked) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "SET 200 SET 200 SET 200 SET 200 SET 200").CondactLimit(6);
    const auto run = game.Start();
    run->Type("DO");
    run->Type("DO");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Runaway, EntriesThatAreOnlyLookedAtAreCountedToo) {
    GameBuilder game;
    game.Word("GO", 101, 0).CondactLimit(20);
    for (int i = 0; i < 300; ++i)
        game.Entry(5, "GO", "_", "DONE");
    for (int i = 0; i < 15; ++i)
        game.Entry(0, "DO", "_", "PROCESS 5");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Box(),
              "The game has gone wrong and ends. Process 5, entry 193 (record 193): the game ran more than "
              "2000 entries "
              "without waiting for the player.");
}

TEST(Runaway, AGameThatStartsAgainAndAgainIsNoticed) {
    GameBuilder game(AdventureKind::Marlo);
    game.Entry(1, "_", "_", "LET 28 12 PAUSE 1");
    EXPECT_EQ(
        game.Start()->Box(),
        "The game has gone wrong and ends. the game starts again and again without asking the player.");
}

TEST(Runaway, AGameThatPausesWithoutEndIsNoticed) {
    GameBuilder game;
    game.Entry(1, "_", "_", "PAUSE 1 DESC");
    const auto run = game.Start();
    while (run->Waits() == Waiting::Pause)
        run->engine.WaitTick();
    EXPECT_EQ(run->Box(),
              "The game has gone wrong and ends. Process 1, entry 0 (record 0), PAUSE 1: the game paused "
              "more than "
              "100000 times without waiting for the player.");
}

TEST(Runaway, RestartsAndPausesAreCountedFromTheLastTimeThatThePlayerWasAsked) {
    GameBuilder game(AdventureKind::Marlo);
    std::string pauses;
    for (int i = 0; i < 1000; ++i)
        pauses += "PAUSE 1 ";
    game.Word("WAIT", 90, 0);
    game.Entry(0, "DO", "_", "LET 28 12 PAUSE 1").Entry(0, "WAIT", "_", pauses);
    const auto run = game.Start();
    for (int again = 0; again < 12; ++again)
        run->Type("DO");
    for (int again = 0; again < 101; ++again) {
        run->Type("WAIT");
        while (run->Waits() == Waiting::Pause)
            run->engine.WaitTick();
    }
    EXPECT_TRUE(run->person.Boxes().empty());
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Runaway, AGameThatPrintsWithoutEndIsNoticed) {
    GameBuilder game;
    game.Message(1, std::string(100000, 'x')).Entry(1, "_", "_", "MES 1 DESC");
    const std::string box = game.Start()->Box();
    EXPECT_NE(box.find("the game prints more than 16777216 characters without waiting for the player"),
              std::string::npos)
        << box;
}

TEST(Runaway, AMessageThatGrowsBeyondMeasureIsNoticed) {
    GameBuilder game;
    game.Object(0, {.description = std::string(2000, 'x'), .place = 0}).Message(1, std::string(1000, '_'));
    EXPECT_EQ(game.Do("MES 1")->Box(),
              "The game has gone wrong and ends. Process 0, entry 0 (record 0), MES 1: a message with the "
              "description of "
              "object 0 in it is too long.");
}

// Files that no author could have made

/// A game whose file is changed before it is opened.
template <class Change>
std::string BoxOf(const GameBuilder& game, Change change) {
    const TempFolder folder;
    game.Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd");
    change(*adventure);
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    engine::SilentPlayer sound;
    engine::Engine engine(*adventure, {window, person, random, sound, nullptr, window.Parts()});
    engine.Initialize();
    return person.Boxes().empty() ? "" : person.Boxes().back().text;
}

TEST(DamagedGame, ANumberOutOf16BitsIsToldWithItsRecord) {
    EXPECT_EQ(BoxOf(GameBuilder().Numbers(0, 100, 255, "228 100 70000"), [](auto&) {}),
              "The game can't be played: entry 0 of process 0 is 70000, which is out of range.");
}

TEST(DamagedGame, SomethingThatIsNoNumberIsToldWithItsRecord) {
    EXPECT_EQ(BoxOf(GameBuilder().Numbers(0, 100, 255, "228 1x 5"), [](auto&) {}),
              "The game can't be played: entry 0 of process 0 holds something that is no number.");
}

TEST(DamagedGame, ARecordNumberOutOfRangeIsTold) {
    EXPECT_EQ(BoxOf(GameBuilder().Location(70000, "far"), [](auto&) {}),
              "The game can't be played: there is a location 70000.");
    EXPECT_EQ(BoxOf(GameBuilder().Object(2000000000, {}), [](auto&) {}),
              "The game can't be played: there is an object 2000000000.");
}

TEST(DamagedGame, WithoutLocationsIsTold) {
    EXPECT_EQ(BoxOf(GameBuilder(),
                    [](store::Adventure& adventure) { adventure.DeleteFrom(store::TableNum::Locations); }),
              "The game can't be played: it has no locations.");
}

TEST(DamagedGame, WithoutSettingsIsTold) {
    EXPECT_EQ(BoxOf(GameBuilder(),
                    [](store::Adventure& adventure) { adventure.DeleteFrom(store::TableNum::Adventure); }),
              "The game can't be played: it has no settings.");
}

TEST(DamagedGame, WithoutThePromptsMessageIsTold) {
    EXPECT_EQ(BoxOf(GameBuilder(),
                    [](store::Adventure& adventure) {
                        adventure.DeleteFrom(store::TableNum::SystemMessages, "smsgnum=33");
                    }),
              "The game has gone wrong and ends. system message 33 does not exist.");
}

TEST(DamagedGame, ProcessesAbove256AreLeftAway) {
    EXPECT_EQ(BoxOf(GameBuilder().Numbers(257, 255, 255, "no number").Numbers(256, 255, 255, "224 200"),
                    [](auto&) {}),
              "");
}

TEST(DamagedGame, AnObjectNumberThatIsLeftOutIsAnObjectNowhere) {
    GameBuilder game;
    game.Object(3, {.place = 0});
    EXPECT_EQ(game.Do("ABSENT 1 SET 200")->Flag(200), 255);
}

TEST(OldGame, WithoutNumericListsIsCompiledFromTheText) {
    const TempFolder folder;
    GameBuilder game;
    game.Word("RED", 30, 3).Word("LAMP", 60, 2).Numbers(0, 100, 255, "").Write(folder / "game.fbd");
    const auto adventure = store::Adventure::Open(folder / "game.fbd");
    store::Cursor& row = adventure->OpenTable(store::TableNum::ProcessTables, "def");
    row.SetField("CondActs", std::string("ADJECT1 RED LET 200 7"));
    row.Update();
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    engine::SilentPlayer sound;
    engine::Engine engine(*adventure, {window, person, random, sound, nullptr, window.Parts()});
    engine.Initialize();
    engine.EnterLine("DO LAMP");
    EXPECT_EQ(engine.Running()->Flag(engine::FlagNumber(200)), 0);
    engine.EnterLine("DO RED LAMP");
    EXPECT_EQ(engine.Running()->Flag(engine::FlagNumber(200)), 7);
}

}  // namespace
}  // namespace fabula::test
