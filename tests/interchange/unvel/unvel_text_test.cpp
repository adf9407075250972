#include "interchange/unvel/unvel_text.h"

#include <gtest/gtest.h>

namespace fabula::interchange {
namespace {

TEST(UnVelText, ALiteralBracketIsNotTakenForATag) {
    EXPECT_EQ(UnVelText("a < b > c & d <INK=3>"), "a &lt; b &gt; c &amp; d &lt;INK=3&gt;");
}

TEST(UnVelText, LineEndsComeInThreeForms) {
    EXPECT_EQ(UnVelText("one^{7}two{13}three\nfour"), "one\u008Ctwo\u008Cthree\u008Cfour");
}

TEST(UnVelText, AttributesAreSwitchedByPairs) {
    EXPECT_EQ(UnVelText("{18}{1}a{18}{0}{19}{1}b{19}{0}{20}{1}c{20}{0}{21}{1}d{21}{0}"),
              "<FLASH>a</FLASH><BRIGHT>b</BRIGHT><INVERSE>c</INVERSE><OVER>d</OVER>");
}

TEST(UnVelText, ColoursHaveAValueButTheTransparentOne) {
    EXPECT_EQ(UnVelText("{16}{3}{17}{6}"), "<INK=3><PAPER=6>");
    EXPECT_EQ(UnVelText("{16}{8}{17}{8}"), "<INK><PAPER>");
}

TEST(UnVelText, OtherCodesAreCharacters) {
    EXPECT_EQ(UnVelText("{6}{144}{23}{7}{23}"), "<TAB><#=144><#=7><#=23>");
}

TEST(UnVelText, ABraceThatBeginsNoCodeStays) {
    EXPECT_EQ(UnVelText("{a} {} {256} {1234} {"), "{a} {} {256} {1234} {");
}

TEST(UnVelText, AColourWithoutAValueIsACharacter) {
    EXPECT_EQ(UnVelText("{16}x"), "<#=16>x");
}

TEST(UnVelText, TheWrongBracketOfTheOlderWriterIsPlainText) {
    EXPECT_EQ(UnVelText("(16}"), "(16}");
}

TEST(WriteUnVelText, MarkupBecomesCodes) {
    const WrittenUnVelText written =
        ToUnVelText("a &lt; b\u008C<bright>c</bright><INK=3><PAPER><TAB><#=144> &amp;");
    EXPECT_EQ(written.line, "a < b^{7}{19}{1}c{19}{0}{16}{3}{17}{8}{6}{144} &");
    EXPECT_TRUE(written.comesBack);
}

TEST(WriteUnVelText, InkWithoutAValueKeepsTheWrongBracketAndDoesNotComeBack) {
    const WrittenUnVelText written = ToUnVelText("<INK>");
    EXPECT_EQ(written.line, "(16}");
    EXPECT_FALSE(written.comesBack);
}

TEST(WriteUnVelText, CharactersThatWouldBeTakenForCodesAreMarked) {
    const WrittenUnVelText written = ToUnVelText("<#=6>^<#=7><#=16>");
    EXPECT_EQ(written.line, "{23}{6}^{23}{7}{23}{16}");
    EXPECT_TRUE(written.comesBack);
}

TEST(WriteUnVelText, WhatTheListingCannotHoldIsTold) {
    EXPECT_FALSE(ToUnVelText("<CENTER>x").comesBack);
    EXPECT_FALSE(ToUnVelText("{5}").comesBack);
    EXPECT_FALSE(ToUnVelText("<#=13>").comesBack);
    EXPECT_FALSE(ToUnVelText("&sp;").comesBack);
}

}  // namespace
}  // namespace fabula::interchange
