#include "pictures/characters/bdf_font.h"

#include <gtest/gtest.h>

#include "platform/error.h"

namespace fabula::pictures {
namespace {

constexpr std::string_view kFont =
    "STARTFONT 2.1\n"
    "COMMENT two letters\n"
    "FONT -misc-tiny\n"
    "SIZE 8 75 75\n"
    "FONTBOUNDINGBOX 8 8 0 -1\n"
    "CHARS 3\n"
    "STARTCHAR A\n"
    "ENCODING 65\n"
    "BBX 8 8 0 -1\n"
    "BITMAP\n00\n18\n24\n42\n7E\n42\n42\n00\n"
    "ENDCHAR\n"
    "STARTCHAR comma\n"
    "ENCODING 44\n"
    "BBX 2 3 3 -1\n"
    "BITMAP\nC0\n40\n80\n"
    "ENDCHAR\n"
    "STARTCHAR nameless\n"
    "ENCODING -1\n"
    "BBX 8 1 0 0\n"
    "BITMAP\nFF\n"
    "ENDCHAR\n"
    "ENDFONT\n";

std::string MessageFor(std::string text) {
    try {
        ReadBdfFont(text, "tiny.bdf");
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

std::string Changed(std::string_view from, std::string_view to) {
    std::string text(kFont);
    return text.replace(text.find(from), from.size(), to);
}

TEST(ReadBdfFont, GivesTheCharactersByTheirNumbers) {
    const auto characters = ReadBdfFont(kFont, "tiny.bdf");
    ASSERT_EQ(characters.size(), 2U);
    EXPECT_EQ(characters.at(65), (Glyph{0x00, 0x18, 0x24, 0x42, 0x7E, 0x42, 0x42, 0x00}));
}

TEST(ReadBdfFont, PutsASmallCharacterWhereTheFontSays) {
    EXPECT_EQ(ReadBdfFont(kFont, "tiny.bdf").at(44),
              (Glyph{0, 0, 0, 0, 0, 0b00011000, 0b00001000, 0b00010000}));
}

TEST(ReadBdfFont, WhatStandsInARowBesideASmallCharacterDoesNotCount) {
    EXPECT_EQ(ReadBdfFont(Changed("BITMAP\nC0", "BITMAP\nFF"), "tiny.bdf"), ReadBdfFont(kFont, "tiny.bdf"));
}

TEST(ReadBdfFont, ReadsTheLineEndsOfOtherSystems) {
    std::string text(kFont);
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
        text.replace(at, 1, "\r\n");
    EXPECT_EQ(ReadBdfFont(text, "tiny.bdf"), ReadBdfFont(kFont, "tiny.bdf"));
}

TEST(ReadBdfFont, RefusesAFontOfAnotherSize) {
    EXPECT_EQ(MessageFor(Changed("FONTBOUNDINGBOX 8 8", "FONTBOUNDINGBOX 8 16")),
              "tiny.bdf, line 5: the font is 8 by 16 pixels; a character set takes one of 8 by 8.");
}

TEST(ReadBdfFont, RefusesAFileThatIsNoFont) {
    EXPECT_EQ(MessageFor("CHARSETS\nDelim=|\n"),
              "tiny.bdf, line 1: this is no font in the Bitmap Distribution Format.");
    EXPECT_EQ(MessageFor(""), "tiny.bdf, line 1: this is no font in the Bitmap Distribution Format.");
}

TEST(ReadBdfFont, RefusesAFileThatEndsTooEarly) {
    EXPECT_EQ(MessageFor(std::string(kFont.substr(0, kFont.find("ENDFONT")))), "tiny.bdf ends too early.");
}

TEST(ReadBdfFont, RefusesRowsThatAreNone) {
    EXPECT_EQ(MessageFor(Changed("7E", "7G")),
              "tiny.bdf, line 15: expected a row of eight pixels as two hexadecimal digits.");
    EXPECT_EQ(MessageFor(Changed("7E", "7E00")),
              "tiny.bdf, line 15: expected a row of eight pixels as two hexadecimal digits.");
}

TEST(ReadBdfFont, RefusesACharacterThatStandsOutOfItsCell) {
    EXPECT_EQ(MessageFor(Changed("BBX 2 3 3 -1", "BBX 2 3 7 -1")),
              "tiny.bdf, line 23: a character stands out of its cell of 8 by 8.");
    EXPECT_EQ(MessageFor(Changed("BBX 2 3 3 -1", "BBX 2 3 3 -2")),
              "tiny.bdf, line 23: a character stands out of its cell of 8 by 8.");
}

TEST(ReadBdfFont, RefusesACharacterBeforeTheSize) {
    EXPECT_EQ(MessageFor(Changed("FONTBOUNDINGBOX 8 8 0 -1\n", "")),
              "tiny.bdf, line 6: the font does not tell its size.");
}

}  // namespace
}  // namespace fabula::pictures
