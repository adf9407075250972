#include <gtest/gtest.h>

#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

using store::AdventureKind;

int FlagAfter(const std::string& condacts, int flag) {
    return GameBuilder().Do(condacts)->Flag(flag);
}

std::string FailureOf(const std::string& condacts) {
    const std::string box = GameBuilder().Do(condacts)->Box();
    constexpr std::string_view kBegin = "The game has gone wrong and ends. Process 0, entry 0 (record 0), ";
    return box.starts_with(kBegin) ? box.substr(kBegin.size()) : box;
}

TEST(Set, Gives255) {
    EXPECT_EQ(FlagAfter("SET 100", 100), 255);
}

TEST(Set, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("SET 5000"), "SET 5000: flag 5000 does not exist.");
}

TEST(Clear, Gives0) {
    EXPECT_EQ(FlagAfter("SET 100 CLEAR 100", 100), 0);
}

TEST(Clear, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("CLEAR 5000"), "CLEAR 5000: flag 5000 does not exist.");
}

TEST(Plus, Adds) {
    EXPECT_EQ(FlagAfter("LET 100 5 PLUS 100 7", 100), 12);
}

TEST(Plus, ClampsTo999) {
    EXPECT_EQ(FlagAfter("LET 100 998 PLUS 100 7", 100), 999);
}

TEST(Plus, ClampsAFlagThatWasAbove999) {
    EXPECT_EQ(FlagAfter("LET 100 5000 PLUS 100 1", 100), 999);
}

TEST(Plus, ClampsTo0ToTheOtherSide) {
    EXPECT_EQ(FlagAfter("LET 100 -50 PLUS 100 1", 100), 0);
}

TEST(Plus, OverflowIsARunTimeFailureBecauseTheClampComesBehindTheSum) {
    EXPECT_EQ(FailureOf("LET 100 32767 PLUS 100 1"), "PLUS 100 1: PLUS: flag 100 can't hold 32768.");
}

TEST(Minus, Subtracts) {
    EXPECT_EQ(FlagAfter("LET 100 7 MINUS 100 5", 100), 2);
}

TEST(Minus, ClampsTo0) {
    EXPECT_EQ(FlagAfter("LET 100 7 MINUS 100 8", 100), 0);
}

TEST(Minus, ClampsTo999ToTheOtherSide) {
    EXPECT_EQ(FlagAfter("LET 100 5000 MINUS 100 1", 100), 999);
}

TEST(Minus, OverflowIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("LET 100 -32768 MINUS 100 1"), "MINUS 100 1: MINUS: flag 100 can't hold -32769.");
}

TEST(Let, StoresTheValueUnclamped) {
    EXPECT_EQ(FlagAfter("LET 100 12345", 100), 12345);
}

TEST(Let, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("LET 5000 1"), "LET 5000 1: flag 5000 does not exist.");
}

TEST(Add, AddsTheFirstFlagIntoTheSecond) {
    EXPECT_EQ(FlagAfter("LET 100 5 LET 101 7 ADD 100 101", 101), 12);
}

TEST(Add, Clamps) {
    EXPECT_EQ(FlagAfter("LET 100 500 LET 101 700 ADD 100 101", 101), 999);
}

TEST(Sub, SubtractsTheFirstFlagFromTheSecond) {
    EXPECT_EQ(FlagAfter("LET 100 5 LET 101 7 SUB 100 101", 101), 2);
}

TEST(Sub, Clamps) {
    EXPECT_EQ(FlagAfter("LET 100 9 LET 101 7 SUB 100 101", 101), 0);
}

TEST(CopyFF, CopiesTheFirstFlagIntoTheSecond) {
    EXPECT_EQ(FlagAfter("LET 100 5000 COPYFF 100 101", 101), 5000);
}

TEST(CopyFF, LeavesTheFirstFlag) {
    EXPECT_EQ(FlagAfter("LET 100 5 LET 101 7 COPYFF 100 101", 100), 5);
}

TEST(Random, StoresANumberFrom1To100) {
    const auto run = GameBuilder().Entry(0, "DO", "_", "RANDOM 100").Start();
    run->random.numbers = {83};
    run->Type("DO");
    EXPECT_EQ(run->Flag(100), 83);
}

