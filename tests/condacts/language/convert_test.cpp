#include "condacts/language/convert.h"

#include <gtest/gtest.h>

#include "condacts/sample.h"

namespace fabula::condacts {
namespace {

std::string Numbered(std::string_view line) {
    return LocationWordsToNumbers(line, SampleCatalogue());
}

Converted ToNumeric(std::string_view line) {
    return CondActsToNumeric(line, SampleCatalogue(), SampleFacts().words);
}

Converted ToText(std::string_view line) {
    return NumericToCondActs(line, SampleCatalogue(), SampleFacts().words);
}

TEST(LocationWordsToNumbers, PlaceCarriedBecomesPlace254) {
    EXPECT_EQ(Numbered("PLACE 4 CARRIED"), "PLACE 4 254");
}

TEST(LocationWordsToNumbers, ReplacesAllFourWords) {
    EXPECT_EQ(Numbered("AT NOTCR AT WORN AT CARRIED AT HERE"), "AT 252 AT 253 AT 254 AT 255");
}

TEST(LocationWordsToNumbers, TakesTheWordsInAnyCase) {
    EXPECT_EQ(Numbered("PLACE 4 worn"), "PLACE 4 253");
}

TEST(LocationWordsToNumbers, LeavesAConditionThatBearsTheNameOfAPlace) {
    EXPECT_EQ(Numbered("CARRIED 3 PLACE 4 CARRIED"), "CARRIED 3 PLACE 4 254");
}

TEST(LocationWordsToNumbers, LeavesAPlaceWhereTheParameterDoesNotAdmitIt) {
    EXPECT_EQ(Numbered("GOTO CARRIED"), "GOTO CARRIED");
    EXPECT_EQ(Numbered("CREATE HERE"), "CREATE HERE");
}

TEST(LocationWordsToNumbers, StopsAtAnUnknownName) {
    EXPECT_EQ(Numbered("PLACE 4 WORN XYZ PLACE 4 WORN"), "PLACE 4 253 XYZ PLACE 4 WORN");
}

TEST(LocationWordsToNumbers, SeparatesTokensBySingleBlanks) {
    EXPECT_EQ(Numbered("  AT   5  "), "AT 5");
}

TEST(LocationWordsToNumbers, AnEmptyLineStaysEmpty) {
    EXPECT_EQ(Numbered(""), "");
}

TEST(CondActsToNumeric, ReplacesNamesByNumbers) {
    const Converted converted = ToNumeric("AT 5 PRESENT 3 MESSAGE 7 PLACE 4 254 DONE");
    EXPECT_EQ(converted.line, "101 5 105 3 250 7 208 4 254 265");
    EXPECT_TRUE(converted.ok);
    EXPECT_EQ(converted.errors, "");
}

TEST(CondActsToNumeric, AnEmptyLineStaysEmpty) {
    EXPECT_EQ(ToNumeric("").line, "");
    EXPECT_TRUE(ToNumeric("").ok);
}

TEST(CondActsToNumeric, ReplacesWordsByTheirNumbers) {
    EXPECT_EQ(ToNumeric("ADJECT1 RED ADVERB SLOWL PREP UNDER NOUN2 LAMP").line, "121 2 122 5 123 6 124 50");
}

TEST(CondActsToNumeric, TheTypeOfAWordIsThatOfItsCondition) {
    EXPECT_EQ(ToNumeric("NOUN2 LIGHT").line, "124 51");
}

TEST(CondActsToNumeric, AReservedWordFitsEveryCondition) {
    EXPECT_EQ(ToNumeric("PREP _").line, "123 255");
}

TEST(CondActsToNumeric, AWordIsLookedUpByItsFirstFiveLettersOnPurpose) {
    EXPECT_EQ(ToNumeric("ADVERB SLOWLY").line, "122 5");
    EXPECT_EQ(ToNumeric("PREP UNDERNEATH").line, "123 6");
}

TEST(CondActsToNumeric, TheWholeWordCountsBeforeItsFirstFiveLetters) {
    EXPECT_EQ(ToNumeric("NOUN2 SATCHEL PRESENT 6").line, "124 52 105 6");
    EXPECT_EQ(CondActsToNumeric("PREP UNDERNEATH", SampleCatalogue(),
                                WordIndex({{"UNDER", WordNumber(6), kPreposition},
                                           {"UNDERNEATH", WordNumber(7), kPreposition}}))
                  .line,
              "123 7");
}

TEST(CondActsToNumeric, AWordOfAnotherTypeIsNotCut) {
    const WordIndex words({{"UNDER", WordNumber(6), kPreposition}, {"UNDERNEATH", WordNumber(7), kAdverb}});
    const Converted converted = CondActsToNumeric("PREP UNDERNEATH", SampleCatalogue(), words);
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "word UNDERNEATH Type doesn't agree with PREP");
}

TEST(CondActsToNumeric, ACutWordThatFitsTwoIsAFault) {
    const Converted converted = ToNumeric("NOUN2 LAMPSHADE");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "word LAMPSHADE Type doesn't agree with NOUN2");
}

