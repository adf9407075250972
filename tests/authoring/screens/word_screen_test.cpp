#include "authoring/screens/word_screen.h"

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
class WordScreenTest : public testing::Test {
  protected:
    explicit WordScreenTest(AdventureKind kind = AdventureKind::Fabula) : desk_(kind) {
        desk_.Adventure().DeleteFrom(TableNum::Vocabulary, "voctypen<7");
        desk_.AddWord(100, "LAMP", 50, 2);
        desk_.AddWord(101, "GET", 20, 0);
        desk_.AddWord(102, "RED", 60, 3);
        desk_.context.nextWord = 103;
    }

    WordScreen OpenNew() { return {desk_.context, {desk_.context.nextWord, true}}; }

    /// Adds a word; true when it passed.
    bool Add(const std::string& word, const std::string& number, condacts::WordType type) {
        WordScreen screen = OpenNew();
        screen.word = word;
        screen.type = type;
        screen.number = number;
        return screen.Update();
    }
    std::string Stored(int vocindex) {
        const auto rows = desk_.Rows(TableNum::Vocabulary, "word, vocnum, voctypen, voctype",
                                     "vocindex=" + std::to_string(vocindex));
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " records";
    }

    test::Desk desk_;
};

class VelWordScreenTest : public WordScreenTest {
  protected:
    VelWordScreenTest() : WordScreenTest(AdventureKind::Vel) {}
};

class MarloWordScreenTest : public WordScreenTest {
  protected:
    MarloWordScreenTest() : WordScreenTest(AdventureKind::Marlo) {}
};

constexpr const char* kHelp =
    "Nouns and verbs < 14 are direction words.\n"
    "Nouns < 20 are conversion words (can be interpreted as a verb).\n"
    "Nouns > 50 can be referred to as 'IT'.";

TEST_F(WordScreenTest, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(), kHelp);
}

TEST_F(VelWordScreenTest, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(), kHelp);
}

TEST_F(MarloWordScreenTest, TellsHowNumbersAreUsed) {
    EXPECT_EQ(OpenNew().Help(),
              "Words < 13 are direction words.\n"
              "Words relating to objects which can be worn should have word values > 199");
}

TEST_F(WordScreenTest, ChoosingATypeProposesItsNextNumber) {
    WordScreen screen = OpenNew();
    screen.ClickType(condacts::kNoun);
    EXPECT_EQ(screen.number, "51");
    screen.ClickType(condacts::kVerb);
    EXPECT_EQ(screen.number, "21");
}

TEST_F(WordScreenTest, TheFirstWordOfATypeIsProposedTheLowestNumber) {
    WordScreen screen = OpenNew();
    screen.ClickType(condacts::kAdverb);
    EXPECT_EQ(screen.number, "2");
}

TEST_F(WordScreenTest, PutsTheWordInUpperCase) {
    WordScreen screen = OpenNew();
    screen.word = " t\u00FCr ";
    EXPECT_TRUE(screen.LeaveWord());
    EXPECT_EQ(screen.word, "T\u00DCR");
}

TEST_F(WordScreenTest, CutsTheWordTo30Letters) {
    WordScreen screen = OpenNew();
    screen.word = std::string(31, 'x');
    EXPECT_TRUE(screen.LeaveWord());
    EXPECT_EQ(screen.word, std::string(30, 'X'));
}

TEST_F(VelWordScreenTest, SesameIsStoredAsSesam) {
    EXPECT_TRUE(Add("SESAME", "51", condacts::kNoun));
    EXPECT_EQ(Stored(103), "SESAM|51|2|Noun");
}

TEST_F(VelWordScreenTest, CutsByLettersAndNotByBytes) {
    WordScreen screen = OpenNew();
    screen.word = "\u00C4\u00D6\u00DC\u00C4\u00D6\u00DC";
    screen.LeaveWord();
    EXPECT_EQ(screen.word, "\u00C4\u00D6\u00DC\u00C4\u00D6");
}

TEST_F(MarloWordScreenTest, CutsTheWordTo4Letters) {
    EXPECT_TRUE(Add("sesame", "51", condacts::kNoun));
    EXPECT_EQ(Stored(103), "SESA|51|2|Noun");
}

TEST_F(WordScreenTest, TheWordCannotBeSpaces) {
    WordScreen screen = OpenNew();
    for (const char* word : {"", "   "}) {
        screen.word = word;
        EXPECT_FALSE(screen.LeaveWord());
        EXPECT_EQ(desk_.Boxes().back(), "The word cannot be spaces");
    }
    EXPECT_EQ(desk_.dialogs.Boxes().back().title, "Error");
    EXPECT_EQ(screen.Refused(), "word");
}

TEST_F(WordScreenTest, TheWordIsOneWord) {
    WordScreen screen = OpenNew();
    screen.word = "RED LAMP";
    EXPECT_FALSE(screen.LeaveWord());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("The word cannot hold spaces"));
}

