#include "condacts/words.h"

#include <type_traits>

#include <gtest/gtest.h>

namespace fabula::condacts {
namespace {

TEST(WordIndex, FindsTheFirstWordOfASpellingInAnyCase) {
    const WordIndex words({{"LIGHT", WordNumber(30), kVerb}, {"LIGHT", WordNumber(51), kNoun}});
    ASSERT_NE(words.Find("light"), nullptr);
    EXPECT_EQ(words.Find("light")->number, WordNumber(30));
}

TEST(WordIndex, FindsTheFirstWordThatPassesTheTest) {
    const WordIndex words({{"LIGHT", WordNumber(30), kVerb}, {"LIGHT", WordNumber(51), kNoun}});
    EXPECT_EQ(words.Find("LIGHT", IsNounOrReserved)->number, WordNumber(51));
}

TEST(WordIndex, AReservedWordStandsInForEveryType) {
    const WordIndex words({{"_", WordNumber(255), kReserved}});
    EXPECT_EQ(words.FindTyped("_", kPreposition)->number, WordNumber(255));
    EXPECT_EQ(words.FindNumberTyped(WordNumber(255), kAdverb)->word, "_");
}

TEST(WordIndex, GivesNothingForAnUnknownSpellingOrNumber) {
    const WordIndex words({{"LAMP", WordNumber(50), kNoun}});
    EXPECT_EQ(words.Find("TORCH"), nullptr);
    EXPECT_EQ(words.FindTyped("LAMP", kVerb), nullptr);
    EXPECT_EQ(words.FindNumber(WordNumber(51), AnyWord), nullptr);
}

TEST(WordIndex, ComparesLettersOfEveryScriptWithoutCase) {
    const WordIndex words({{"ÉCOUTE", WordNumber(40), kVerb}});
    EXPECT_NE(words.Find("écoute"), nullptr);
}

TEST(WordIndex, TakesNoFlagAndNoPlainNumberForAWord) {
    using Find = decltype(&WordIndex::FindNumberTyped);
    static_assert(std::is_invocable_v<Find, const WordIndex&, WordNumber, WordType>);
    static_assert(!std::is_invocable_v<Find, const WordIndex&, FlagNumber, WordType>);
    static_assert(!std::is_invocable_v<Find, const WordIndex&, int, WordType>);
    static_assert(!std::is_invocable_v<Find, const WordIndex&, WordNumber, int>);
}

TEST(WordIndex, ACutWordThatAReservedOneOfAnotherNumberFitsTooNamesNone) {
    const WordIndex words({{"UNDER", WordNumber(6), kPreposition}, {"UNDER", WordNumber(9), kReserved}});
    EXPECT_EQ(words.FindAsked("UNDERNEATH", kPreposition), nullptr);
    EXPECT_EQ(words.FindAsked("UNDER", kPreposition)->number, WordNumber(6));
}

TEST(Clashes, OneSpellingMayBeTwoVerbsOrTwoNounsOfDifferentNumbers) {
    const std::vector<Word> same{{"LIGHT", WordNumber(30), kVerb}, {"LIGHT", WordNumber(51), kNoun}};
    EXPECT_TRUE(Clashes({"LIGHT", WordNumber(30), kVerb}, same));
    EXPECT_FALSE(Clashes({"LIGHT", WordNumber(51), kVerb}, same));
    EXPECT_TRUE(Clashes({"LIGHT", WordNumber(51), kNoun}, same));
    EXPECT_FALSE(Clashes({"LIGHT", WordNumber(30), kNoun}, same));
}

TEST(Clashes, AWordOfAnyOtherTypeStandsAlone) {
    const std::vector<Word> same{{"LIGHT", WordNumber(30), kVerb}};
    EXPECT_TRUE(Clashes({"LIGHT", WordNumber(60), kAdjective}, same));
    EXPECT_FALSE(Clashes({"LIGHT", WordNumber(60), kAdjective}, {}));
}

TEST(MovementWords, AreVerbsAndNounsBelowTwenty) {
    EXPECT_TRUE(IsMovementWord({"GO", WordNumber(100), kVerb}));
    EXPECT_TRUE(IsMovementWord({"NORTH", WordNumber(19), kNoun}));
    EXPECT_FALSE(IsMovementWord({"LAMP", WordNumber(20), kNoun}));
    EXPECT_FALSE(IsMovementWord({"_", WordNumber(255), kReserved}));
    EXPECT_TRUE(IsMovementWordOrReserved({"_", WordNumber(255), kReserved}));
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
