#include "condacts/language/validate.h"

#include <gtest/gtest.h>

#include "condacts/sample.h"

namespace fabula::condacts {
namespace {

std::optional<Fault> Check(std::string_view line) {
    return ValidateCondActs(line, SampleCatalogue(), SampleFacts());
}

std::optional<Fault> CheckIn(Dialect dialect, std::string_view line) {
    Facts facts = SampleFacts();
    facts.dialect = dialect;
    return ValidateCondActs(line, SampleCatalogue(), facts);
}

std::optional<Fault> CheckOne(std::string_view text) {
    return ValidateCondAct(text, SampleCatalogue(), SampleFacts());
}

const std::optional<Fault> kValid = std::nullopt;

std::optional<Fault> FaultAt(std::size_t token, const char* message) {
    return Fault{message, token};
}

TEST(ValidateCondActs, AWholeLineOfGoodCondActsPasses) {
    EXPECT_EQ(Check("AT 3 PRESENT 3 MESSAGE 5 PLACE 4 254 DONE"), kValid);
}

TEST(ValidateCondActs, AnEmptyLinePasses) {
    EXPECT_EQ(Check(""), kValid);
}

TEST(ValidateCondActs, NamesAndWordsMayBeInLowerCase) {
    EXPECT_EQ(Check("place 4 carried prep under"), kValid);
}

TEST(ValidateCondActs, ALetterWhoseCapitalIsAsciiIsABlankLikeAllOthers) {
    EXPECT_EQ(Check("DONE \u017F XYZ"), FaultAt(1, "XYZ is an invalid Condition/Action"));
}

TEST(ValidateCondActs, AnUnknownNameInAListFails) {
    EXPECT_EQ(Check("DONE XYZ"), FaultAt(1, "XYZ is an invalid Condition/Action"));
}

TEST(ValidateCondActs, ANameOfAnotherDialectIsUnknown) {
    EXPECT_EQ(CheckIn(Dialect::Vel, "AUTOINC 60 1"), FaultAt(0, "AUTOINC is an invalid Condition/Action"));
}

TEST(ValidateCondActs, StopsAtTheFirstFault) {
    EXPECT_EQ(Check("MESSAGE 99 XYZ"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondActs, TellsTheTokenThatFailed) {
    EXPECT_EQ(Check("DONE PLACE 4 5"), FaultAt(3, "Invalid number for parameter 2"));
}

TEST(ValidateCondAct, AnUnknownNameFails) {
    EXPECT_EQ(CheckOne("XYZ 1"), FaultAt(0, "Invalid Condition/Action"));
}

TEST(ValidateCondAct, AnEmptyTextFails) {
    EXPECT_EQ(CheckOne(""), FaultAt(0, "Invalid Condition/Action"));
}

TEST(ValidateCondAct, NothingBehindACondActWithoutParametersIsRead) {
    EXPECT_EQ(CheckOne("DONE XYZ"), kValid);
}

TEST(ValidateCondAct, ABareMessageFails) {
    EXPECT_EQ(CheckOne("MESSAGE"),
              FaultAt(0, "No parameters for a Condition/Action which must have parameter"));
}

TEST(ValidateCondAct, AMissingSecondParameterFails) {
    EXPECT_EQ(CheckOne("PLACE 4"), FaultAt(0, "No parameter where there should be one"));
}

TEST(ValidateCondAct, TheFirstParameterIsCheckedBeforeAMissingSecond) {
    EXPECT_EQ(CheckOne("PLACE 9"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, ANegativeNumberFails) {
    EXPECT_EQ(CheckOne("AT -1"), FaultAt(1, "Parameter cannot be < 0"));
}

TEST(ValidateCondAct, ANegativeFractionIsANegativeNumber) {
    EXPECT_EQ(CheckOne("AT -1.5"), FaultAt(1, "Parameter cannot be < 0"));
}

TEST(ValidateCondAct, ATextInANumericParameterFails) {
    EXPECT_EQ(CheckOne("MESSAGE LAMP"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("PLACE 4 1.5"), FaultAt(2, "Invalid number for parameter 2"));
    EXPECT_EQ(CheckOne("LET 60 X"), FaultAt(2, "Invalid number for parameter 2"));
    EXPECT_EQ(CheckOne("PROCESS -"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, ALocationBeyondTheRoomsFails) {
    EXPECT_EQ(CheckOne("AT 5"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("AT 4"), kValid);
}

TEST(ValidateCondAct, ALocationOf254PassesWhenTheBoundAllowsIt) {
    EXPECT_EQ(CheckOne("AT 252"), kValid);
    EXPECT_EQ(CheckOne("AT 254"), kValid);
    EXPECT_EQ(CheckOne("AT 251"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, ALocationOf254FailsWhenTheBoundIsMinusOne) {
    EXPECT_EQ(CheckOne("GOTO 254"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, OnlyTheFourNumbersOfPlacesThatAreNoRoomAreSpecial) {
    EXPECT_EQ(CheckOne("AT 255"), kValid);
    EXPECT_EQ(CheckOne("AT 256"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("AT 99999"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("CARRIED 256"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("SYSMESS 256"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, ANumberThatHasARecordPassesBehindAGap) {
    Facts facts = SampleFacts();
    facts.locations = {PlaceNumber(0), PlaceNumber(7), PlaceNumber(300)};
    facts.objects = {{ObjectNumber(3), 0}, {ObjectNumber(300), 0}};
    facts.messages = {MessageNumber(12)};
    facts.systemMessages = {SystemMessageNumber(80)};
    facts.flags = {{FlagNumber(2000), {false, true}}};
    for (const char* line : {"AT 7", "AT 300", "GOTO 300", "PRESENT 3", "CARRIED 300", "MESSAGE 12",
                             "SYSMESS 80", "ZERO 2000"}) {
        EXPECT_EQ(ValidateCondAct(line, SampleCatalogue(), facts), kValid) << line;
    }
}

TEST(ValidateCondAct, ANumberInAGapFailsThoughThereAreAsManyRecords) {
    Facts facts = SampleFacts();
    facts.locations = {PlaceNumber(0), PlaceNumber(7), PlaceNumber(300)};
    facts.objects = {{ObjectNumber(3), 0}, {ObjectNumber(300), 0}};
    facts.messages = {MessageNumber(12)};
    facts.systemMessages = {SystemMessageNumber(80)};
    facts.flags = {{FlagNumber(2000), {false, true}}};
    for (const char* line :
         {"AT 1", "GOTO 2", "PRESENT 0", "CARRIED 1", "MESSAGE 0", "SYSMESS 0", "ZERO 0"}) {
        EXPECT_EQ(ValidateCondAct(line, SampleCatalogue(), facts),
                  FaultAt(1, "Invalid number for parameter 1"))
            << line;
    }
}

TEST(ValidateCondAct, AnObjectFollowsTheRulesOfALocation) {
    EXPECT_EQ(CheckOne("CARRIED 4"), kValid);
    EXPECT_EQ(CheckOne("CARRIED 5"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("CARRIED 252"), kValid);
    EXPECT_EQ(CheckOne("PRESENT 252"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, AMessageBeyondTheMessagesFails) {
    EXPECT_EQ(CheckOne("MESSAGE 5"), kValid);
    EXPECT_EQ(CheckOne("MESSAGE 6"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("MESSAGE 252"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, AProcessTableMustExist) {
    EXPECT_EQ(CheckOne("PROCESS 3"), kValid);
    EXPECT_EQ(CheckOne("PROCESS 4"), FaultAt(1, "There is not a Process table with that number"));
}

TEST(ValidateCondAct, ASystemMessageMustExistOrBe252AndAbove) {
    EXPECT_EQ(CheckOne("SYSMESS 53"), kValid);
    EXPECT_EQ(CheckOne("SYSMESS 54"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("SYSMESS 252"), kValid);
}

TEST(ValidateCondAct, ASystemMessageWithTheBoundFiveIsFromTwoToFive) {
    EXPECT_EQ(CheckOne("PROMPT 1"), FaultAt(1, "Invalid number for parameter 1"));
    EXPECT_EQ(CheckOne("PROMPT 2"), kValid);
    EXPECT_EQ(CheckOne("PROMPT 5"), kValid);
    EXPECT_EQ(CheckOne("PROMPT 6"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, AValueBeyondItsBoundFails) {
    EXPECT_EQ(CheckOne("LET 60 255"), kValid);
    EXPECT_EQ(CheckOne("LET 60 256"), FaultAt(2, "Invalid Value for that Condition/Action"));
}

TEST(ValidateCondAct, AContainerPasses) {
    EXPECT_EQ(CheckOne("PUTIN 1 4"), kValid);
    EXPECT_EQ(CheckOne("TAKEOUT 1 4"), kValid);
}

TEST(ValidateCondAct, AnObjectThatIsNoContainerFails) {
    EXPECT_EQ(CheckOne("PUTIN 1 2"), FaultAt(2, "Location 2 is not a container"));
}

TEST(ValidateCondAct, AnObjectThatCanOnlyBeWornIsNoContainer) {
    EXPECT_EQ(CheckOne("TAKEOUT 2 1"), FaultAt(2, "Location 1 is not a container"));
}

TEST(ValidateCondAct, AContainerWhoseLocationHasExitsFails) {
    EXPECT_EQ(CheckOne("PUTIN 1 0"), FaultAt(2, "Location 0 cannot be a container. It has exits."));
}

TEST(ValidateCondAct, ASpecialLocationIsNoContainer) {
    EXPECT_EQ(CheckOne("PUTIN 1 CARRIED"), FaultAt(2, "Location 254 is not a container"));
}

TEST(ValidateCondAct, ALocationWithoutAnObjectOfItsNumberIsNoContainer) {
    Facts facts = SampleFacts();
    facts.objects.erase(ObjectNumber(4));
    EXPECT_EQ(ValidateCondAct("PUTIN 1 4", SampleCatalogue(), facts),
              FaultAt(2, "Location 4 is not a container"));
}

TEST(ValidateCondAct, TheRuleOfContainersIsNotForTheObjectPutIn) {
    EXPECT_EQ(CheckOne("PUTIN 3 4"), kValid);
}

TEST(ValidateCondAct, AnUnknownWordFails) {
    EXPECT_EQ(CheckOne("PREP XYZ"), FaultAt(1, "XYZ is an invalid word"));
}

TEST(ValidateCondAct, AWordOfTheRightTypePasses) {
    EXPECT_EQ(CheckOne("ADJECT1 RED"), kValid);
    EXPECT_EQ(CheckOne("ADJECT2 RED"), kValid);
    EXPECT_EQ(CheckOne("ADVERB SLOWL"), kValid);
    EXPECT_EQ(CheckOne("NOUN2 LAMP"), kValid);
    EXPECT_EQ(CheckOne("PREP UNDER"), kValid);
}

TEST(ValidateCondAct, AWordOfAnotherTypeFailsWithThePhraseOfItsCondition) {
    EXPECT_EQ(CheckOne("ADJECT1 LAMP"), FaultAt(1, "LAMP is not an adjective"));
    EXPECT_EQ(CheckOne("ADJECT2 LAMP"), FaultAt(1, "LAMP is not an adjective"));
    EXPECT_EQ(CheckOne("ADVERB LAMP"), FaultAt(1, "LAMP is not an adverb"));
    EXPECT_EQ(CheckOne("NOUN2 RED"), FaultAt(1, "RED is not a noun"));
    EXPECT_EQ(CheckOne("PREP LAMP"), FaultAt(1, "LAMP is not a preposition"));
}

TEST(ValidateCondAct, AWordThatIsFirstAVerbIsNoNounOnPurpose) {
    EXPECT_EQ(CheckOne("NOUN2 LIGHT"), FaultAt(1, "LIGHT is not a noun"));
}

TEST(ValidateCondAct, ReservedWordsPassForTheFiveWordConditions) {
    EXPECT_EQ(CheckOne("PREP _"), kValid);
    EXPECT_EQ(CheckOne("ADJECT1 *"), kValid);
}

TEST(ValidateCondAct, AWordOfSixLettersPasses) {
    EXPECT_EQ(CheckOne("PREP THROUGH"), kValid);
}

TEST(ValidateCondAct, AWordThatCompilesCutToFiveLettersPasses) {
    EXPECT_EQ(CheckOne("PREP UNDERNEATH"), kValid);
}

TEST(ValidateCondAct, AWordThatFitsNoneEvenWhenCutFails) {
    EXPECT_EQ(CheckOne("PREP THROUGHOUT"), FaultAt(1, "THROUGHOUT is an invalid word"));
}

TEST(ValidateCondAct, AWordThatFitsTwoWhenCutFails) {
    EXPECT_EQ(CheckOne("NOUN2 LAMPSHADE"), FaultAt(1, "LAMPSHADE is an invalid word"));
}

TEST(ValidateCondAct, AFlagBeyondTheFlagsFails) {
    EXPECT_EQ(CheckOne("ZERO 1024"), kValid);
    EXPECT_EQ(CheckOne("ZERO 1025"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, AFlagOfAMarloAdventureIsAtMost32) {
    EXPECT_EQ(CheckIn(Dialect::Marlo, "ZERO 32"), kValid);
    EXPECT_EQ(CheckIn(Dialect::Marlo, "ZERO 33"), FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, AFlagOfAMarloAdventureMustAlsoHaveARecord) {
    Facts facts = SampleFacts();
    facts.dialect = Dialect::Marlo;
    facts.flags.erase(FlagNumber(30));
    EXPECT_EQ(ValidateCondAct("ZERO 30", SampleCatalogue(), facts),
              FaultAt(1, "Invalid number for parameter 1"));
}

TEST(ValidateCondAct, Flag1004CannotBeUsed) {
    EXPECT_EQ(CheckOne("SET 1004"),
              FaultAt(1, "Flag 1004 cannot be modified or checked using conditions/actions"));
    EXPECT_EQ(CheckOne("ZERO 1004"),
              FaultAt(1, "Flag 1004 cannot be modified or checked using conditions/actions"));
}

TEST(ValidateCondAct, Flag1005CanOnlyBeSetOrCleared) {
    EXPECT_EQ(CheckOne("SET 1005"), kValid);
    EXPECT_EQ(CheckOne("CLEAR 1005"), kValid);
    EXPECT_EQ(CheckOne("LET 1005 1"), FaultAt(1, "Flag 1005 can only be SET or CLEAR"));
}

TEST(ValidateCondAct, AutoincOfASystemFlagFails) {
    EXPECT_EQ(CheckOne("AUTOINC 28 1"), FaultAt(1, "Flag 28 cannot be set With AUTOINC"));
    EXPECT_EQ(CheckOne("AUTODEC 28 1"), FaultAt(1, "Flag 28 cannot be set With AUTODEC"));
    EXPECT_EQ(CheckOne("AUTOINC 60 1"), kValid);
}

TEST(ValidateCondAct, AnActionCannotUseAFlagThatMayNotChange) {
    EXPECT_EQ(CheckOne("SET 38"), FaultAt(1, "This flag cannot be used in an Action, only a Condition"));
    EXPECT_EQ(CheckOne("ZERO 38"), kValid);
}

TEST(ValidateCondAct, TheRulesOfOneFlagAreCheckedBeforeItsSecondParameter) {
    EXPECT_EQ(CheckOne("LET 38 999"),
              FaultAt(1, "This flag cannot be used in an Action, only a Condition"));
}

}  // namespace
}  // namespace fabula::condacts
