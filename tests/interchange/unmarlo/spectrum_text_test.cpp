#include "interchange/unmarlo/spectrum_text.h"

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

/// A text behind its line number, of a version that keeps its layout.
std::string FromSpectrum(const std::string& text) {
    return ConvertUnMarloDesc("1234: " + text, "0.9");
}

TEST(ConvertUnMarloDesc, DropsTheLineNumber) {
    EXPECT_EQ(FromSpectrum("A damp cellar."), "A damp cellar.");
}

TEST(ConvertUnMarloDesc, ATextOfSixCharactersKeepsThem) {
    EXPECT_EQ(ConvertUnMarloDesc("abcdef", "0.9"), "abcdef");
}

TEST(ConvertUnMarloDesc, TurnsPoundAndCopyrightIntoCharactersByNumber) {
    EXPECT_EQ(FromSpectrum("&pound;5 &copy;"), "<#=96>5 <#=127>");
}

TEST(ConvertUnMarloDesc, EveryOtherAmpersandIsOneOfTheGamesText) {
    EXPECT_EQ(FromSpectrum("Fish & chips &amp; peas"), "Fish &amp; chips &amp;amp; peas");
}

TEST(ConvertUnMarloDesc, BreaksAreLineEnds) {
    EXPECT_EQ(FromSpectrum("a<BR>b"),
              "a\u008C"
              "b");
}

TEST(ConvertUnMarloDesc, BlinkIsFlash) {
    EXPECT_EQ(FromSpectrum("<BLINK>a</BLINK>"), "<FLASH>a</FLASH>");
}

TEST(ConvertUnMarloDesc, EscapedPercentSignsGo) {
    EXPECT_EQ(FromSpectrum("a%%25;b%25;c"), "abc");
}

TEST(ConvertUnMarloDesc, ATabIsAsManyBlanks) {
    EXPECT_EQ(FromSpectrum("a<TAB3>b"), "a   b");
}

TEST(ConvertUnMarloDesc, ATagBeforeATabIsTakenForTheTabOnPurpose) {
    EXPECT_EQ(FromSpectrum("<FLASH>a<TAB3>b"), "a   b");
    EXPECT_EQ(FromSpectrum("<#=127>a<TAB1>b"), std::string(27, ' ') + "a b");
}

TEST(ConvertUnMarloDesc, ATagBehindTheLastTabStays) {
    EXPECT_EQ(FromSpectrum("<TAB2>a<FLASH>"), "  a<FLASH>");
}

TEST(ConvertUnMarloDesc, AnEndlessTabIsCut) {
    EXPECT_EQ(FromSpectrum("<TAB99999>"), std::string(255, ' '));
}

TEST(ConvertUnMarloDesc, ATabWithoutEndStays) {
    EXPECT_EQ(FromSpectrum("a<TAB3"), "a<TAB3");
}

TEST(ConvertUnMarloDesc, ACommaInBracketsIsATab) {
    EXPECT_EQ(FromSpectrum("a<,>b"), "a<TAB>b");
}

TEST(ConvertUnMarloDesc, HexadecimalEscapesAreCharactersByNumber) {
    EXPECT_EQ(FromSpectrum("a%90;b"), "a<#=144>b");
}

TEST(ConvertUnMarloDesc, APercentSignWithoutItsEndStays) {
    EXPECT_EQ(FromSpectrum("100% sure; really"), "100% sure; really");
    EXPECT_EQ(FromSpectrum("50%"), "50%");
}

TEST(ConvertUnMarloDesc, OnlyVersion082IsSetAnew) {
    EXPECT_EQ(ConvertUnMarloDesc("1234: a", "0.8.2"), "a ");
    EXPECT_EQ(ConvertUnMarloDesc("1234: a", "0.8.3"), "a");
}

TEST(ConvertTabs, EndsEveryLineWithABlank) {
    EXPECT_EQ(ConvertTabs("ab cd"), "ab cd ");
}

TEST(ConvertTabs, KeepsLineEnds) {
    EXPECT_EQ(ConvertTabs("ab\u008C"
                          "cd"),
              "ab \u008C"
              "cd ");
}

TEST(ConvertTabs, CarriageReturnAndLineFeedAreALineEnd) {
    EXPECT_EQ(ConvertTabs("a\r\nb"), ConvertTabs("a\u008Cb"));
    EXPECT_EQ(ConvertTabs("a\nb"), ConvertTabs("a\u008Cb"));
}

TEST(ConvertTabs, BreaksAWordAtColumn32) {
    EXPECT_EQ(ConvertTabs("123456789012345678901234567890 abcd"),
              "123456789012345678901234567890 a\u008C"
              "bcd ");
}

TEST(ConvertTabs, AWordThatEndsAtColumn32MovesTheBlankToANewLine) {
    EXPECT_EQ(ConvertTabs("12345678901234567890123456789012 ab"),
              "12345678901234567890123456789012\u008C ab ");
}

TEST(ConvertTabs, AWordLongerThanALineLosesItsTailOnPurpose) {
    EXPECT_EQ(ConvertTabs("12345678901234567890123456789012345"),
              "12345678901234567890123456789012\u008C ");
    EXPECT_EQ(ConvertTabs("12 12345678901234567890123456789012345"),
              "12 12345678901234567890123456789\u008C"
              "012 ");
}

TEST(ConvertTabs, TagsTakeNoRoom) {
    EXPECT_EQ(ConvertTabs("<FLASH>1234567890123456789012345678</FLASH> a"),
              "<FLASH>1234567890123456789012345678 </FLASH> a ");
}

TEST(ConvertTabs, TheTailBehindASplitKeepsItsTag) {
    EXPECT_EQ(ConvertTabs("ab<INK=2>cd"), "ab <INK=2>cd ");
}

TEST(ConvertTabs, ABracketThatOpensNoTagIsText) {
    EXPECT_EQ(ConvertTabs("<b"), "<b ");
    EXPECT_EQ(ConvertTabs("a<b"), "a <b ");
}

TEST(ConvertTabs, ATabGoesToColumn16) {
    EXPECT_EQ(ConvertTabs("<TAB>12345678901234567"),
              "<TAB>1234567890123456\u008C"
              "7 ");
}

TEST(ConvertTabs, ATabBehindColumn16IsALineEnd) {
    EXPECT_EQ(ConvertTabs("1234567890123456<TAB>a"),
              "1234567890123456 \u008C"
              "a ");
}

TEST(ProcessTag, KeepsTheKnownTags) {
    std::string_view word = "<BRIGHT></BRIGHT><INK=2><#=96>x";
    int column = 3;
    EXPECT_EQ(ProcessTag(word, column), "<BRIGHT></BRIGHT><INK=2><#=96>");
    EXPECT_EQ(word, "x");
    EXPECT_EQ(column, 3);
}

TEST(ProcessTag, DropsAnUnknownTagWithoutATrace) {
    std::string_view word = "<XYZ>x";
    int column = 0;
    EXPECT_EQ(ProcessTag(word, column), "");
    EXPECT_EQ(word, "x");
}

TEST(ProcessTag, KnowsTagsInAnyCase) {
    std::string_view word = "<bright>";
    int column = 0;
    EXPECT_EQ(ProcessTag(word, column), "<bright>");
}

}  // namespace
}  // namespace fabula::interchange
