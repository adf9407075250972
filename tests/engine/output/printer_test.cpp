#include "engine/output/printer.h"

#include <gtest/gtest.h>

#include "engine/host_parts.h"
#include "engine/output/script.h"
#include "engine/run_failure.h"
#include "support/doubles/recording_window.h"
#include "support/games/template_adventure.h"

namespace fabula::test {
namespace {

using engine::TextRole;

/// A printer in the text pane of a game with ink 7 and paper 0, or in the character pane.
class PrinterTest : public testing::Test {
  protected:
    PrinterTest() { UseData(); }

    void UseCharacterPane() {
        settings_.characterSets = true;
        window_.measures.characterWidth = 256;
        UseData();
    }

    void UseData() {
        settings_.textColour = 7;
        settings_.backColour = 0;
        settings_.font = 0;
        settings_.fontSize = 12;
        settings_.printWidth = 40;
        printer_ = std::make_unique<engine::Printer>(window_, window_.measures, settings_, script_);
    }

    /// Prints a text and gives the screen.
    std::string Screen(std::string_view text) {
        printer_->PrintText(text, false, true);
        printer_->EndLine();
        std::string screen = window_.Screen();
        screen.pop_back();
        return screen;
    }

    OpenedAdventure adventure_;
    engine::TextSettings settings_ = engine::ReadTextSettings(*adventure_);
    engine::RecordingWindow window_;
    engine::Script script_;
    std::unique_ptr<engine::Printer> printer_;
};

TEST_F(PrinterTest, TextStandsAsItIs) {
    EXPECT_EQ(Screen("A lamp is here."), "A lamp is here.");
}

TEST_F(PrinterTest, SeveralBlanksStay) {
    EXPECT_EQ(Screen("a  b"), "a  b");
}

TEST_F(PrinterTest, TheStoredLineEndMarkerEndsALine) {
    EXPECT_EQ(Screen("one\u008Ctwo"), "one\ntwo");
}

TEST_F(PrinterTest, OtherLineEndsEndALineToo) {
    EXPECT_EQ(Screen("one\r\ntwo\nthree\rfour"), "one\ntwo\nthree\nfour");
}

TEST_F(PrinterTest, AWordThatDoesNotFitGoesToTheNextLine) {
    window_.measures.textWidth = 10;
    EXPECT_EQ(Screen("aaaa bbbb cccc"), "aaaa bbbb \ncccc");
}

TEST_F(PrinterTest, AWidthThatChangesHoldsFromTheNextTextOn) {
    window_.measures.textWidth = 20;
    printer_->PrintText("aaaa bbbb cccc\u008C", false, true);
    window_.measures.textWidth = 10;
    printer_->PrintText("aaaa bbbb cccc", false, true);
    EXPECT_EQ(window_.Screen(), "aaaa bbbb cccc\naaaa bbbb \ncccc");
}

TEST_F(PrinterTest, AHostThatTellsNoMeasuresGetsItsLinesWhole) {
    const engine::HostParts none{engine::WindowParts{}};
    engine::Printer(window_, none.measures, settings_, script_)
        .PrintText(std::string(2000, 'a') + " b", false, true);
    EXPECT_EQ(window_.Screen(), std::string(2000, 'a') + " b");
}

TEST_F(PrinterTest, AWordThatJustFitsStays) {
    window_.measures.textWidth = 9;
    EXPECT_EQ(Screen("aaaa bbbb cccc"), "aaaa bbbb \ncccc");
}

TEST_F(PrinterTest, AWordLongerThanTheLineStandsOnALineOfItsOwn) {
    window_.measures.textWidth = 5;
    EXPECT_EQ(Screen("aa bbbbbbbb cc"), "aa \nbbbbbbbb \ncc");
}

TEST_F(PrinterTest, ALongWordAtTheStartOfALineIsNotPrecededByAnEmptyLine) {
    window_.measures.textWidth = 5;
    EXPECT_EQ(Screen("bbbbbbbb"), "bbbbbbbb");
}

TEST_F(PrinterTest, WidthsCountCharactersNotBytes) {
    window_.measures.textWidth = 5;
    EXPECT_EQ(Screen("äöü äöü"), "äöü \näöü");
}

TEST_F(PrinterTest, TheColumnGoesOnFromTextToText) {
    window_.measures.textWidth = 10;
    printer_->PrintText("aaaa ", false, true);
    printer_->PrintText("bbbbbb", false, true);
    EXPECT_EQ(window_.Screen(), "aaaa \nbbbbbb");
}

TEST_F(PrinterTest, WrappedLineEndsAreToldFromHardOnes) {
    window_.measures.textWidth = 10;
    Screen("aaaa bbbb cccc\u008Cdddd");
    EXPECT_EQ(window_.Text(), "aaaa bbbb cccc\ndddd\n");
}

TEST_F(PrinterTest, ASingleBlankAtTheStartOfALineGoesBehindTheFirstWord) {
    EXPECT_EQ(Screen(" and more"), "and  more");
}

TEST_F(PrinterTest, TwoBlanksAtTheStartOfALineStay) {
    EXPECT_EQ(Screen("  and more"), "  and more");
}

TEST_F(PrinterTest, ASingleBlankElsewhereStays) {
    printer_->PrintText("a lamp", false, true);
    EXPECT_EQ(Screen(" (worn)"), "a lamp (worn)");
}

TEST_F(PrinterTest, EntitiesAreShownAsTheirCharacters) {
    EXPECT_EQ(Screen("Fish &amp; chips &lt;hot&gt;"), "Fish & chips <hot>");
}

TEST_F(PrinterTest, AnAmpersandBehindAnEntityMakesNoSecondOne) {
    EXPECT_EQ(Screen("&amp;lt;"), "<");  // "&amp;" goes first
}

TEST_F(PrinterTest, TheBlankEntityDoesNotBreakALine) {
    window_.measures.textWidth = 10;
    EXPECT_EQ(Screen("aaaa bb&sp;cc&sp;dd"), "aaaa \nbb cc dd");
}

TEST_F(PrinterTest, AWindowThatBreaksLinesGetsTheBlanksThatDoNotBreakAsNoBreakSpaces) {
    window_.measures.breaksLines = true;
    EXPECT_EQ(Screen("aaaa bb&sp;cc\x7F"
                     "dd"),
              "aaaa bb\u00A0cc\u00A0dd");
}

TEST_F(PrinterTest, TheHardSpaceIsABlankThatDoesNotBreakALine) {
    window_.measures.textWidth = 10;
    EXPECT_EQ(Screen("aaaa bb\x7F"
                     "cc\x7F"
                     "dd"),
              "aaaa \nbb cc dd");
}

TEST_F(PrinterTest, ALessThanWithoutItsEndIsText) {
    EXPECT_EQ(Screen("a <b c"), "a <b c");
}

TEST_F(PrinterTest, AnUnknownTagIsLeftAwayWithoutAWord) {
    EXPECT_EQ(Screen("a<NOSUCH=3>b"), "ab");
}

TEST_F(PrinterTest, TagsIgnoreCase) {
    Screen("<Ink=2>a");
    EXPECT_EQ(window_.StyleOf("a").ink, 2);
}

TEST_F(PrinterTest, PaperAndInkTakeAColour) {
    Screen("<PAPER=3><INK=2>a");
    EXPECT_EQ(window_.StyleOf("a").paper, 3);
    EXPECT_EQ(window_.StyleOf("a").ink, 2);
}

TEST_F(PrinterTest, BarePaperAndInkGoBackToTheColoursInForceWhenTheTextBegan) {
    printer_->Paper(5);
    printer_->Ink(4);
    Screen("<PAPER=3><INK=2>a<PAPER><INK>b");
    EXPECT_EQ(window_.StyleOf("b").paper, 5);
    EXPECT_EQ(window_.StyleOf("b").ink, 4);
}

TEST_F(PrinterTest, AColourBeyond15IsIgnored) {
    Screen("<INK=16>a<PAPER=-1>b<INK=x>c");
    EXPECT_EQ(window_.StyleOf("abc").ink, 7);
}

TEST_F(PrinterTest, SwitchTagsSwitch) {
    Screen("<FLASH>a</FLASH>b<INVERSE>c</INVERSE>d<OVER>e</OVER>f<BLINK>g</BLINK>h");
    EXPECT_TRUE(window_.StyleOf("a").flash);
    EXPECT_FALSE(window_.StyleOf("b").flash);
    EXPECT_TRUE(window_.StyleOf("c").inverse);
    EXPECT_FALSE(window_.StyleOf("d").inverse);
    EXPECT_TRUE(window_.StyleOf("e").over);
    EXPECT_FALSE(window_.StyleOf("f").over);
    EXPECT_TRUE(window_.StyleOf("g").flash);
    EXPECT_FALSE(window_.StyleOf("h").flash);
}

TEST_F(PrinterTest, BrightRaisesTheInk) {
    Screen("<INK=2><BRIGHT>a</BRIGHT>b");
    EXPECT_EQ(window_.StyleOf("a").ink, 10);
    EXPECT_EQ(window_.StyleOf("b").ink, 2);
}

TEST_F(PrinterTest, CharsetAndFontSizeTakeANumberAndGoBackWithoutOne) {
    Screen("<CHARSET=3><FNTSIZE=20>a<CHARSET><FNTSIZE>b");
    EXPECT_EQ(window_.StyleOf("a").font, 3);
    EXPECT_EQ(window_.StyleOf("a").fontSize, 20);
    EXPECT_EQ(window_.StyleOf("b").font, 0);
    EXPECT_EQ(window_.StyleOf("b").fontSize, 12);
}

TEST_F(PrinterTest, TabGoesToColumn16) {
    EXPECT_EQ(Screen("ab<TAB>c"), "ab              c");
}

TEST_F(PrinterTest, TabFromColumn16OnEndsTheLine) {
    EXPECT_EQ(Screen("abcdefghijklmnop<TAB>c"), "abcdefghijklmnop\nc");
}

TEST_F(PrinterTest, TheTabToTheNextEighthColumnGoesThere) {
    EXPECT_EQ(Screen("ab<HT>c"), "ab      c");
    EXPECT_EQ(Screen("abcdefgh<HT>c").substr(10), "abcdefgh        c");
}

TEST_F(PrinterTest, CenterPutsBlanksBeforeTheWord) {
    EXPECT_EQ(Screen("<CENTER><BRIGHT>The&sp;End</BRIGHT>"), "                The End");
}

TEST_F(PrinterTest, BreakTagsEndTheLine) {
    EXPECT_EQ(Screen("a<BR>b<CR>c"), "a\nb\nc");
}

TEST_F(PrinterTest, ACharacterByNumberIsThatOfTheOldSetsOrOfWindows) {
    EXPECT_EQ(Screen("<#=65><#=96><#=127><#=233><#=150>"), "A£©é–");
}

TEST_F(PrinterTest, ACharacterNumberThatIsNoneIsIgnored) {
    EXPECT_EQ(Screen("a<#=7><#=300><#=x>b"), "ab");
}

TEST_F(PrinterTest, AWordIsBrokenBetweenItsTags) {
    window_.measures.textWidth = 10;
    EXPECT_EQ(Screen("aaaa bbb<INK=2>cccc"), "aaaa bbb\ncccc");
}

TEST_F(PrinterTest, BrightFontSizeAndInkAreAfterwardsWhatTheyWere) {
    printer_->PrintText("<INK=2><BRIGHT><CHARSET=3><FNTSIZE=20><PAPER=1><FLASH>a", false, true);
    const engine::TextStyle& style = printer_->Style();
    EXPECT_EQ(style.ink, 7);
    EXPECT_FALSE(style.bright);
    EXPECT_EQ(style.font, 0);
    EXPECT_EQ(style.fontSize, 12);
}

TEST_F(PrinterTest, PaperFlashInverseAndOverStayBehindAText) {
    printer_->PrintText("<PAPER=1><FLASH><INVERSE><OVER>a", false, true);
    const engine::TextStyle& style = printer_->Style();
    EXPECT_EQ(style.paper, 1);
    EXPECT_TRUE(style.flash);
    EXPECT_TRUE(style.inverse);
    EXPECT_TRUE(style.over);
}

TEST_F(PrinterTest, WithoutRestoringEverythingStays) {
    printer_->PrintText("<INK=2>a", false, false);
    EXPECT_EQ(printer_->Style().ink, 2);
}

TEST_F(PrinterTest, AFreshStartBeginsALineInTheColoursOfTheGame) {
    printer_->Ink(2);
    printer_->PrintText("a", false, true);
    printer_->PrintText("b", true, true);
    EXPECT_EQ(window_.Screen(), "a\nb");
    EXPECT_EQ(window_.StyleOf("b").ink, 7);
}

TEST_F(PrinterTest, AFreshStartAtTheStartOfALineAddsNoLineEnd) {
    printer_->PrintText("b", true, true);
    EXPECT_EQ(window_.Screen(), "b");
}

TEST_F(PrinterTest, TextOfOneStyleGoesToTheWindowAsOneRun) {
    printer_->PrintText("one two three", false, true);
    EXPECT_EQ(window_.Runs().size(), 1U);
}

TEST_F(PrinterTest, PromptsAreToldFromTheGamesText) {
    printer_->PrintText(">", false, true, TextRole::Prompt);
    EXPECT_EQ(window_.Runs().back().role, TextRole::Prompt);
    EXPECT_EQ(window_.Text(), "");
}

TEST_F(PrinterTest, ClearsInTheGamesPaperAndTheInkInForce) {
    printer_->PrintText("abc", false, true);
    printer_->Clear();
    window_.measures.textWidth = 4;
    printer_->PrintText("defg", false, true);
    EXPECT_EQ(window_.Screen(), "defg");
}

TEST_F(PrinterTest, MoreTextThanAnyGamePrintsIsARunTimeFailure) {
    const std::string text(1024 * 1024, 'x');
    const auto flood = [&] {
        for (int i = 0; i < 20; ++i)
            printer_->PrintText(text, false, true);
    };
    EXPECT_THROW(flood(), engine::RunFailure);
}

TEST_F(PrinterTest, OfTheCharacterPaneCountsPixels) {
    UseCharacterPane();
    const std::string word(20, 'a');
    EXPECT_EQ(Screen(word + " bbbbbbbbbbb cc"), word + " bbbbbbbbbbb\ncc");
}

TEST_F(PrinterTest, OfTheCharacterPaneDrawsOverABlankAtTheStartOfALine) {
    UseCharacterPane();
    EXPECT_EQ(Screen(" and more"), "and more");
}

TEST_F(PrinterTest, OfTheCharacterPaneTabsByCharacters) {
    UseCharacterPane();
    EXPECT_EQ(Screen("ab<TAB>c"), "ab              c");
    EXPECT_EQ(Screen("ab<HT>c").substr(18), "ab      c");
}

TEST_F(PrinterTest, OfTheCharacterPaneCentresInThePanesWidth) {
    UseCharacterPane();
    EXPECT_EQ(Screen("<CENTER>ab"), "               ab");
}

TEST_F(PrinterTest, OfTheCharacterPaneKeepsCharacterNumbersAsTheyAre) {
    UseCharacterPane();
    EXPECT_EQ(Screen("<#=127><#=143><#=144>\x7F"), "\x7F\u008F\u0090\x7F");
}

TEST_F(PrinterTest, OfTheCharacterPaneClearingGoesBackToTheColoursOfTheGame) {
    UseCharacterPane();
    printer_->Ink(2);
    printer_->Clear();
    EXPECT_EQ(printer_->Style().ink, 7);
}

}  // namespace
}  // namespace fabula::test