TEST(CondActsToNumeric, TellsTheFirstTokenThatDoesNotCompile) {
    const Converted converted = ToNumeric("DONE PREP THROUGHOUT ADVERB RED");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.faultyToken, 2u);
    EXPECT_EQ(ToNumeric("DONE PLACE 4").faultyToken, 1u);
    EXPECT_EQ(ToNumeric("DONE XYZ").faultyToken, 1u);
    EXPECT_EQ(ToNumeric("PLACE 4 CARRIED").faultyToken, 2u);
}

TEST(CondActsToNumeric, JoinsItsErrorsByAnd) {
    EXPECT_EQ(ToNumeric("PREP RED ADVERB RED").errors,
              "word RED Type doesn't agree with PREP and word RED Type doesn't agree with ADVERB");
}

TEST(CondActsToNumeric, AnUnknownNameStopsItWithAMessage) {
    const Converted converted = ToNumeric("DONE XYZ DONE");
    EXPECT_EQ(converted.line, "265");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "XYZ is an invalid Condition/Action");
}

TEST(CondActsToNumeric, AMissingParameterIsReported) {
    const Converted converted = ToNumeric("PLACE 4");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "No parameter where there should be one");
}

TEST(CondActsToNumeric, ATextInANumericParameterStaysAndIsReported) {
    const Converted converted = ToNumeric("PLACE 4 CARRIED");
    EXPECT_EQ(converted.line, "208 4 CARRIED");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "Invalid number for parameter 2");
}

TEST(NumericToCondActs, ReplacesNumbersByNamesAndWords) {
    const Converted converted = ToText("101 5 121 2 250 7 265");
    EXPECT_EQ(converted.line, "AT 5 ADJECT1 RED MESSAGE 7 DONE");
    EXPECT_TRUE(converted.ok);
}

TEST(NumericToCondActs, WritesThePlacesThatAreNoRoomAsWords) {
    EXPECT_EQ(ToText("101 252 101 253 101 254 101 255").line, "AT NOTCR AT WORN AT CARRIED AT HERE");
}

TEST(NumericToCondActs, LocationsAbove255KeepTheirNumbers) {
    EXPECT_EQ(ToText("234 300").line, "GOTO 300");
}

TEST(NumericToCondActs, AParameterThatAdmitsNoLocationWordsKeepsItsNumber) {
    EXPECT_EQ(ToText("234 254").line, "GOTO 254");
}

TEST(NumericToCondActs, OnlyLocationsAreWrittenAsWords) {
    EXPECT_EQ(ToText("228 60 254").line, "LET 60 254");
}

TEST(NumericToCondActs, AnUnknownWordNumberGivesTheEmptyWordAndIsReported) {
    const Converted converted = ToText("123 99");
    EXPECT_EQ(converted.line, "PREP");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "word 99 Type doesn't agree with PREP");
}

TEST(NumericToCondActs, AnUnknownNumberStopsItWithAMessage) {
    const Converted converted = ToText("265 999 265");
    EXPECT_EQ(converted.line, "DONE");
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "999 is an invalid Condition/Action");
}

TEST(NumericToCondActs, UndoesCondActsToNumeric) {
    const std::string line = "AT 3 PLACE 4 CARRIED NOUN2 LIGHT PREP _ EQ 60 7 DONE";
    EXPECT_EQ(ToText(ToNumeric(Numbered(line)).line).line, line);
}

}  // namespace
}  // namespace fabula::condacts
