#include "authoring/frm_vel_vocabulary.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

/// The reserved words, LAMP (noun 50), GET (verb 20) and RED (adjective 60).
class WordScreen : public testing::Test {
  protected:
    explicit WordScreen(AdventureKind kind = AdventureKind::Fabula) : desk_(kind) {
        desk_.Adventure().DeleteFrom(TableNum::Vocabulary, "voctypen<7");
        desk_.AddWord(100, "LAMP", 50, 2);
        desk_.AddWord(101, "GET", 20, 0);
        desk_.AddWord(102, "RED", 60, 3);
        desk_.session.nextWord = 103;
    }

    frmVelVocabulary OpenNew() { return {desk_.session, {desk_.session.nextWord, true}}; }

    /// Adds a word; true when it passed.
    bool Add(const std::string& word, const std::string& number, condacts::WordType type) {
        frmVelVocabulary screen = OpenNew();
        screen.txtWord = word;
        screen.optType = type;
        screen.txtWordNum = number;
        return screen.cmdUpdate();
    }
    std::string Stored(int vocindex) {
        const auto rows = desk_.Rows(TableNum::Vocabulary, "word, vocnum, voctypen, voctype",
                                     "vocindex=" + std::to_string(vocindex));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    test::Desk desk_;
};

class VelWordScreen : public WordScreen {
  protected:
    VelWordScreen() : WordScreen(AdventureKind::Vel) {}
};

class MarloWordScreen : public WordScreen {
  protected:
    MarloWordScreen() : WordScreen(AdventureKind::Marlo) {}
};

constexpr const char* kHelp =
    "Nouns and verbs < 14 are direction words.\n"
    "Nouns < 20 are conversion words (can be interpreted as a verb).\n"
    "Nouns > 50 can be referred to as 'IT'.";

TEST_F(WordScreen, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(), kHelp);
}

TEST_F(VelWordScreen, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(), kHelp);
}

TEST_F(MarloWordScreen, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(),
              "Words < 13 are direction words.\n"
              "Words relating to objects which can be worn should have word values > 199");
}

TEST_F(WordScreen, ChoosingATypeProposesItsNextNumber) {
    frmVelVocabulary screen = OpenNew();
    screen.ClickOptType(condacts::kNoun);
    EXPECT_EQ(screen.txtWordNum, "51");
    screen.ClickOptType(condacts::kVerb);
    EXPECT_EQ(screen.txtWordNum, "21");
}

TEST_F(WordScreen, TheFirstWordOfATypeIsProposedTheLowestNumber) {
    frmVelVocabulary screen = OpenNew();
    screen.ClickOptType(condacts::kAdverb);
    EXPECT_EQ(screen.txtWordNum, "2");
}

TEST_F(WordScreen, PutsTheWordInUpperCase) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = " t\u00FCr ";
    EXPECT_TRUE(screen.LeaveTxtWord());
    EXPECT_EQ(screen.txtWord, "T\u00DCR");
}

TEST_F(WordScreen, CutsTheWordTo30Letters) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = std::string(31, 'x');
    EXPECT_TRUE(screen.LeaveTxtWord());
    EXPECT_EQ(screen.txtWord, std::string(30, 'X'));
}

TEST_F(VelWordScreen, SesameIsStoredAsSesam) {
    EXPECT_TRUE(Add("SESAME", "51", condacts::kNoun));
    EXPECT_EQ(Stored(103), "SESAM|51|2|Noun");
}

TEST_F(VelWordScreen, CutsByLettersAndNotByBytes) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = "\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC";
    screen.LeaveTxtWord();
    EXPECT_EQ(screen.txtWord, "\u00C4\u00D6\u00DC\u00C4\u00D6");
}

TEST_F(MarloWordScreen, CutsTheWordTo4Letters) {
    EXPECT_TRUE(Add("sesame", "51", condacts::kNoun));
    EXPECT_EQ(Stored(103), "SESA|51|2|Noun");
}

TEST_F(WordScreen, TheWordCannotBeSpaces) {
    frmVelVocabulary screen = OpenNew();
    for (const char* word : {"", "   "}) {
        screen.txtWord = word;
        EXPECT_FALSE(screen.LeaveTxtWord());
        EXPECT_EQ(desk_.Boxes().back(), "The word cannot be spaces");
    }
    EXPECT_EQ(desk_.dialogs.Boxes().back().title, "Error");
    EXPECT_EQ(screen.Refused(), "txtWord");
}

TEST_F(WordScreen, TheWordIsOneWord) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = "RED LAMP";
    EXPECT_FALSE(screen.LeaveTxtWord());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("The word cannot hold spaces"));
}

TEST_F(MarloWordScreen, FillsAnEmptyNumberWithTheNextOne) {
    frmVelVocabulary screen = OpenNew();
    EXPECT_FALSE(screen.ChoosesType());
    EXPECT_EQ(screen.optType, condacts::kNoun);
    screen.txtWord = "coin";
    EXPECT_TRUE(screen.LeaveTxtWord());
    EXPECT_EQ(screen.txtWordNum, "51");
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(103), "COIN|51|2|Noun");
}