TEST(Random, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("RANDOM 5000"), "RANDOM 5000: flag 5000 does not exist.");
}

TEST(Ability, SetsTheMostThatCanBeCarried) {
    const auto run = GameBuilder().Do("ABILITY 4 50");
    EXPECT_EQ(run->Flag(37), 4);
    EXPECT_EQ(run->Flag(52), 50);
}

TEST(Ability, OfNothingLetsNothingBeTaken) {
    GameBuilder game;
    game.Object(0, {.place = 0, .weight = 0});
    EXPECT_EQ(game.Do("ABILITY 0 0 GET 0")->Said(), "(27)");
}

TEST(Mode, OneAndFourClearTheWindowBeforeDescriptions) {
    EXPECT_EQ(FlagAfter("MODE 1 0", 40), 1);
    EXPECT_EQ(FlagAfter("MODE 4 0", 40), 1);
}

TEST(Mode, NoughtTwoAndThreeDoNot) {
    EXPECT_EQ(FlagAfter("MODE 1 0 MODE 0 0", 40), 0);
    EXPECT_EQ(FlagAfter("MODE 1 0 MODE 2 0", 40), 0);
    EXPECT_EQ(FlagAfter("MODE 1 0 MODE 3 0", 40), 0);
}

TEST(Mode, OtherValuesChangeNothing) {
    EXPECT_EQ(FlagAfter("MODE 1 0 MODE 5 0", 40), 1);
}

TEST(Mode, TheSecondValueIsIgnored) {
    EXPECT_EQ(FlagAfter("MODE 1 9", 40), 1);
}

TEST(Graphic, StoresItsValueAsBits5And6OfFlag29) {
    EXPECT_EQ(FlagAfter("GRAPHIC 1", 29), 32);
    EXPECT_EQ(FlagAfter("GRAPHIC 2", 29), 64);
    EXPECT_EQ(FlagAfter("GRAPHIC 3", 29), 96);
    EXPECT_EQ(FlagAfter("GRAPHIC 3 GRAPHIC 0", 29), 0);
}

TEST(Graphic, OtherValuesChangeNothing) {
    EXPECT_EQ(FlagAfter("GRAPHIC 2 GRAPHIC 4", 29), 64);
}

TEST(Graphic, OfAMarloGameUsesFlag1013) {
    const auto run = GameBuilder(AdventureKind::Marlo).Do("GRAPHIC 2");
    EXPECT_EQ(run->Flag(1013), 64);
    EXPECT_EQ(run->Flag(29), 0);
}

TEST(Prompt, SetsTheSystemMessageThatPrompts) {
    GameBuilder game;
    game.SystemMessage(10, "Well.");
    EXPECT_EQ(game.Do("PROMPT 10")->Said(), "Well.\n");
}

TEST(Prompt, OfAMessageThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(GameBuilder().Do("PROMPT 500")->Box(),
              "The game has gone wrong and ends. system message 500 does not exist.");
}

TEST(Time, SetsDurationAndOptionAndTheIntervalOf1280MillisecondsAUnit) {
    const auto run = GameBuilder().Do("TIME 5 4");
    EXPECT_EQ(run->Flag(48), 5);
    EXPECT_EQ(run->Flag(49), 4);
    EXPECT_EQ(run->window.timeOut, std::chrono::milliseconds(6400));
}

TEST(Time, WithoutBit2InItsOptionStartsNoTimer) {
    EXPECT_FALSE(GameBuilder().Do("TIME 5 0")->window.timeOut.has_value());
}

TEST(Time, Of25IsTheLongestBecauseTheIntervalHas16Bits) {
    EXPECT_EQ(GameBuilder().Do("TIME 25 4")->window.timeOut, std::chrono::milliseconds(32000));
    EXPECT_EQ(FailureOf("TIME 26 4"), "TIME 26 4: the time-out of 26 units can't hold 33280.");
}

// Automatic flags

/// The value of a flag after so many sentences that do nothing.
int AfterTurns(GameBuilder game, int flag, int value, int turns) {
    const auto run = game.Entry(0, "DO", "_", "DONE").Start();
    run->SetFlag(flag, value);
    for (int turn = 0; turn < turns; ++turn)
        run->Type("DO");
    return run->Flag(flag);
}

