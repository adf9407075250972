#include <gtest/gtest.h>

#include "pictures/characters/character_sets.h"
#include "pictures/command_catalogue.h"
#include "pictures/drawstring.h"

namespace fabula::pictures {
namespace {

using Words = std::vector<std::string>;

TEST(CommandCatalogue, FindsAWordWithoutRegardToCase) {
    CommandCatalogue commands;
    commands.Add({304, "LINE", 0, 3, {}, {"IO", "RX", "RY"}});
    ASSERT_NE(commands.Find("line"), nullptr);
    EXPECT_EQ(commands.Find("Line")->number, 304);
    EXPECT_EQ(commands.Find("LINES"), nullptr);
    EXPECT_EQ(commands.Find(""), nullptr);
}

TEST(CommandCatalogue, OfTwoWordsOfOneNameTheFirstIsFound) {
    CommandCatalogue commands;
    commands.Add({401, "R", 0, 0, {}, {}});
    commands.Add({328, "R", 1, 0, {}, {}});
    EXPECT_EQ(commands.Find("R")->number, 401);
    EXPECT_EQ(commands.FindPictureCommand("R")->number, 328);
}

TEST(CommandCatalogue, WordsOfTheCharacterEditorAreNoPictureCommands) {
    CommandCatalogue commands;
    commands.Add({400, "A", 0, 0, {}, {}});
    commands.Add({300, "B", 0, 0, {}, {}});
    EXPECT_EQ(commands.FindPictureCommand("A"), nullptr);
    EXPECT_EQ(commands.FindPictureCommand("B"), nullptr);
}

TEST(CommandCatalogue, CutsNumbersOfParametersToThePlacesForTheirCodes) {
    CommandCatalogue commands;
    commands.Add({304, "LINE", -1, 1000, {}, {}});
    EXPECT_EQ(commands.Find("LINE")->typedParameters, 0);
    EXPECT_EQ(commands.Find("LINE")->drawnParameters, 5);
}

TEST(CharacterSets, FindACharacterBySetAndNumber) {
    CharacterSets sets;
    sets.Add({2, 65, "Two", {1}});
    sets.Add({0, 65, "Default", {2}});
    EXPECT_EQ(sets.Find(2, 65)->glyph[0], 1);
    EXPECT_EQ(sets.Find(0, 65)->glyph[0], 2);
    EXPECT_EQ(sets.Find(1, 65), nullptr);
    EXPECT_EQ(sets.Find(2, 66), nullptr);
}

TEST(CharacterSets, TheFirstOfANumberIsThatOfTheLowestSet) {
    CharacterSets sets;
    sets.Add({2, 143, "Two", {1}});
    sets.Add({0, 143, "Default", {2}});
    sets.Add({3, 9, "Three", {3}});
    EXPECT_EQ(sets.FindFirst(143)->glyph[0], 2);
    EXPECT_EQ(sets.FindFirst(9)->glyph[0], 3);
    EXPECT_EQ(sets.FindFirst(10), nullptr);
}

TEST(CharacterSets, OfTwoRecordsOfOneCharacterTheFirstStays) {
    CharacterSets sets;
    sets.Add({0, 65, "Default", {1}});
    sets.Add({0, 65, "Default", {2}});
    EXPECT_EQ(sets.Find(0, 65)->glyph[0], 1);
}

TEST(CharacterSets, GiveTheirSetsAndCharactersInOrder) {
    CharacterSets sets;
    sets.Add({4, 66, "Four", {}});
    sets.Add({4, 33, "Four", {}});
    sets.Add({1, 40, "One", {}});
    EXPECT_EQ(sets.Sets(), (std::vector<int>{1, 4}));
    ASSERT_EQ(sets.OfSet(4).size(), 2U);
    EXPECT_EQ(sets.OfSet(4)[0]->number, 33);
    EXPECT_EQ(sets.OfSet(4)[1]->number, 66);
    EXPECT_TRUE(sets.OfSet(2).empty());
}

TEST(DrawstringWords, TakeRunsOfBlanksAndControlCharactersForOneBlank) {
    EXPECT_EQ(DrawstringWords("  LINE   0\t10\r\n-20 END "), (Words{"LINE", "0", "10", "-20", "END"}));
    EXPECT_EQ(DrawstringWords(""), Words{});
    EXPECT_EQ(DrawstringWords("   "), Words{});
}

TEST(JoinWords, PutsOneBlankBetweenTwo) {
    EXPECT_EQ(JoinWords({"INK", "2", "END"}), "INK 2 END");
    EXPECT_EQ(JoinWords({}), "");
}

TEST(ParameterValue, ReadsDigitsWithAnOptionalSign) {
    EXPECT_EQ(ParameterValue("0"), 0);
    EXPECT_EQ(ParameterValue("-20"), -20);
    EXPECT_EQ(ParameterValue("+7"), 7);
    EXPECT_EQ(ParameterValue("007"), 7);
}

TEST(ParameterValue, AnythingElseIsNone) {
    EXPECT_EQ(ParameterValue(""), std::nullopt);
    EXPECT_EQ(ParameterValue("-"), std::nullopt);
    EXPECT_EQ(ParameterValue("--5"), std::nullopt);
    EXPECT_EQ(ParameterValue("1.5"), std::nullopt);
    EXPECT_EQ(ParameterValue("5x"), std::nullopt);
    EXPECT_EQ(ParameterValue("END"), std::nullopt);
}

TEST(ParameterValue, StopsAtTheLargestNumber) {
    EXPECT_EQ(ParameterValue("32768"), kLargestNumber);
    EXPECT_EQ(ParameterValue("-99999999999999999999999999"), -kLargestNumber);
}

}  // namespace
}  // namespace fabula::pictures