TEST_F(MarloWordScreenTest, FillsAnEmptyNumberWithTheNextOne) {
    WordScreen screen = OpenNew();
    EXPECT_FALSE(screen.ChoosesType());
    EXPECT_EQ(screen.type, condacts::kNoun);
    screen.word = "coin";
    EXPECT_TRUE(screen.LeaveWord());
    EXPECT_EQ(screen.number, "51");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(103), "COIN|51|2|Noun");
}

TEST_F(MarloWordScreenTest, KeepsANumberThatWasTyped) {
    WordScreen screen = OpenNew();
    screen.number = "200";
    screen.word = "coat";
    screen.LeaveWord();
    EXPECT_EQ(screen.number, "200");
}

TEST_F(WordScreenTest, KeepsAnEmptyNumberEmpty) {
    WordScreen screen = OpenNew();
    screen.word = "coin";
    screen.LeaveWord();
    EXPECT_EQ(screen.number, "");
}

TEST_F(WordScreenTest, TheNumberMustBeNumeric) {
    WordScreen screen = OpenNew();
    for (const char* number : {"", "x", "5x"}) {
        screen.number = number;
        EXPECT_FALSE(screen.LeaveNumber());
        EXPECT_EQ(desk_.Boxes().back(), "The Word # is not numeric");
    }
    EXPECT_EQ(screen.Refused(), "number");
}

TEST_F(WordScreenTest, Numbers255And1AreRefusedAnd254And2Accepted) {
    WordScreen screen = OpenNew();
    for (const char* number : {"255", "1", "0", "-5", "99999999999"}) {
        screen.number = number;
        EXPECT_FALSE(screen.LeaveNumber()) << number;
        EXPECT_EQ(desk_.Boxes().back(), "Word # must be from 2 to 254 inclusive");
    }
    for (const char* number : {"254", "2"}) {
        screen.number = number;
        EXPECT_TRUE(screen.LeaveNumber()) << number;
    }
}

TEST_F(WordScreenTest, ANounTwiceWithOneNumberIsRefused) {
    EXPECT_FALSE(Add("lamp", "50", condacts::kNoun));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have LAMP in the vocabulary as a Noun"));
}

TEST_F(WordScreenTest, AVerbTwiceWithOneNumberIsRefused) {
    EXPECT_FALSE(Add("get", "20", condacts::kVerb));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have GET in the vocabulary as a Verb"));
}

TEST_F(WordScreenTest, AWordMayBeAVerbAndANounAtOnce) {
    EXPECT_TRUE(Add("lamp", "50", condacts::kVerb));
    EXPECT_TRUE(Add("get", "20", condacts::kNoun));
    EXPECT_THAT(desk_.Boxes(), IsEmpty());
}

TEST_F(WordScreenTest, ANounTwiceWithTwoNumbersPasses) {
    EXPECT_TRUE(Add("lamp", "52", condacts::kNoun));
}

TEST_F(WordScreenTest, AWordOfAnotherTypeIsRefusedBesideAnyWord) {
    EXPECT_FALSE(Add("lamp", "70", condacts::kAdjective));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("Duplicate words are not allowed as word type Adjective"));
}

TEST_F(WordScreenTest, AVerbMayStandBesideAnAdjective) {
    EXPECT_TRUE(Add("red", "61", condacts::kVerb));
}

TEST_F(WordScreenTest, AReservedWordIsNotAddedAgain) {
    EXPECT_FALSE(Add("_", "61", condacts::kVerb));
    EXPECT_THAT(desk_.Boxes(), ElementsAre("You already have _ in the vocabulary as a RESERVED"));
}

TEST_F(WordScreenTest, AWordWithAQuoteIsAWord) {
    EXPECT_TRUE(Add("o'clock", "61", condacts::kNoun));
    EXPECT_EQ(Stored(103), "O'CLOCK|61|2|Noun");
}

TEST_F(WordScreenTest, UpdateNeedsAType) {
    WordScreen screen = OpenNew();
    screen.word = "coin";
    EXPECT_FALSE(screen.Update());
    EXPECT_THAT(desk_.Boxes(), ElementsAre("No value set for word type"));
    EXPECT_EQ(screen.Refused(), "type");
}

TEST_F(WordScreenTest, AddsAWordUnderTheNextKey) {
    EXPECT_TRUE(Add("coin", "61", condacts::kNoun));
    EXPECT_EQ(Stored(103), "COIN|61|2|Noun");
    EXPECT_EQ(desk_.context.nextWord, 104);
    EXPECT_EQ(desk_.document.UndoName(), "add word COIN");
    desk_.document.Undo();
    EXPECT_EQ(Stored(103), "0 records");
}

TEST_F(WordScreenTest, ARefusedWordTakesNoKey) {
    EXPECT_FALSE(Add("coin", "1", condacts::kNoun));
    EXPECT_EQ(desk_.context.nextWord, 103);
}

