#include <gtest/gtest.h>

#include "pictures/drawstring_check.h"
#include "test_book.h"

namespace fabula::pictures {
namespace {

/// What the check says to a typed line: its fault, "nothing" for an empty line, or the command with its
/// parameters.
std::string CheckTyped(std::string_view line, bool rplotOn = false, PictureKind kind = PictureKind::Room) {
    PictureBook book = TestBook();
    AddPicture(book, 50, "END", PictureKind::Subroutine);
    const TypedCommandCheck check = ValidateCommandLine(book, line, kind, rplotOn);
    if (!check.Passed()) return check.fault;
    if (check.command == nullptr) return "nothing";
    std::string text = check.command->name;
    for (const int parameter : check.parameters) {
        text += ' ' + std::to_string(parameter);
    }
    return text;
}

TEST(ValidateCommandLine, AnEmptyLineIsNoCommand) {
    EXPECT_EQ(CheckTyped(""), "nothing");
    EXPECT_EQ(CheckTyped("   "), "nothing");
}

TEST(ValidateCommandLine, GivesTheCommandAndItsParameters) {
    EXPECT_EQ(CheckTyped("LINE"), "LINE");
    EXPECT_EQ(CheckTyped("  ink   2 "), "INK 2");
    EXPECT_EQ(CheckTyped("SHADE 15 15"), "SHADE 15 15");
    EXPECT_EQ(CheckTyped("TEXT 1 33"), "TEXT 1 33");
    EXPECT_EQ(CheckTyped("INVERSE 1"), "INVERSE 1");
    EXPECT_EQ(CheckTyped("OVER 0"), "OVER 0");
}

TEST(ValidateCommandLine, OnlyWordsOfPicturesAreCommands) {
    EXPECT_EQ(CheckTyped("CIRCLE"), "CIRCLE is an invalid command");
    EXPECT_EQ(CheckTyped("R"), "R is an invalid command");
}

TEST(ValidateCommandLine, DuringRPlotOnlyAttributesAndRPlotAreAllowed) {
    EXPECT_EQ(CheckTyped("LINE", true), "RPLOT is on. LINE is not allowed during RPLOT");
    EXPECT_EQ(CheckTyped("START", true), "RPLOT is on. START is not allowed during RPLOT");
    EXPECT_EQ(CheckTyped("BRIGHT 1", true), "BRIGHT 1");
    EXPECT_EQ(CheckTyped("FLASH 1", true), "FLASH 1");
    EXPECT_EQ(CheckTyped("INK 1", true), "INK 1");
    EXPECT_EQ(CheckTyped("INVERSE 1", true), "INVERSE 1");
    EXPECT_EQ(CheckTyped("OVER 1", true), "OVER 1");
    EXPECT_EQ(CheckTyped("PAPER 1", true), "PAPER 1");
    EXPECT_EQ(CheckTyped("RPLOT", true), "RPLOT");
}

TEST(ValidateCommandLine, AWrongWordIsToldBeforeRPlotAndRPlotBeforeTheParameters) {
    EXPECT_EQ(CheckTyped("CIRCLE 1", true), "CIRCLE is an invalid command");
    EXPECT_EQ(CheckTyped("LINE 1 2 3", true), "RPLOT is on. LINE is not allowed during RPLOT");
}

TEST(ValidateCommandLine, CountsTheParameters) {
    EXPECT_EQ(CheckTyped("LINE 5"), "Command has too many parameters. It should have 0");
    EXPECT_EQ(CheckTyped("INK 1 2"), "Command has too many parameters. It should have 1");
    EXPECT_EQ(CheckTyped("TEXT 0"), "Command has too few parameters. It should have 2");
    EXPECT_EQ(CheckTyped("INK"), "Command has too few parameters. It should have 1");
}

TEST(ValidateCommandLine, ParametersAreWholeNumbers) {
    EXPECT_EQ(CheckTyped("INK red"), "Non-numeric parameter for INK command");
}

TEST(ValidateCommandLine, NamesTheCommandInMessagesOfColoursAndSwitches) {
    EXPECT_EQ(CheckTyped("INK 9"), "9 is an invalid color for INK");
    EXPECT_EQ(CheckTyped("BRIGHT 2"), "BRIGHT must have a value of 0 or 1");
    EXPECT_EQ(CheckTyped("OVER -1"), "OVER must have a value of 0 or 1");
}

TEST(ValidateCommandLine, ShadesAreZeroToFifteen) {
    EXPECT_EQ(CheckTyped("SHADE 0 15"), "SHADE 0 15");
    EXPECT_EQ(CheckTyped("SHADE 0 16"), "16 is an invalid shade (0-15)");
    EXPECT_EQ(CheckTyped("SHADE -1 16"), "-1 is an invalid shade (0-15)");
}

TEST(ValidateCommandLine, ShadeBytesAreOneTo255) {
    EXPECT_EQ(CheckTyped("QSHADE 255"), "QSHADE 255");
    EXPECT_EQ(CheckTyped("BSHADE 0"), "0 is an invalid Marlo Shade (1-255)");
}

TEST(ValidateCommandLine, CharactersAreRefusedInOtherWordsThanInADrawstring) {
    EXPECT_EQ(CheckTyped("TEXT 0 200"), "200 is an invalid character number");
    EXPECT_EQ(CheckTyped("TEXT 0 33"), "33 is an invalid character number for set 0");
    EXPECT_EQ(CheckTyped("TEXT 0 15"), "Characters must be between 32 and 164 inclusive");
    EXPECT_EQ(CheckTyped("TEXT 7 200"), "7 is an invalid number for Character Set");
}

TEST(ValidateCommandLine, GosubTakesAPictureOrALocation) {
    EXPECT_EQ(CheckTyped("GOSUB 4 50"), "GOSUB 4 50");
    EXPECT_EQ(CheckTyped("GOSUB 0 3"), "GOSUB 0 3");
    EXPECT_EQ(CheckTyped("GOSUB 0 4"), "4 is an invalid location");
    EXPECT_EQ(CheckTyped("GOSUB 8 50"), "8 is an invalid scale (0-7)");
    EXPECT_EQ(CheckTyped("GOSUB sc=4 50"), "Non-numeric parameter for GOSUB command");
}

TEST(ValidateCommandLine, ASubroutineCanNotScale) {
    EXPECT_EQ(CheckTyped("GOSUB 4 50", false, PictureKind::Subroutine),
              "Cannot specifiy a scale>0 in a subroutine");
    EXPECT_EQ(CheckTyped("GOSUB 0 50", false, PictureKind::Subroutine), "GOSUB 0 50");
}

TEST(ValidateCommandLine, EndIsNotAllowed) {
    EXPECT_EQ(CheckTyped("END"), "END is not allowed as a command");
    EXPECT_EQ(CheckTyped("END 1"), "Command has too many parameters. It should have 0");
}

}  // namespace
}  // namespace fabula::pictures