TEST(AutoFlags, Flags5To8CountDownEveryTurn) {
    // Once before the sentence, and once behind it.
    for (const int flag : {5, 6, 7, 8})
        EXPECT_EQ(AfterTurns(GameBuilder(), flag, 10, 2), 6) << flag;
}

TEST(AutoFlags, AFlagAt0IsNotCountedDown) {
    EXPECT_EQ(AfterTurns(GameBuilder(), 5, 1, 3), 0);
}

TEST(AutoFlags, Flag9CountsDownInTheDarkOnly) {
    EXPECT_EQ(AfterTurns(GameBuilder(), 9, 10, 1), 10);
    GameBuilder dark;
    dark.Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterTurns(dark, 9, 10, 1), 8);
}

TEST(AutoFlags, Flag10CountsDownInTheDarkWithoutObject0) {
    GameBuilder dark;
    dark.Object(0, {.place = 252}).Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterTurns(dark, 10, 10, 1), 8);
    GameBuilder lit;
    lit.Object(0, {.place = 254}).Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterTurns(lit, 10, 10, 1), 10);
}

/// The value of a flag after a second description, in the light or the dark.
int AfterDescription(GameBuilder game, int flag) {
    const auto run = game.Entry(0, "DO", "_", "DESC").Start();
    run->SetFlag(flag, 10);
    run->Type("DO");
    return run->Flag(flag);
}

TEST(AutoFlags, Flag2CountsDownAtDescriptions) {
    EXPECT_EQ(AfterDescription(GameBuilder(), 2), 9);
}

TEST(AutoFlags, Flag3CountsDownAtDescriptionsInTheDark) {
    EXPECT_EQ(AfterDescription(GameBuilder(), 3), 10);
    GameBuilder dark;
    dark.Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterDescription(dark, 3), 9);
}

TEST(AutoFlags, Flag4CountsDownAtDescriptionsInTheDarkWithoutObject0) {
    GameBuilder dark;
    dark.Object(0, {.place = 252}).Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterDescription(dark, 4), 9);
    GameBuilder lit;
    lit.Object(0, {.place = 254}).Entry(1, "_", "_", "SET 0");
    EXPECT_EQ(AfterDescription(lit, 4), 10);
}

TEST(AutoDec, MakesAFlagCountDown) {
    const auto run = GameBuilder().Do("LET 100 9 AUTODEC 100 1");
    EXPECT_EQ(run->Flag(100), 8);  // behind the sentence
    run->Type("DO");
    EXPECT_EQ(run->Flag(100), 8);  // set to 9 again, and counted
}

TEST(AutoDec, OfKind0LeavesTheFlagAlone) {
    EXPECT_EQ(GameBuilder().Do("AUTODEC 5 0 LET 5 9")->Flag(5), 9);
}

TEST(AutoDec, OfAFlagThatDoesNotExistIsARunTimeFailure) {
    EXPECT_EQ(FailureOf("AUTODEC 5000 1"), "AUTODEC 5000 1: flag 5000 does not exist.");
}

TEST(AutoInc, MakesAFlagCountUp) {
    EXPECT_EQ(GameBuilder().Do("LET 100 9 AUTOINC 100 1")->Flag(100), 10);
}

TEST(AutoInc, StopsAt999) {
    EXPECT_EQ(GameBuilder().Do("LET 100 999 AUTOINC 100 1")->Flag(100), 999);
}

TEST(AutoInc, OfKind7CountsWhileObject0Exists) {
    GameBuilder lit;
    lit.Object(0, {.place = 2});
    EXPECT_EQ(lit.Do("AUTOINC 100 7")->Flag(100), 1);
    GameBuilder gone;
    gone.Object(0, {.place = 252});
    EXPECT_EQ(gone.Do("AUTOINC 100 7")->Flag(100), 0);
}

TEST(AutoInc, OfAKindThatDoesNotExistNeverCounts) {
    EXPECT_EQ(GameBuilder().Do("AUTOINC 100 8")->Flag(100), 0);
}

}  // namespace
}  // namespace fabula::test