TEST_F(WordScreenTest, UpdateWithoutAChangeAddsNoWord) {
    EXPECT_TRUE(OpenNew().Update());
    EXPECT_EQ(Stored(103), "0 records");
    EXPECT_EQ(desk_.context.nextWord, 103);
}

TEST_F(WordScreenTest, OfAnExistingWordStoresTheTypeAlone) {
    WordScreen screen(desk_.context, {100, false});
    EXPECT_FALSE(screen.EditsNumber());
    EXPECT_EQ(screen.word, "LAMP");
    EXPECT_EQ(screen.number, "50");
    EXPECT_EQ(screen.type, condacts::kNoun);
    screen.ClickType(condacts::kVerb);
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(100), "LAMP|50|0|Verb");
    EXPECT_EQ(desk_.document.UndoName(), "edit word LAMP");
    desk_.document.Undo();
    EXPECT_EQ(Stored(100), "LAMP|50|2|Noun");
}

TEST_F(WordScreenTest, ACorrectedWordIsFollowedByWhatNamesIt) {
    desk_.Clear(TableNum::Objects);
    desk_.Clear(TableNum::Locations);
    desk_.AddWord(110, "NORHT", 2, condacts::kNoun);
    desk_.AddEntry(1, 0, {"GET", 20}, {"LAMP", 50}, "NOUN2 LAMP DONE");
    desk_.Add(
        TableNum::Objects,
        {{"objnum", std::int64_t{0}}, {"objnoun", std::string("LAMP")}, {"objnumnoun", std::int64_t{50}}});
    desk_.Add(TableNum::Locations, {{"locnum", std::int64_t{0}},
                                    {"exits", std::string("NORHT 0 S 0")},
                                    {"numericexits", std::string("2 0 3 0")},
                                    {"numexits", std::int64_t{4}}});
    const auto numbers = desk_.Rows(TableNum::ProcessTables, "numericcondacts");
    WordScreen lamp(desk_.context, {100, false});
    lamp.word = "lantern";
    EXPECT_TRUE(lamp.Update());
    EXPECT_EQ(Stored(100), "LANTERN|50|2|Noun");
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "w2, condacts"),
                ElementsAre("LANTERN|NOUN2 LANTERN DONE"));
    EXPECT_EQ(desk_.Rows(TableNum::ProcessTables, "numericcondacts"), numbers);
    EXPECT_THAT(desk_.Rows(TableNum::Objects, "objnoun, objnumnoun"), ElementsAre("LANTERN|50"));
    WordScreen north(desk_.context, {110, false});
    north.word = "NORTH";
    EXPECT_TRUE(north.Update());
    EXPECT_THAT(desk_.Rows(TableNum::Locations, "exits, numericexits"), ElementsAre("NORTH 0 S 0|2 0 3 0"));
    desk_.document.Undo();
    desk_.document.Undo();
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "w2, condacts"), ElementsAre("LAMP|NOUN2 LAMP DONE"));
    EXPECT_THAT(desk_.Rows(TableNum::Locations, "exits"), ElementsAre("NORHT 0 S 0"));
}

TEST_F(WordScreenTest, UsesStayWithAnotherWordOfTheOldSpelling) {
    desk_.AddWord(110, "LAMP", 50, condacts::kNoun);
    desk_.AddEntry(1, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
    WordScreen screen(desk_.context, {100, false});
    screen.word = "LANTERN";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "w2"), ElementsAre("LAMP"));
}

TEST_F(WordScreenTest, AWordIsNotCorrectedToOneThatIsThere) {
    desk_.AddWord(110, "LANTERN", 50, condacts::kNoun);
    WordScreen screen(desk_.context, {100, false});
    screen.word = "LANTERN";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(Stored(100), "LAMP|50|2|Noun");
    EXPECT_EQ(desk_.Boxes().back(), "You already have LANTERN in the vocabulary as a Noun");
}

TEST_F(WordScreenTest, AnEntryThatCutALongerWordIsCompiledAnewWhenTheWordIsAdded) {
    desk_.AddWord(110, "UNDER", 61, condacts::kPreposition);
    desk_.AddEntry(1, 0, {"_", 255}, {"_", 255}, "PREP UNDERNEATH DONE");
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "numericcondacts"), ElementsAre("123 61 265"));
    EXPECT_TRUE(Add("UNDERNEATH", "62", condacts::kPreposition));
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "numericcondacts"), ElementsAre("123 62 265"));
}

TEST_F(WordScreenTest, AnEntryWhoseWordChangesItsTypeKeepsItsNumbersThatVerifyTells) {
    desk_.AddEntry(1, 0, {"_", 255}, {"_", 255}, "ADJECT1 RED DONE");
    WordScreen screen(desk_.context, {102, false});
    screen.type = condacts::kAdverb;
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(desk_.Rows(TableNum::ProcessTables, "condacts, numericcondacts"),
                ElementsAre("ADJECT1 RED DONE|121 60 265"));
}

}  // namespace
}  // namespace fabula::authoring
