#include "condacts/words.h"

#include <gtest/gtest.h>

namespace fabula::condacts {
namespace {

TEST(WordIndex, FindsTheFirstWordOfASpellingInAnyCase) {
    const WordIndex words({{"LIGHT", 30, kVerb}, {"LIGHT", 51, kNoun}});
    ASSERT_NE(words.Find("light"), nullptr);
    EXPECT_EQ(words.Find("light")->number, 30);
}

TEST(WordIndex, FindsTheFirstWordThatPassesTheTest) {
    const WordIndex words({{"LIGHT", 30, kVerb}, {"LIGHT", 51, kNoun}});
    EXPECT_EQ(words.Find("LIGHT", IsNounOrReserved)->number, 51);
}

TEST(WordIndex, AReservedWordStandsInForEveryType) {
    const WordIndex words({{"_", 255, kReserved}});
    EXPECT_EQ(words.FindTyped("_", kPreposition)->number, 255);
    EXPECT_EQ(words.FindNumberTyped(255, kAdverb)->word, "_");
}

TEST(WordIndex, GivesNothingForAnUnknownSpellingOrNumber) {
    const WordIndex words({{"LAMP", 50, kNoun}});
    EXPECT_EQ(words.Find("TORCH"), nullptr);
    EXPECT_EQ(words.FindTyped("LAMP", kVerb), nullptr);
    EXPECT_EQ(words.FindNumber(51, AnyWord), nullptr);
}

TEST(WordIndex, ComparesLettersOfEveryScriptWithoutCase) {
    const WordIndex words({{"ÉCOUTE", 40, kVerb}});
    EXPECT_NE(words.Find("écoute"), nullptr);
}

TEST(MovementWords, AreVerbsAndNounsBelowTwenty) {
    EXPECT_TRUE(IsMovementWord({"GO", 100, kVerb}));
    EXPECT_TRUE(IsMovementWord({"NORTH", 19, kNoun}));
    EXPECT_FALSE(IsMovementWord({"LAMP", 20, kNoun}));
    EXPECT_FALSE(IsMovementWord({"_", 255, kReserved}));
    EXPECT_TRUE(IsMovementWordOrReserved({"_", 255, kReserved}));
}

TEST(WordTypeName, NamesTheEightTypes) {
    EXPECT_EQ(WordTypeName(0), "Verb");
    EXPECT_EQ(WordTypeName(5), "Conjugation");
    EXPECT_EQ(WordTypeName(7), "RESERVED");
    EXPECT_EQ(WordTypeName(8), "");
    EXPECT_EQ(WordTypeName(-1), "");
}

}  // namespace
}  // namespace fabula::condacts
