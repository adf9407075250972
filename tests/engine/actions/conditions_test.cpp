#include <gtest/gtest.h>

#include "engine/numbers.h"
#include "support/games/game_builder.h"

namespace fabula::test {
namespace {

/// The player is at 1 with object 1 carried, 2 worn, 3 here, 4 at location 2 and 5 not created.
GameBuilder PlacesAndThings() {
    GameBuilder game;
    game.Setting("startloc", 1);
    game.Object(0, {.place = 252}).Object(1, {.place = 254}).Object(2, {.place = 253});
    game.Object(3, {.place = 1}).Object(4, {.place = 2}).Object(5, {.place = 252});
    return game;
}

bool Holds(const std::string& conditions) {
    return PlacesAndThings().Holds(conditions);
}

TEST(At, HoldsAtTheLocation) {
    EXPECT_TRUE(Holds("AT 1"));
}

TEST(At, FailsElsewhere) {
    EXPECT_FALSE(Holds("AT 2"));
}

TEST(NotAt, HoldsElsewhere) {
    EXPECT_TRUE(Holds("NOTAT 2"));
}

TEST(NotAt, FailsAtTheLocation) {
    EXPECT_FALSE(Holds("NOTAT 1"));
}

TEST(AtGt, HoldsAboveTheLocation) {
    EXPECT_TRUE(Holds("ATGT 0"));
}

TEST(AtGt, FailsAtTheLocation) {
    EXPECT_FALSE(Holds("ATGT 1"));
}

TEST(AtLt, HoldsBelowTheLocation) {
    EXPECT_TRUE(Holds("ATLT 2"));
}

TEST(AtLt, FailsAtTheLocation) {
    EXPECT_FALSE(Holds("ATLT 1"));
}

TEST(Present, HoldsForAnObjectCarriedWornOrHere) {
    EXPECT_TRUE(Holds("PRESENT 1 PRESENT 2 PRESENT 3"));
}

TEST(Present, FailsForAnObjectElsewhere) {
    EXPECT_FALSE(Holds("PRESENT 4"));
}

TEST(Absent, HoldsForAnObjectElsewhereOrNotCreated) {
    EXPECT_TRUE(Holds("ABSENT 4 ABSENT 5"));
}

TEST(Absent, FailsForAnObjectHere) {
    EXPECT_FALSE(Holds("ABSENT 3"));
}

TEST(Worn, HoldsForAWornObject) {
    EXPECT_TRUE(Holds("WORN 2"));
}

TEST(Worn, FailsForACarriedObject) {
    EXPECT_FALSE(Holds("WORN 1"));
}

TEST(NotWorn, HoldsForACarriedObject) {
    EXPECT_TRUE(Holds("NOTWORN 1"));
}

TEST(NotWorn, FailsForAWornObject) {
    EXPECT_FALSE(Holds("NOTWORN 2"));
}

TEST(Carried, HoldsForACarriedObject) {
    EXPECT_TRUE(Holds("CARRIED 1"));
}

TEST(Carried, FailsForAWornObject) {
    EXPECT_FALSE(Holds("CARRIED 2"));
}

TEST(NotCarr, HoldsForAnObjectHere) {
    EXPECT_TRUE(Holds("NOTCARR 3"));
}

TEST(NotCarr, FailsForACarriedObject) {
    EXPECT_FALSE(Holds("NOTCARR 1"));
}

TEST(IsAt, HoldsAtTheLocation) {
    EXPECT_TRUE(Holds("ISAT 4 2"));
}

TEST(IsAt, FailsElsewhere) {
    EXPECT_FALSE(Holds("ISAT 4 1"));
}

TEST(IsAt, HereMeansThePlayersLocation) {
    EXPECT_TRUE(Holds("ISAT 3 HERE"));
    EXPECT_FALSE(Holds("ISAT 4 HERE"));
}

TEST(IsNotAt, HoldsElsewhere) {
    EXPECT_TRUE(Holds("ISNOTAT 4 HERE"));
}

TEST(IsNotAt, FailsAtTheLocation) {
    EXPECT_FALSE(Holds("ISNOTAT 3 HERE"));
}

TEST(Zero, HoldsForAFlagThatIsZero) {
    EXPECT_TRUE(Holds("ZERO 100"));
}

TEST(Zero, FailsForAFlagThatIsSet) {
    EXPECT_FALSE(Holds("LET 100 1 ZERO 100"));
}

TEST(NotZero, HoldsForAFlagThatIsSet) {
    EXPECT_TRUE(Holds("LET 100 1 NOTZERO 100"));
}

TEST(NotZero, FailsForAFlagThatIsZero) {
    EXPECT_FALSE(Holds("NOTZERO 100"));
}

TEST(Eq, HoldsForTheValue) {
    EXPECT_TRUE(Holds("LET 100 7 EQ 100 7"));
}

TEST(Eq, FailsForAnotherValue) {
    EXPECT_FALSE(Holds("LET 100 7 EQ 100 8"));
}

TEST(NotEq, HoldsForAnotherValue) {
    EXPECT_TRUE(Holds("LET 100 7 NOTEQ 100 8"));
}

TEST(NotEq, FailsForTheValue) {
    EXPECT_FALSE(Holds("LET 100 7 NOTEQ 100 7"));
}

TEST(Gt, HoldsAboveTheValue) {
    EXPECT_TRUE(Holds("LET 100 7 GT 100 6"));
}

TEST(Gt, FailsAtTheValue) {
    EXPECT_FALSE(Holds("LET 100 7 GT 100 7"));
}

TEST(Lt, HoldsBelowTheValue) {
    EXPECT_TRUE(Holds("LET 100 7 LT 100 8"));
}

TEST(Lt, FailsAtTheValue) {
    EXPECT_FALSE(Holds("LET 100 7 LT 100 7"));
}

TEST(Same, HoldsForEqualFlags) {
    EXPECT_TRUE(Holds("LET 100 7 LET 101 7 SAME 100 101"));
}

TEST(Same, FailsForDifferentFlags) {
    EXPECT_FALSE(Holds("LET 100 7 SAME 100 101"));
}

TEST(NotSame, HoldsForDifferentFlags) {
    EXPECT_TRUE(Holds("LET 100 7 NOTSAME 100 101"));
}

TEST(NotSame, FailsForEqualFlags) {
    EXPECT_FALSE(Holds("NOTSAME 100 101"));
}

/// One word of each kind.
GameBuilder Words() {
    GameBuilder game;
    game.Word("RED", 30, 3).Word("BLUE", 31, 3).Word("SLOW", 40, 1).Word("IN", 50, 4);
    game.Word("LAMP", 60, 2).Word("BOX", 61, 2);
    return game;
}

/// Whether conditions hold in the entry "DO _" when the player types a sentence.
bool HoldsFor(const std::string& sentence, const std::string& conditions) {
    const auto run = Words().Entry(0, "DO", "_", conditions + " SET 200").Start();
    run->Type(sentence);
    return run->Flag(200) == 255;
}

TEST(Adject1, HoldsForTheAdjective) {
    EXPECT_TRUE(HoldsFor("DO RED LAMP", "ADJECT1 RED"));
}

TEST(Adject1, FailsForAnotherAdjective) {
    EXPECT_FALSE(HoldsFor("DO BLUE LAMP", "ADJECT1 RED"));
}

TEST(Adverb, HoldsForTheAdverb) {
    EXPECT_TRUE(HoldsFor("DO SLOW", "ADVERB SLOW"));
}

TEST(Adverb, FailsWithoutTheAdverb) {
    EXPECT_FALSE(HoldsFor("DO LAMP", "ADVERB SLOW"));
}

TEST(Prep, HoldsForThePreposition) {
    EXPECT_TRUE(HoldsFor("DO LAMP IN BOX", "PREP IN"));
}

TEST(Prep, FailsWithoutThePreposition) {
    EXPECT_FALSE(HoldsFor("DO LAMP", "PREP IN"));
}

TEST(Noun2, HoldsForTheSecondNoun) {
    EXPECT_TRUE(HoldsFor("DO LAMP IN BOX", "NOUN2 BOX"));
}

TEST(Noun2, FailsForTheFirstNoun) {
    EXPECT_FALSE(HoldsFor("DO LAMP IN BOX", "NOUN2 LAMP"));
}

TEST(Adject2, HoldsForTheAdjectiveOfTheSecondNoun) {
    EXPECT_TRUE(HoldsFor("DO LAMP IN BLUE BOX", "ADJECT2 BLUE"));
}

TEST(Adject2, FailsForTheAdjectiveOfTheFirstNoun) {
    EXPECT_FALSE(HoldsFor("DO BLUE LAMP IN BOX", "ADJECT2 BLUE"));
}

TEST(WordConditions, TheWordForNoneHoldsWithoutAWord) {
    EXPECT_TRUE(HoldsFor("DO LAMP", "ADJECT1 _ ADVERB _ PREP _ NOUN2 _ ADJECT2 _"));
}

TEST(WordConditions, TheWordForNoneHoldsForAWordFlagThatWasCleared) {
    EXPECT_TRUE(HoldsFor("DO RED LAMP", "CLEAR 35 ADJECT1 _"));
}

TEST(WordConditions, TheWordForNoneFailsWithAWord) {
    EXPECT_FALSE(HoldsFor("DO RED LAMP", "ADJECT1 _"));
}

bool HoldsByChance(int drawn, const std::string& conditions) {
    const auto run = GameBuilder().Entry(0, "DO", "_", conditions + " SET 200").Start();
    run->random.numbers = {drawn};
    run->Type("DO");
    return run->Flag(200) == 255;
}

TEST(Chance, HoldsUpToThePercentage) {
    EXPECT_TRUE(HoldsByChance(30, "CHANCE 30"));
}

TEST(Chance, FailsAboveThePercentage) {
    EXPECT_FALSE(HoldsByChance(31, "CHANCE 30"));
}

TEST(TimeOut, HoldsWhileTheTimeOutMarkIsSet) {
    EXPECT_TRUE(Holds("LET 49 132 TIMEOUT"));
}

TEST(TimeOut, FailsWithoutTheMark) {
    EXPECT_FALSE(Holds("LET 49 4 TIMEOUT"));
}

TEST(Conditions, AFailureLeavesTheNextEntryRunning) {
    const auto run =
        GameBuilder().Entry(0, "DO", "_", "NOTZERO 100 SET 200").Entry(0, "DO", "_", "SET 201").Start();
    run->Type("DO");
    EXPECT_EQ(run->Flag(200), 0);
    EXPECT_EQ(run->Flag(201), 255);
}

TEST(Conditions, AloneDoNotCountAsHavingActed) {
    EXPECT_EQ(GameBuilder().Do("AT 0")->Said(), "(7)");
}

TEST(BitSet, IsTheBinaryDigit) {
    EXPECT_TRUE(engine::BitSet(128, 7));
    EXPECT_TRUE(engine::BitSet(5, 0));
    EXPECT_FALSE(engine::BitSet(5, 1));
    EXPECT_TRUE(engine::BitSet(5, 2));
    EXPECT_FALSE(engine::BitSet(127, 7));
}

TEST(BitSet, AValueAbove255HasAllDigitsSetAsTheGreedyWritingLeavesThem) {
    for (const int bit : {0, 1, 2, 3, 4, 5, 6, 7})
        EXPECT_TRUE(engine::BitSet(999, bit)) << bit;
}

TEST(BitSet, ANegativeValueHasNone) {
    EXPECT_FALSE(engine::BitSet(-1, 0));
}

}  // namespace
}  // namespace fabula::test
