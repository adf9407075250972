#include <gtest/gtest.h>

#include "engine/game.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using engine::Waiting;
using std::chrono::milliseconds;
using store::AdventureKind;

// PAUSE as a wait; in the midst of calls and walks it is among the tests of these.

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
