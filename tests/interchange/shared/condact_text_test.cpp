#include "interchange/shared/condact_text.h"

#include <gtest/gtest.h>

#include "condacts/language/load.h"
#include "support/games/template_adventure.h"

namespace fabula::interchange {
namespace {

using condacts::Converted;
using condacts::WordIndex;
using condacts::WordNumber;

const condacts::Catalogue& Names() {
    static const condacts::Catalogue catalogue = condacts::LoadCatalogue(*test::OpenedAdventure());
    return catalogue;
}

TEST(ConvertCAs, TurnsTheWordsOfPlacesIntoNumbers) {
    EXPECT_EQ(ConvertCAs("PLACE 4 CARRIED ISAT 3 HERE ISAT 3 WORN PLACE 2 _", Names()).line,
              "PLACE 4 254 ISAT 3 255 ISAT 3 253 PLACE 2 252");
}

TEST(ConvertCAs, TakesLowerCase) {
    EXPECT_EQ(ConvertCAs("place 4 carried", Names()).line, "place 4 254");
}

TEST(ConvertCAs, AnUnderlineIsNotCreatedForAnyOneWordCondactThatTakesNoWord) {
    EXPECT_EQ(ConvertCAs("GOTO _", Names()).line, "GOTO 252");
}

TEST(ConvertCAs, AnUnderlineStaysTheWordOfAWordCondition) {
    EXPECT_EQ(ConvertCAs("PREP _ NOUN2 _ ADJECT1 _ ADJECT2 _ ADVERB _", Names()).line,
              "PREP _ NOUN2 _ ADJECT1 _ ADJECT2 _ ADVERB _");
}

TEST(ConvertCAs, TheWordOfAWordConditionIsNoPlace) {
    EXPECT_EQ(ConvertCAs("ADVERB HERE", Names()).line, "ADVERB HERE");
}

TEST(ConvertCAs, ANameThatIsAPlaceIsNoParameter) {
    EXPECT_EQ(ConvertCAs("CARRIED 3 WORN 4", Names()).line, "CARRIED 3 WORN 4");
}

TEST(ConvertCAs, AnEmptyTextStaysEmpty) {
    const Converted converted = ConvertCAs("", Names());
    EXPECT_EQ(converted.line, "");
    EXPECT_TRUE(converted.ok);
}

TEST(ConvertCAs, AnUnknownNameFails) {
    const Converted converted = ConvertCAs("DONE XYZ 1", Names());
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "XYZ is an invalid Condition/Action");
}

const WordIndex kWords({{"SLOWL", WordNumber(5), condacts::kAdverb},
                        {"LAMP", WordNumber(50), condacts::kNoun},
                        {"RED", WordNumber(2), condacts::kAdjective},
                        {"UNDER", WordNumber(6), condacts::kPreposition},
                        {"UNDO", WordNumber(6), condacts::kVerb}});

TEST(ConvertUnVelCAs, TurnsTheNumbersOfWordsIntoWords) {
    EXPECT_EQ(ConvertUnVelCAs("ADJECT1 2 ADVERB 5 NOUN2 50 PREP 6 ADJECT2 2", Names(), kWords).line,
              "ADJECT1 RED ADVERB SLOWL NOUN2 LAMP PREP UNDER ADJECT2 RED");
}

TEST(ConvertUnVelCAs, LeavesOtherParameters) {
    EXPECT_EQ(ConvertUnVelCAs("  PLACE  4 254   DONE ", Names(), kWords).line, "PLACE 4 254 DONE");
}

TEST(ConvertUnVelCAs, AnUnknownWordNumberFails) {
    const Converted converted = ConvertUnVelCAs("PREP 50", Names(), kWords);
    EXPECT_FALSE(converted.ok);
    EXPECT_EQ(converted.errors, "word 50 Type doesn't agree with PREP");
}

TEST(ConvertUnVelCAs, AnUnknownNameFails) {
    EXPECT_FALSE(ConvertUnVelCAs("XYZ", Names(), kWords).ok);
}

TEST(ConvExtLogs, Number255IsTheUnderline) {
    EXPECT_EQ(ConvExtLogs(condacts::kNoun, WordNumber(255), kWords), "_");
}

TEST(ConvExtLogs, TakesOnlyTheTypeAsked) {
    EXPECT_EQ(ConvExtLogs(condacts::kPreposition, WordNumber(6), kWords), "UNDER");
    EXPECT_EQ(ConvExtLogs(condacts::kNoun, WordNumber(6), kWords), std::nullopt);
}

TEST(ConvExtLogs, TakesAWordOfTheTypeThoughAReservedOneHasItsNumber) {
    const condacts::WordIndex words(
        {{"*", WordNumber(6), condacts::kReserved}, {"UNDER", WordNumber(6), condacts::kPreposition}});
    EXPECT_EQ(ConvExtLogs(condacts::kPreposition, WordNumber(6), words), "UNDER");
}

}  // namespace
}  // namespace fabula::interchange
