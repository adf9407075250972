#include "pictures/characters/character_file.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace fabula::pictures {
namespace {

std::string FaultOf(std::string_view text) {
    try {
        ReadCharacterFile(text, "runes.chr");
    } catch (const Error& error) {
        return error.what();
    }
    return "read";
}

TEST(WriteCharacterFile, WritesTwoHeadLinesAndABlockForEachSet) {
    CharacterSets sets;
    sets.Add({3, 65, "Runes", {0, 24, 36, 66, 126, 66, 66, 0}});
    sets.Add({3, 66, "Runes", {1, 2, 3, 4, 5, 6, 7, 255}});
    sets.Add({12, 33, "Stars", {}});
    EXPECT_EQ(WriteCharacterFile(sets, {12, 3}),
              "CHARSETS\r\n"
              "Delim=|\r\n"
              "SET0012\r\n"
              "Stars\r\n"
              "33|0|0|0|0|0|0|0|0\r\n"
              "ENDSET\r\n"
              "SET0003\r\n"
              "Runes\r\n"
              "65|0|24|36|66|126|66|66|0\r\n"
              "66|1|2|3|4|5|6|7|255\r\n"
              "ENDSET\r\n");
}

TEST(WriteCharacterFile, OfSetZeroOnlyShadesAndUserGraphicsTravel) {
    CharacterSets sets;
    for (const int number : {0, 15, 32, 65, 127, 128, 143, 144, 164}) {
        sets.Add({0, number, "Default", {}});
    }
    EXPECT_EQ(WriteCharacterFile(sets, {0}),
              "CHARSETS\r\n"
              "Delim=|\r\n"
              "SET0000\r\n"
              "Default\r\n"
              "0|0|0|0|0|0|0|0|0\r\n"
              "15|0|0|0|0|0|0|0|0\r\n"
              "144|0|0|0|0|0|0|0|0\r\n"
              "164|0|0|0|0|0|0|0|0\r\n"
              "ENDSET\r\n");
}

TEST(WriteCharacterFile, ASetThatDoesNotExistIsAnError) {
    EXPECT_THROW(WriteCharacterFile(CharacterSets{}, {1}), Error);
}

TEST(ReadCharacterFile, GivesTheSetsInOrder) {
    const CharacterFile file = ReadCharacterFile(
        "CHARSETS\nDelim=|\nSET0003\nRunes\n65|0|24|36|66|126|66|66|0\nENDSET\nSET0000\nDefault\nENDSET\n",
        "f");
    ASSERT_TRUE(file.isCharacterFile);
    ASSERT_EQ(file.sets.size(), 2U);
    EXPECT_EQ(file.sets[0].line, "SET0003");
    EXPECT_EQ(file.sets[0].name, "Runes");
    ASSERT_EQ(file.sets[0].characters.size(), 1U);
    EXPECT_EQ(file.sets[0].characters[0].number, 65);
    EXPECT_EQ(file.sets[0].characters[0].glyph, (Glyph{0, 24, 36, 66, 126, 66, 66, 0}));
    EXPECT_EQ(file.sets[1].line, "SET0000");
    EXPECT_EQ(file.sets[1].name, "Default");
    EXPECT_TRUE(file.sets[1].characters.empty());
}

TEST(ReadCharacterFile, TheDelimiterIsWhateverTheFileSays) {
    const CharacterFile file =
        ReadCharacterFile("CHARSETS\nDelim=;\nSET0003\nA|B\n65;1;2;3;4;5;6;7;8\nENDSET\n", "f");
    EXPECT_EQ(file.sets[0].name, "A|B");
    EXPECT_EQ(file.sets[0].characters[0].glyph, (Glyph{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ReadCharacterFile, TheNameOfASetMayHaveTwentyLetters) {
    const std::string name = "ÄÖÜ and a few letter";
    EXPECT_EQ(ReadCharacterFile("CHARSETS\nDelim=|\nSET0003\n" + name + "\nENDSET\n", "f").sets[0].name,
              name);
}

TEST(ReadCharacterFile, TakesEveryKindOfLineEnd) {
    const CharacterFile file =
        ReadCharacterFile("CHARSETS\r\nDelim=|\r\nSET0003\r\nRunes\r\n65|1|2|3|4|5|6|7|8\r\nENDSET", "f");
    EXPECT_EQ(file.sets[0].name, "Runes");
    EXPECT_EQ(file.sets[0].characters.size(), 1U);
}

TEST(ReadCharacterFile, AnotherFirstLineIsNoCharacterSetFile) {
    EXPECT_FALSE(ReadCharacterFile("", "f").isCharacterFile);
    EXPECT_FALSE(ReadCharacterFile("charsets\nDelim=|\n", "f").isCharacterFile);
    EXPECT_FALSE(ReadCharacterFile("\nCHARSETS\n", "f").isCharacterFile);
}

TEST(ReadCharacterFile, ADamagedFileIsAnErrorWithItsLine) {
    EXPECT_EQ(FaultOf("CHARSETS"), "runes.chr ends too early.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim\n"),
              "runes.chr, line 2: expected the delimiter, as in \"Delim=|\".");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=\n"),
              "runes.chr, line 2: expected the delimiter, as in \"Delim=|\".");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nRunes\n"),
              "runes.chr, line 3: expected a set, as in \"SET0003\".");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\n65|1|2|3|4|5|6|7|8\n"),
              "runes.chr ends too early.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\n65|1|2|3|4|5|6|7\nENDSET\n"),
              "runes.chr, line 5: expected a character and its eight rows.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\n65|1|2|3|4|5|6|7|8|9\nENDSET\n"),
              "runes.chr, line 5: expected a character and its eight rows.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\nA|1|2|3|4|5|6|7|8\nENDSET\n"),
              "runes.chr, line 5: expected the number of a character.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\n1000|1|2|3|4|5|6|7|8\nENDSET\n"),
              "runes.chr, line 5: expected the number of a character.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nRunes\n65|1|2|3|4|5|6|7|256\nENDSET\n"),
              "runes.chr, line 5: expected numbers from 0 to 255.");
    EXPECT_EQ(FaultOf("CHARSETS\nDelim=|\nSET0003\nA name of 21 letters!\nENDSET\n"),
              "runes.chr, line 4: the name of a set has at most 20 characters.");
}

}  // namespace
}  // namespace fabula::pictures