TEST_F(MarloWordScreen, KeepsANumberThatWasTyped) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWordNum = "200";
    screen.txtWord = "coat";
    screen.LeaveTxtWord();
    EXPECT_EQ(screen.txtWordNum, "200");
}

TEST_F(WordScreen, KeepsAnEmptyNumberEmpty) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = "coin";
    screen.LeaveTxtWord();
    EXPECT_EQ(screen.txtWordNum, "");
}

TEST_F(WordScreen, TheNumberMustBeNumeric) {
    frmVelVocabulary screen = OpenNew();
    for (const char* number : {"", "x", "5x"}) {
        screen.txtWordNum = number;
        EXPECT_FALSE(screen.LeaveTxtWordNum());
        EXPECT_EQ(desk_.Boxes().back(), "The Word # is not numeric");
    }
    EXPECT_EQ(screen.Refused(), "txtWordNum");
}

TEST_F(WordScreen, Numbers255And1AreRefusedAnd254And2Accepted) {
    frmVelVocabulary screen = OpenNew();
    for (const char* number : {"255", "1", "0", "-5", "99999999999"}) {
        screen.txtWordNum = number;
        EXPECT_FALSE(screen.LeaveTxtWordNum()) << number;
        EXPECT_EQ(desk_.Boxes().back(), "Word # must be from 2 to 254 inclusive");
    }
    for (const char* number : {"254", "2"}) {
        screen.txtWordNum = number;
        EXPECT_TRUE(screen.LeaveTxtWordNum()) << number;
    }
}

TEST_F(WordScreen, ANounTwiceWithOneNumberIsRefused) {
    EXPECT_FALSE(Add("lamp", "50", condacts::kNoun));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have LAMP in the vocabulary as a Noun"));
}

TEST_F(WordScreen, AVerbTwiceWithOneNumberIsRefused) {
    EXPECT_FALSE(Add("get", "20", condacts::kVerb));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have GET in the vocabulary as a Verb"));
}

TEST_F(WordScreen, AWordMayBeAVerbAndANounAtOnce) {
    EXPECT_TRUE(Add("lamp", "50", condacts::kVerb));
    EXPECT_TRUE(Add("get", "20", condacts::kNoun));
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(WordScreen, ANounTwiceWithTwoNumbersPasses) {
    EXPECT_TRUE(Add("lamp", "52", condacts::kNoun));
}

TEST_F(WordScreen, AWordOfAnotherTypeIsRefusedBesideAnyWord) {
    EXPECT_FALSE(Add("lamp", "70", condacts::kAdjective));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Duplicate words are not allowed as word type Adjective"));
}

TEST_F(WordScreen, AVerbMayStandBesideAnAdjective) {
    EXPECT_TRUE(Add("red", "61", condacts::kVerb));
}

TEST_F(WordScreen, AReservedWordIsNotAddedAgain) {
    EXPECT_FALSE(Add("_", "61", condacts::kVerb));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have _ in the vocabulary as a RESERVED"));
}

TEST_F(WordScreen, AWordWithAQuoteIsAWord) {
    EXPECT_TRUE(Add("o'clock", "61", condacts::kNoun));
    EXPECT_EQ(Stored(103), "O'CLOCK|61|2|Noun");
}

TEST_F(WordScreen, UpdateNeedsAType) {
    frmVelVocabulary screen = OpenNew();
    screen.txtWord = "coin";
    EXPECT_FALSE(screen.cmdUpdate());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No value set for word type"));
    EXPECT_EQ(screen.Refused(), "optType");
}

TEST_F(WordScreen, AddsAWordUnderTheNextKey) {
    EXPECT_TRUE(Add("coin", "61", condacts::kNoun));
    EXPECT_EQ(Stored(103), "COIN|61|2|Noun");
    EXPECT_EQ(desk_.session.nextWord, 104);
    EXPECT_EQ(desk_.document.UndoName(), "add word COIN");
    desk_.document.Undo();
    EXPECT_EQ(Stored(103), "0 records");
}

TEST_F(WordScreen, ARefusedWordTakesNoKey) {
    EXPECT_FALSE(Add("coin", "1", condacts::kNoun));
    EXPECT_EQ(desk_.session.nextWord, 103);
}

TEST_F(WordScreen, UpdateWithoutAChangeAddsNoWord) {
    EXPECT_TRUE(OpenNew().cmdUpdate());
    EXPECT_EQ(Stored(103), "0 records");
    EXPECT_EQ(desk_.session.nextWord, 103);
}

TEST_F(WordScreen, OfAnExistingWordStoresTheTypeAlone) {
    frmVelVocabulary screen(desk_.session, {100, false});
    EXPECT_FALSE(screen.EditsWord());
    EXPECT_EQ(screen.txtWord, "LAMP");
    EXPECT_EQ(screen.txtWordNum, "50");
    EXPECT_EQ(screen.optType, condacts::kNoun);
    screen.ClickOptType(condacts::kVerb);
    EXPECT_TRUE(screen.cmdUpdate());
    EXPECT_EQ(Stored(100), "LAMP|50|0|Verb");
    EXPECT_EQ(desk_.document.UndoName(), "edit word LAMP");
    desk_.document.Undo();
    EXPECT_EQ(Stored(100), "LAMP|50|2|Noun");
}

}  // namespace
}  // namespace fabula::authoring
