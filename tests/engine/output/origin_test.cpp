#include "engine/output/origin.h"

#include <sstream>

#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

/// Where the latest run that holds `text` came from: "PLACE | RECORD".
std::string OriginOf(const GameRun& run, std::string_view text) {
    const engine::Origin& origin = run.window.OriginOf(text);
    return TextOf(origin.place) + " | " + TextOf(origin.record);
}

TEST(Origin, OfAMessageIsTheEntryAndActionThatPrintedIt) {
    GameBuilder game;
    game.Message(7, "Seven.")
        .Entry(0, "DO", "_", "NOTZERO 200")
        .Entry(0, "DO", "_", "ZERO 200 MESSAGE 7 DONE");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(OriginOf(*run, "Seven."), "Process 0, entry 1 (record 1), MESSAGE 7 | message 7");
}

TEST(Origin, OfADescriptionIsTheLocationAndNoEntry) {
    GameBuilder game;
    game.Location(0, "A long hall.", "A hall.").Entry(0, "DO", "_", "DESC");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(OriginOf(*run, "A long hall."), " | location 0");
    EXPECT_EQ(OriginOf(*run, "A hall."), " | short description of location 0");
}

TEST(Origin, OfTheDarkIsItsSystemMessage) {
    GameBuilder game;
    const auto run = game.SystemMessage(0, "Darkness.").Entry(0, "DO", "_", "SET 0 DESC").Start();
    run->Type("DO");
    EXPECT_EQ(OriginOf(*run, "Darkness."), " | system message 0");
}

TEST(Origin, OfWhatTheTurnItselfSaysIsNoEntry) {
    const auto run = GameBuilder().SystemMessage(6, "What?").Start();
    run->Type("NONSENSE");
    EXPECT_EQ(OriginOf(*run, "What?"), " | system message 6");
    EXPECT_EQ(OriginOf(*run, ">"), " | system message 33");
}

TEST(Origin, InACalledProcessIsThatProcessAndAfterwardsTheCallerAgain) {
    GameBuilder game;
    game.Message(1, "inner").Message(2, "outer");
    game.Entry(0, "DO", "_", "PROCESS 4 MES 2").Entry(4, "_", "_", "MES 1");
    const auto run = game.Start();
    run->Type("DO");
    EXPECT_EQ(OriginOf(*run, "inner"), "Process 4, entry 0 (record 1), MES 1 | message 1");
    EXPECT_EQ(OriginOf(*run, "outer"), "Process 0, entry 0 (record 0), MES 2 | message 2");
}

TEST(Origin, OfAListIsEachObjectAndSystemMessage) {
    GameBuilder game;
    game.Object(3, {.description = "a lamp", .place = 254}).SystemMessage(9, "You have:");
    const auto run = game.Do("INVEN");
    EXPECT_EQ(OriginOf(*run, "You have:"), "Process 0, entry 0 (record 0), INVEN | system message 9");
    EXPECT_EQ(OriginOf(*run, "a lamp"), "Process 0, entry 0 (record 0), INVEN | object 3");
}

TEST(Origin, OfAMessageWithAnObjectInItIsTheMessage) {
    GameBuilder game;
    game.Object(3, {.description = "a lamp"}).Message(1, "You see _.");
    const auto run = game.Do("LET 51 3 MES 1");
    EXPECT_EQ(OriginOf(*run, "You see a lamp."), "Process 0, entry 0 (record 0), MES 1 | message 1");
}

TEST(Origin, OfANumberIsItsFlag) {
    const auto run = GameBuilder().Do("LET 200 777 PRINT 200");
    EXPECT_EQ(OriginOf(*run, "777"), "Process 0, entry 0 (record 0), PRINT 200 | flag 200");
}

TEST(Origin, OfWhatTheEngineSaysByItselfIsNoRecord) {
    const auto run = GameBuilder().Do("OOPS 1");
    EXPECT_EQ(OriginOf(*run, "OOPS restored"), "Process 0, entry 0 (record 0), OOPS 1 | ");
}

TEST(Origin, IsTheSameForAllRunsOfAText) {
    GameBuilder game;
    game.Message(1, "plain<BRIGHT>bright</BRIGHT> and the rest of it");
    auto run = game.Entry(0, "DO", "_", "MES 1").Start();
    run->window.measures.textWidth = 12;
    run->Type("DO");
    for (const char* piece : {"plain", "bright", "rest", "it"})
        EXPECT_EQ(OriginOf(*run, piece), "Process 0, entry 0 (record 0), MES 1 | message 1") << piece;
}

TEST(Origin, OfTheDescriptionBehindAStateThatWasTakenInAPauseIsNoEntry) {
    const auto run = GameBuilder().Entry(0, "DO", "_", "PAUSE 100 GOTO 1").Start();
    const std::string before = run->engine.SavedState();
    run->Type("DO");
    ASSERT_EQ(run->Waits(), engine::Waiting::Pause);
    EXPECT_TRUE(run->engine.TakeState(before));
    EXPECT_EQ(OriginOf(*run, "Room 0"), " | location 0");
}

TEST(OriginLog, HasALineForEachRunWithTabsBetweenItsColumns) {
    std::ostringstream out;
    engine::OriginLog log(out);
    log.Printing("Taken.", {.place = {.process = engine::kResponses,
                                      .entry = 3,
                                      .record = 57,
                                      .name = "LET",
                                      .paramCount = 2,
                                      .params = {5, -1}},
                            .record = engine::TextRecord::Of(engine::MessageNumber(12))});
    log.Printing("?", {});
    EXPECT_EQ(out.str(), "Process 0, entry 3 (record 57), LET 5 -1\tmessage 12\tTaken.\n-\t-\t?\n");
}

}  // namespace
}  // namespace fabula::test
