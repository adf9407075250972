#include <fstream>

#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;

/// How often the engine stood still in the turn.
int GoOnToTheEnd(GameRun& run) {
    int rests = 0;
    for (; run.Waits() == Waiting::Turn; ++rests)
        run.engine.GoOn();
    return rests;
}

/// DO counts flag 200 up to 100 by calls of process 4, and says "!".
GameBuilder Counting() {
    GameBuilder game;
    game.Message(0, "!").Entry(0, "DO", "_", "PROCESS 4 MES 0 DONE");
    return game.Entry(4, "_", "_", "PLUS 200 1 LT 200 100 PROCESS 4");
}

TEST(Slices, ATurnWithoutThemRunsToItsEnd) {
    const auto run = Counting().Start();
    run->Type("DO");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    EXPECT_EQ(run->Flag(200), 100);
}

TEST(Slices, PartALongTurnWithoutChangingWhatItDoes) {
    const auto run = Counting().Slice(10).Start();
    run->Said();
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Turn);
    EXPECT_LT(run->Flag(200), 10);
    EXPECT_EQ(GoOnToTheEnd(*run), 30);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    EXPECT_EQ(run->Flag(200), 100);
    EXPECT_EQ(run->Said(), "!");
}

/// A hundred and one objects, all but the light containers that are carried; DO weighs them ten times.
GameBuilder CarriedContainers() {
    GameBuilder game;
    for (int object = 1; object <= 100; ++object)
        game.Object(object, {.place = condacts::place::kCarried.value, .weight = 1, .container = true});
    std::string line = "DONE";
    for (int times = 0; times < 10; ++times)
        line.insert(0, "WEIGHT 200 ");
    return game.Entry(0, "DO", "_", line);
}

TEST(Slices, PartATurnThatWeighsMuchWithoutChangingWhatItDoes) {
    const auto run = CarriedContainers().Slice(20).Start();
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Turn);
    GoOnToTheEnd(*run);
    EXPECT_EQ(run->Flag(200), 100);
}

TEST(Slices, CountForAWeighingEachObjectAFewTimesHoweverManyAreContainers) {
    const auto run = CarriedContainers().Slice(20).Start();
    run->engine.EnterLine("DO");
    // Ten times all objects, what lies in them, and the hundred that are carried: 3,020 looks or so.
    EXPECT_EQ(GoOnToTheEnd(*run), 1);
}

TEST(Slices, LeaveAShortTurnAlone) {
    const auto run = Counting().Slice(1000).Start();
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(Slices, PartATurnThatPrintsMuch) {
    GameBuilder game;
    game.Message(0, std::string(1000, 'x')).Entry(0, "DO", "_", "MES 0 PLUS 200 1 PROCESS 4");
    const auto run =
        game.Entry(4, "_", "_", "MES 0 PLUS 200 1 LT 200 100 PROCESS 4").Slice(100'000).Start();
    run->engine.EnterLine("DO");
    EXPECT_EQ(run->Waits(), Waiting::Turn);
    // The message that fills the slice is its last action.
    EXPECT_EQ(run->Flag(200), engine::kSliceText / 1000);
    EXPECT_EQ(GoOnToTheEnd(*run), 5);
    EXPECT_EQ(run->Flag(200), 100);
}

TEST(Slices, TakeNoKeysMeanwhile) {
    const auto run = Counting().Slice(10).Start();
    run->engine.EnterLine("DO");
    run->engine.Key(U'x');
    run->engine.EnterLine("DO");
    GoOnToTheEnd(*run);
    EXPECT_EQ(run->Flag(200), 100);
    EXPECT_EQ(run->Flag(31), 1);
}

TEST(Slices, DoNotHideARunaway) {
    const auto run = GameBuilder()
                         .Entry(0, "DO", "_", "SET 100 DESC")
                         .Entry(1, "_", "_", "NOTZERO 100 DESC")
                         .CondactLimit(1000)
                         .Slice(10)
                         .Start();
    run->engine.EnterLine("DO");
    GoOnToTheEnd(*run);
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
    EXPECT_TRUE(run->engine.HasFailed());
}

TEST(Slices, PartALongScript) {
    GameBuilder game;
    game.Entry(0, "DO", "_", "PLUS 200 1 DONE").Word("PLAY", 102, 0).Entry(0, "PLAY", "_", "SCRIPT 2 DONE");
    const auto run = game.Slice(100'000).Start();
    {
        std::ofstream script(run->File("long.scr"));
        for (int line = 0; line < 50; ++line)
            script << ">>DO\n";
    }
    run->engine.EnterLine("PLAY");
    run->engine.GiveFile(run->File("long.scr"));
    run->engine.DoNextScript();
    EXPECT_EQ(run->Waits(), Waiting::Turn);
    EXPECT_LT(run->Flag(200), 50);
    run->engine.Key(U'x');
    EXPECT_EQ(GoOnToTheEnd(*run), 2);
    EXPECT_EQ(run->Flag(200), 50);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
}

TEST(StopTurn, GoesBackToTheStateThatIsGivenAndAsks) {
    const auto run = Counting().Slice(10).Start();
    const std::string before = run->engine.SavedState();
    run->engine.EnterLine("DO");
    run->Said();
    run->engine.StopTurn(before);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Said(), "\n");
    run->engine.EnterLine("DO");
    GoOnToTheEnd(*run);
    EXPECT_EQ(run->Flag(200), 100);
}

TEST(StopTurn, EndsAGameThatHasNoStateYet) {
    const auto run = GameBuilder().Entry(1, "_", "_", "DESC").Slice(10).Open();
    run->engine.Initialize();
    ASSERT_EQ(run->Waits(), Waiting::Turn);
    run->engine.StopTurn("");
    EXPECT_EQ(run->Waits(), Waiting::Nothing);
    EXPECT_EQ(run->window.ends, 1);
}

TEST(StopTurn, EndsAPause) {
    const auto run = GameBuilder().Entry(0, "DO", "_", "PAUSE 50 SET 200").Start();
    const std::string before = run->engine.SavedState();
    run->engine.EnterLine("DO");
    ASSERT_EQ(run->Waits(), Waiting::Pause);
    run->engine.StopTurn(before);
    EXPECT_EQ(run->Waits(), Waiting::Sentence);
    run->engine.WaitTick();
    EXPECT_EQ(run->Flag(200), 0);
}

TEST(TakeState, GoesBackAndDescribesThePlace) {
    const auto run = GameBuilder().Entry(0, "DO", "_", "SET 200 GOTO 1 DESC").Start();
    const std::string before = run->engine.SavedState();
    run->Type("DO");
    run->Said();
    EXPECT_TRUE(run->engine.TakeState(before));
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Said(), "\nRoom 0");
    EXPECT_FALSE(run->engine.TakeState("nothing"));
}

}  // namespace
}  // namespace fabula::test
