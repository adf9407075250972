#include "condacts/language/parser.h"

#include <gtest/gtest.h>

#include "condacts/sample.h"

namespace fabula::condacts {
namespace {

TEST(SplitLine, GivesTokensWithTheirPlaces) {
    const std::string line = "  AT 5\tDONE ";
    const std::vector<Token> tokens = SplitLine(line);
    ASSERT_EQ(tokens.size(), 3U);
    EXPECT_EQ(tokens[0].text, "AT");
    EXPECT_EQ(tokens[0].position, 2U);
    EXPECT_EQ(tokens[1].text, "5");
    EXPECT_EQ(tokens[1].position, 5U);
    EXPECT_EQ(tokens[2].text, "DONE");
    EXPECT_EQ(tokens[2].position, 7U);
}

TEST(SplitLine, AnEmptyOrBlankLineHasNoTokens) {
    EXPECT_TRUE(SplitLine("").empty());
    EXPECT_TRUE(SplitLine(" \r\n ").empty());
}

TEST(SplitLine, CharactersOutsideAsciiCountAsBlanks) {
    const std::vector<Token> tokens = SplitLine(
        "AT\xC2\x8C"
        "5");
    ASSERT_EQ(tokens.size(), 2U);
    EXPECT_EQ(tokens[0].text, "AT");
    EXPECT_EQ(tokens[1].text, "5");
}

TEST(CountTokens, CountsNamesAndParameters) {
    EXPECT_EQ(CountTokens("AT 5 PRESENT 3 MESSAGE 7 PLACE 4 254 DONE"), 10);
    EXPECT_EQ(CountTokens(""), 0);
}

TEST(ParseLine, GroupsNamesWithTheirParameters) {
    const Catalogue catalogue = SampleCatalogue();
    const std::string line = "PLACE 4 254 DONE";
    const ParsedLine parsed = ParseLine(line, catalogue);
    ASSERT_EQ(parsed.statements.size(), 2U);
    EXPECT_EQ(parsed.statements[0].condAct->name, "PLACE");
    EXPECT_EQ(parsed.statements[0].name, 0U);
    EXPECT_EQ(parsed.Param(parsed.statements[0], 1), "254");
    EXPECT_EQ(parsed.statements[1].condAct->name, "DONE");
    EXPECT_EQ(parsed.statements[1].name, 3U);
    EXPECT_EQ(parsed.unknownName, std::nullopt);
}

TEST(ParseLine, StopsAtAnUnknownName) {
    const Catalogue catalogue = SampleCatalogue();
    const ParsedLine parsed = ParseLine("DONE XYZ DONE", catalogue);
    EXPECT_EQ(parsed.statements.size(), 1U);
    EXPECT_EQ(parsed.unknownName, 1U);
}

TEST(ParseLine, AParameterMayBearTheNameOfACondition) {
    const Catalogue catalogue = SampleCatalogue();
    const ParsedLine parsed = ParseLine("PLACE 4 CARRIED DONE", catalogue);
    ASSERT_EQ(parsed.statements.size(), 2U);
    EXPECT_EQ(parsed.Param(parsed.statements[0], 1), "CARRIED");
}

TEST(ParseLine, TheLastConditionMayLackParameters) {
    const Catalogue catalogue = SampleCatalogue();
    const ParsedLine parsed = ParseLine("DONE PLACE 4", catalogue);
    ASSERT_EQ(parsed.statements.size(), 2U);
    EXPECT_EQ(parsed.statements[1].paramsGiven, 1U);
}

TEST(ParseNumericLine, FindsNamesByTheirNumbers) {
    const Catalogue catalogue = SampleCatalogue();
    const ParsedLine parsed = ParseNumericLine("208 4 254 265", catalogue);
    ASSERT_EQ(parsed.statements.size(), 2U);
    EXPECT_EQ(parsed.statements[0].condAct->name, "PLACE");
    EXPECT_EQ(parsed.statements[1].condAct->name, "DONE");
}

TEST(NumberOfToken, TakesDigitsOnly) {
    EXPECT_EQ(NumberOfToken("0"), 0);
    EXPECT_EQ(NumberOfToken("007"), 7);
    EXPECT_EQ(NumberOfToken(""), std::nullopt);
    EXPECT_EQ(NumberOfToken("-1"), std::nullopt);
    EXPECT_EQ(NumberOfToken("+1"), std::nullopt);
    EXPECT_EQ(NumberOfToken("1.5"), std::nullopt);
    EXPECT_EQ(NumberOfToken("1x"), std::nullopt);
}

TEST(NumberOfToken, AllValuesBeyondSixteenBitsAreOne) {
    EXPECT_EQ(NumberOfToken("32767"), 32767);
    EXPECT_EQ(NumberOfToken("32768"), kBeyondNumbers);
    EXPECT_EQ(NumberOfToken("99999999999999999999"), kBeyondNumbers);
}

}  // namespace
}  // namespace fabula::condacts
