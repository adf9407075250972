#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

TEST(GoTo, MovesThePlayerWithoutADescription) {
    const auto run = GameBuilder().Do("GOTO 2");
    EXPECT_EQ(run->Flag(38), 2);
    EXPECT_EQ(run->Said(), "");
}

TEST(GoTo, ALocationThatDoesNotExistIsARunTimeFailureWhenItIsDescribed) {
    EXPECT_EQ(GameBuilder().Do("GOTO 77 DESC")->Box(),
              "The game has gone wrong and ends. location 77 does not exist.");
}

/// Flag 100 holds a location; its exit for the verb DO leads from 1 to 2.
GameBuilder WithExit() {
    GameBuilder game;
    game.Exit(1, 5, 0).Exit(1, 100, 2);
    return game;
}

TEST(Move, GivesTheFlagTheLocationWhereTheVerbLeads) {
    const auto run = WithExit().Do("LET 100 1 MOVE 100 SET 200");
    EXPECT_EQ(run->Flag(100), 2);
    EXPECT_EQ(run->Flag(200), 255);
    EXPECT_EQ(run->Flag(38), 0);
}

TEST(Move, EndsTheEntryWithoutAnExitForTheVerb) {
    GameBuilder game = WithExit();
    game.Entry(0, "DO", "_", "LET 100 2 MOVE 100 SET 200").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(100), 2);
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(Move, EndsTheEntryForALocationOutOfTheTable) {
    EXPECT_EQ(WithExit().Do("LET 100 99 MOVE 100 SET 200")->Flag(200), 0);
    EXPECT_EQ(WithExit().Do("LET 100 -1 MOVE 100 SET 200")->Flag(200), 0);
}

TEST(Move, EndsTheEntryForAVerbOf0) {
    GameBuilder game;
    game.Exit(1, 0, 2);
    EXPECT_EQ(game.Do("CLEAR 33 LET 100 1 MOVE 100 SET 200")->Flag(200), 0);
}

TEST(Desc, DescribesThePlaceAgain) {
    EXPECT_EQ(GameBuilder().Do("GOTO 2 DESC")->Said(), "Room 2");
}

TEST(Desc, EndsTheTable) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "DESC SET 200").Entry(0, "DO", "_", "SET 201");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 0);
}

TEST(Desc, InACalledTableEndsTheCallerToo) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PROCESS 5 SET 200").Entry(5, "_", "_", "DESC");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(Desc, StopsADoall) {
    GameBuilder game;
    game.Word("ALL", 60, 2).Word("THING", 61, 2);
    for (int object = 0; object < 3; ++object)
        game.Object(object, {.place = 0, .noun = "THING"});
    game.Entry(0, "DO", "ALL", "DOALL HERE").Entry(0, "DO", "THING", "PLUS 200 1 DESC");
    const auto run = game.Start();
    run->Type("DO ALL");
    EXPECT_EQ(run->Flag(200), 1);
}

TEST(Reset, MovesPlayerAndPresentObjectsAndDescribes) {
    GameBuilder game;
    game.Object(0, {.place = 0})
        .Object(1, {.place = 254})
        .Object(2, {.place = 253})
        .Object(3, {.place = 1});
    const auto run = game.Do("RESET 2");
    EXPECT_EQ(run->Said(), "Room 2");
    EXPECT_EQ(run->PlaceOf(0), 2);
    EXPECT_EQ(run->PlaceOf(1), 2);
    EXPECT_EQ(run->PlaceOf(2), 2);
    EXPECT_EQ(run->Flag(1), 0);
}

TEST(Reset, LeavesObjectsElsewhere) {
    GameBuilder game;
    game.Object(0, {.place = 1});
    EXPECT_EQ(game.Do("RESET 2")->PlaceOf(0), 1);
}

// Exits

TEST(SearchConnections, MovesAndDescribesWhenNothingActed) {
    GameBuilder game;
    game.Exit(0, 100, 2);
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("DO"), "Room 2");
    EXPECT_EQ(run->Flag(38), 2);
}

TEST(SearchConnections, IsNotReachedWhenAnActionRan) {
    GameBuilder game;
    game.Exit(0, 100, 2).Entry(0, "DO", "_", "SET 200");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(38), 0);
}

TEST(SearchConnections, WithoutAnExitSaysMessage6ForAVerbBelow14) {
    GameBuilder game;
    game.Word("NORTH", 13, 0);
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("NORTH"), "(6)");
}

TEST(SearchConnections, WithoutAnExitSaysMessage7ForAnyOtherVerb) {
    GameBuilder game;
    game.Word("PRAY", 14, 0);
    const auto run = game.Start();
    run->Said();
    EXPECT_EQ(run->Type("PRAY"), "(7)");
}

TEST(SearchConnections, ALocationWithNumexits0HasNoExitsWhateverItsListHolds) {
    GameBuilder game;
    const TempFolder folder;
    game.Exit(0, 100, 2).Write(folder / "game.fbd");
    {
        const auto adventure = store::Adventure::Open(folder / "game.fbd");
        store::Cursor& row = adventure->OpenTable(store::TableNum::Locations, "def", "locnum=0");
        row.SetField("numexits", std::int64_t{0});
        row.Update();
    }
    const auto adventure = store::Adventure::Open(folder / "game.fbd");
    engine::RecordingWindow window;
    platform::ScriptedPerson person;
    QueuedRandom random;
    engine::SilentPlayer sound;
    engine::Engine engine(*adventure, {window, person, random, sound, nullptr, window.Parts()});
    engine.Initialize();
    window.TakeText();
    engine.EnterLine("DO");
    EXPECT_EQ(window.TakeText(), "(7)?\n");
}

}  // namespace
}  // namespace fabula::test
