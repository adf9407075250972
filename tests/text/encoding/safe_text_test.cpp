#include "text/encoding/safe_text.h"

#include <gtest/gtest.h>

namespace fabula::text {
namespace {

std::string Safe(std::string_view text) {
    std::string shown;
    AppendSafe(text, shown);
    return shown;
}

std::string Characters(std::string_view codes) {
    std::string shown;
    AppendCharacters(codes, shown);
    return shown;
}

TEST(SafeText, OrdinaryTextStaysAsItIs) {
    EXPECT_EQ(Safe("A lamp, ½ full: \"日本\"."), "A lamp, ½ full: \"日本\".");
}

TEST(SafeText, AnEscapeSequenceLosesItsEscape) {
    EXPECT_EQ(Safe("a\x1B[2Jb"), "a\uFFFD[2Jb");
}

TEST(SafeText, EveryControlCharacterIsReplaced) {
    EXPECT_EQ(Safe("\a\b\r\n\x7F"), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(Safe(std::string_view("\0", 1)), "\uFFFD");
}

TEST(SafeText, TheControlCharactersBehindAsciiAreReplacedToo) {
    EXPECT_EQ(Safe("\u0080\u009B31m\u009F"), "\uFFFD\uFFFD31m\uFFFD");
}

TEST(SafeText, BytesThatAreNoUtf8AreReplaced) {
    EXPECT_EQ(Safe("a\x9B\xC3z"), "a\uFFFD\uFFFDz");
}

TEST(SafeText, TheNoBreakSpaceBehindTheControlCharactersStays) {
    EXPECT_EQ(Safe("a\u00A0b"), "a\u00A0b");
}

TEST(SafeText, ATabBecomesABlankAndALineSeparatorIsReplaced) {
    EXPECT_EQ(Safe("a\tb\u2028c\u2029"), "a b\uFFFDc\uFFFD");
}

TEST(SafeText, TurnsOfDirectionAreReplacedAndMarksOfDirectionStay) {
    EXPECT_EQ(Safe("a\u202Ab\u202E\u2066c\u2069"), "a\uFFFDb\uFFFD\uFFFDc\uFFFD");
    EXPECT_EQ(Safe("\u200E\u200F\u061C"), "\u200E\u200F\u061C");
}

TEST(SafeText, AReportKeepsItsLineEnds) {
    EXPECT_EQ(SafeLines("one\ntwo\x1B[2J\r\n\n"), "one\ntwo\uFFFD[2J\uFFFD\n\n");
    EXPECT_EQ(SafeLines(""), "");
}

TEST(SafeText, CharacterSetsShowTheirFontAsText) {
    EXPECT_EQ(Characters("Take 5 ~"), "Take 5 ~");
}

TEST(SafeText, Character96IsThePoundAnd127TheCopyright) {
    EXPECT_EQ(Characters("`5 \x7F"), "£5 ©");
}

TEST(SafeText, BlockGraphicsAreTheBlockElementsByTheirFourQuarters) {
    EXPECT_EQ(Characters("\u0080\u0081\u0082\u0083\u0084\u0085\u0086\u0087"), " ▝▘▀▗▐▚▜");
    EXPECT_EQ(Characters("\u0088\u0089\u008A\u008B\u008C\u008D\u008E\u008F"), "▖▞▌▛▄▟▙█");
}

TEST(SafeText, UserDefinedGraphicsAreAPlaceholder) {
    EXPECT_EQ(Characters("\u0090\u00A4"), "□□");
}

TEST(SafeText, ControlCodesOfACharacterSetAreReplaced) {
    EXPECT_EQ(Characters("\x1B\u001F"), "\uFFFD\uFFFD");
}

TEST(SafeText, WidthsAreColumns) {
    EXPECT_EQ(DisplayWidth('a'), 1);
    EXPECT_EQ(DisplayWidth(U'é'), 1);
    EXPECT_EQ(DisplayWidth(U'日'), 2);
    EXPECT_EQ(DisplayWidth(U'\u0301'), 0);
    EXPECT_EQ(DisplayWidth(U'█'), 1);
    EXPECT_EQ(DisplayWidth(U'\uFFFD'), 1);
}

}  // namespace
}  // namespace fabula::text
