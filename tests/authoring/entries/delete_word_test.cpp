#include "authoring/entries/delete_word.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/entries/entries.h"
#include "condacts/words.h"

namespace fabula::authoring {
namespace {

using condacts::kAdjective;
using condacts::kAdverb;
using condacts::kConjunction;
using condacts::kNoun;
using condacts::kPreposition;
using condacts::kPronoun;
using condacts::kVerb;
using store::AdventureKind;
using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kKey = 500;  ///< of the word that is deleted
const std::pair<std::string, int> kAny{"_", 255};

constexpr const char* kCascade =
    "There are no more records with this word number. \n"
    "Deleting all entries in the Event & Status Tables with that word in it.\n"
    "Setting to _ any Object Words of LAMP.\n"
    " Deleting any movements using this word.";

/// Deletes the word with the key kKey, through the command of the main window, with these answers.
bool DeleteWord(Desk& desk, std::vector<bool> answers) {
    for (const bool answer : answers)
        desk.dialogs.AnswerNext(answer);
    desk.context.currentTable = TableNum::Vocabulary;
    desk.context.currentEntry = kKey;
    return Entries(desk.context).DeleteEntry();
}

std::vector<std::string> EntryKeys(Desk& desk) {
    return desk.Rows(TableNum::ProcessTables, "canum", "", "canum");
}

void AddExits(Desk& desk, int location, const std::string& exits, const std::string& numbers, int tokens) {
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{location}},
                                   {"exits", exits},
                                   {"numericexits", numbers},
                                   {"numexits", std::int64_t{tokens}}});
}

std::vector<std::string> ExitsOf(Desk& desk, int location) {
    return desk.Rows(TableNum::Locations, "exits, numericexits, numexits",
                     "locnum=" + std::to_string(location));
}

TEST(DeleteWord, OfTheSystemIsRefused) {
    Desk desk;
    desk.context.currentTable = TableNum::Vocabulary;
    desk.context.currentEntry = std::stoi(desk.Rows(TableNum::Vocabulary, "vocindex", "word='*'").at(0));
    EXPECT_FALSE(Entries(desk.context).DeleteEntry());
    EXPECT_THAT(desk.Boxes(), ElementsAre("Sorry, but you cannot delete word *"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Error");
}

TEST(DeleteWord, StopsWhenTheAuthorSaysNo) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    const auto before = desk.Everything();
    EXPECT_FALSE(DeleteWord(desk, {false}));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete word LAMP?"));
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST(DeleteWord, LowersTheNextKeyWithTheHighest) {
    Desk desk;
    desk.AddWord(kKey - 10, "BOX", 51, kNoun);
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    ReadNextKeys(desk.context);
    DeleteWord(desk, {true, true});
    EXPECT_EQ(desk.context.nextWord, kKey - 9);
}

TEST(DeleteWord, OfAVerbWithASynonymLeftChangesNothingElse) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.AddWord(kKey, "GET", 20, kVerb);
        desk.AddWord(kKey + 1, "TAKE", 20, kVerb);
        desk.AddEntry(1, 0, {"GET", 20}, kAny, "DONE");
        AddExits(desk, 1, "GET 0", "20 0", 2);
        const auto before = desk.Everything();
        EXPECT_TRUE(DeleteWord(desk, {true}));
        EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete word GET?"));
        auto after = desk.Everything();
        EXPECT_EQ(after.tables.at("Vocabulary").size(), before.tables.at("Vocabulary").size() - 1);
        after.tables["Vocabulary"] = before.tables.at("Vocabulary");
        EXPECT_EQ(after, before);
        EXPECT_EQ(desk.document.UndoName(), "delete word GET");
    }
}

TEST(DeleteWord, AWordOfTheSameNumberAndAnotherTypeIsNoSynonym) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    desk.AddWord(kKey + 1, "RED", 50, kAdjective);
    DeleteWord(desk, {true, true});
    EXPECT_EQ(desk.Boxes().at(1), kCascade);
}

TEST(DeleteWord, WithCancelTakesTheWordAndLeavesTheRest) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    desk.AddEntry(1, 0, kAny, {"LAMP", 50}, "DONE");
    EXPECT_TRUE(DeleteWord(desk, {true, false}));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete word LAMP?", kCascade));
    EXPECT_THAT(desk.Rows(TableNum::Vocabulary, "word", "word='LAMP'"), IsEmpty());
    EXPECT_THAT(EntryKeys(desk), ElementsAre("1"));
    EXPECT_EQ(desk.document.UndoName(), "delete word LAMP");
}

TEST(DeleteWord, ReportsThatTheWordWentAndNothingElse) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    DeleteWord(desk, {true, true});
    EXPECT_EQ(desk.Boxes().back(), "The word was deleted. No other record used it.");
}

/// The whole cascade, on each type.
class WordCascade : public testing::TestWithParam<AdventureKind> {};

INSTANTIATE_TEST_SUITE_P(Types, WordCascade,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_P(WordCascade, OfANounTakesObjectsEntriesAndMovements) {
    Desk desk(GetParam());
    desk.AddWord(kKey, "LAMP", 15, kNoun);
    desk.AddWord(kKey + 1, "BOX", 16, kNoun);
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{0}},
                                 {"objnoun", std::string("LAMP")},
                                 {"objnumnoun", std::int64_t{15}},
                                 {"objadject", std::string("_")},
                                 {"objnumadject", std::int64_t{255}}});
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{1}},
                                 {"objnoun", std::string("BOX")},
                                 {"objnumnoun", std::int64_t{16}},
                                 {"objadject", std::string("_")},
                                 {"objnumadject", std::int64_t{15}}});
    desk.AddEntry(1, 0, {"LAMP", 15}, kAny, "DONE");
    desk.AddEntry(2, 0, kAny, {"LAMP", 15}, "DONE");
    desk.AddEntry(3, 0, {"BOX", 16}, {"BOX", 16}, "DONE");
    AddExits(desk, 1, "LAMP 0 BOX 0", "15 0 16 0", 4);
    AddExits(desk, 2, "LAMP 1", "15 1", 2);
    const auto before = desk.Everything();

    EXPECT_TRUE(DeleteWord(desk, {true, true}));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete word LAMP?", kCascade,
                                          "1 Object record(s) had an object word set to _\n"
                                          "2 Event/Status Table records were deleted.\n"
                                          "2 Movements were deleted in the Locations Table."));
    EXPECT_THAT(desk.Rows(TableNum::Objects, "objnoun, objnumnoun, objadject, objnumadject", "", "objnum"),
                ElementsAre("_|255|_|255", "BOX|16|_|15"));
    EXPECT_THAT(EntryKeys(desk), ElementsAre("3"));
    EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("BOX 0|16 0|2"));
    EXPECT_THAT(ExitsOf(desk, 2), ElementsAre("||0"));

    const auto after = desk.Everything();
    EXPECT_EQ(desk.document.UndoName(), "delete word LAMP");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
    desk.document.Redo();
    EXPECT_EQ(desk.Everything(), after);
}

TEST_P(WordCascade, OfAVerbTakesItsEntriesAndMovements) {
    Desk desk(GetParam());
    desk.AddWord(kKey, "LAMP", 20, kVerb);
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{0}}, {"objnumnoun", std::int64_t{20}}});
    desk.AddEntry(1, 0, {"LAMP", 20}, kAny, "DONE");
    desk.AddEntry(2, 1, {"LAMP", 20}, kAny, "DONE");
    desk.AddEntry(3, 0, kAny, {"THING", 20}, "DONE");
    AddExits(desk, 1, "LAMP 0", "20 0", 2);
    const auto before = desk.Everything();
    DeleteWord(desk, {true, true});
    EXPECT_EQ(desk.Boxes().back(),
              "2 Event/Status Table records were deleted.\n"
              "1 Movements were deleted in the Locations Table.");
    EXPECT_THAT(EntryKeys(desk), ElementsAre("3"));
    EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("||0"));
    EXPECT_THAT(desk.Rows(TableNum::Objects, "objnumnoun"), ElementsAre("20"));
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST_P(WordCascade, OfAConjunctionOrPronounTakesNothing) {
    for (const int type : {kConjunction, kPronoun}) {
        Desk desk(GetParam());
        desk.AddWord(kKey, "LAMP", 50, type);
        desk.AddEntry(1, 0, {"LAMP", 50}, {"LAMP", 50}, "DONE");
        AddExits(desk, 1, "LAMP 0", "50 0", 2);
        DeleteWord(desk, {true, true});
        EXPECT_EQ(desk.Boxes().back(), "The word was deleted. No other record used it.");
        EXPECT_THAT(EntryKeys(desk), ElementsAre("1"));
        EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("LAMP 0|50 0|2"));
    }
}

/// Words that conditions ask for, in the two types that have such conditions.
class WordConditionCascade : public testing::TestWithParam<AdventureKind> {
  protected:
    /// Deletes the word LAMP of a type after an entry with each line was added; gives the keys that stay.
    std::vector<std::string> KeysLeft(int type, const std::vector<std::string>& lines) {
        Desk desk(GetParam());
        desk.AddWord(kKey, "LAMP", 50, type);
        desk.AddWord(kKey + 1, "LAMPS", 51, type);
        int key = 1;
        for (const std::string& line : lines)
            desk.AddEntry(key++, 0, kAny, kAny, line);
        const auto before = desk.Everything();
        DeleteWord(desk, {true, true});
        report = desk.Boxes().back();
        const std::vector<std::string> left = EntryKeys(desk);
        desk.document.Undo();
        EXPECT_EQ(desk.Everything(), before);
        return left;
    }

    std::string report;
};

INSTANTIATE_TEST_SUITE_P(Types, WordConditionCascade,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel));

TEST_P(WordConditionCascade, OfAnAdverb) {
    EXPECT_THAT(KeysLeft(kAdverb, {"ADVERB LAMP", "AT 0 ADVERB LAMP DONE", "ADVERB LAMPS", "DONE"}),
                ElementsAre("3", "4"));
    EXPECT_EQ(report, "2 Event/Status Table records were deleted.");
}

TEST_P(WordConditionCascade, OfANoun) {
    EXPECT_THAT(KeysLeft(kNoun, {"NOUN2 LAMP DONE", "NOUN2 LAMPS DONE", "DONE"}), ElementsAre("2", "3"));
}

TEST_P(WordConditionCascade, OfAnAdjective) {
    EXPECT_THAT(KeysLeft(kAdjective, {"ADJECT1 LAMP", "ADJECT2 LAMP", "ADJECT1 LAMPS", "DONE"}),
                ElementsAre("3", "4"));
}

TEST_P(WordConditionCascade, OfAPreposition) {
    EXPECT_THAT(KeysLeft(kPreposition, {"PREP LAMP DONE", "PREP LAMPS DONE"}), ElementsAre("2"));
}

TEST_P(WordConditionCascade, LeavesConditionsOfOtherTypesAlone) {
    EXPECT_THAT(KeysLeft(kPreposition, {"NOUN2 LAMP", "ADVERB LAMP", "ADJECT1 LAMP"}),
                ElementsAre("1", "2", "3"));
}

TEST(DeleteWord, TakesObjectsOfAnAdjective) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 50, kAdjective);
    desk.Add(TableNum::Objects, {{"objnum", std::int64_t{0}},
                                 {"objnoun", std::string("BOX")},
                                 {"objnumnoun", std::int64_t{50}},
                                 {"objadject", std::string("LAMP")},
                                 {"objnumadject", std::int64_t{50}}});
    DeleteWord(desk, {true, true});
    EXPECT_THAT(desk.Rows(TableNum::Objects, "objnoun, objnumnoun, objadject, objnumadject"),
                ElementsAre("BOX|50|_|255"));
    EXPECT_EQ(desk.Boxes().back(), "1 Object record(s) had an object word set to _");
}

TEST(DeleteWord, LeavesTheEntriesOfAVerbOfTheSameSpelling) {
    Desk desk;
    desk.AddWord(kKey, "LIGHT", 80, kNoun);
    desk.AddWord(kKey + 1, "LIGHT", 30, kVerb);
    desk.AddEntry(1, 0, {"LIGHT", 30}, {"LIGHT", 80}, "DONE");
    desk.AddEntry(2, 0, {"LIGHT", 30}, kAny, "DONE");
    DeleteWord(desk, {true, true});
    EXPECT_THAT(EntryKeys(desk), ElementsAre("2"));
}

TEST(DeleteWord, OfANounTakesEntriesBesideAVerbOfTheSameSpellingAndNumber) {
    Desk desk;
    desk.AddWord(kKey, "LIGHT", 80, kNoun);
    desk.AddWord(kKey + 1, "LIGHT", 80, kVerb);
    desk.AddEntry(1, 0, {"LIGHT", 80}, {"LIGHT", 80}, "DONE");
    desk.AddEntry(2, 0, {"LIGHT", 80}, kAny, "DONE");
    DeleteWord(desk, {true, true});
    EXPECT_THAT(EntryKeys(desk), ElementsAre("2"));
}

TEST(DeleteWord, OfAVerbTakesEntriesBesideAPlainNounOfTheSameSpellingAndNumber) {
    Desk desk;
    desk.AddWord(kKey, "LIGHT", 80, kVerb);
    desk.AddWord(kKey + 1, "LIGHT", 80, kNoun);
    desk.AddEntry(1, 0, {"LIGHT", 80}, kAny, "DONE");
    desk.AddEntry(2, 0, kAny, {"LIGHT", 80}, "DONE");
    DeleteWord(desk, {true, true});
    EXPECT_THAT(EntryKeys(desk), ElementsAre("2"));
}

TEST(DeleteWord, LeavesEntriesAndExitsOfAMovementNounOfTheSameNumber) {
    Desk desk;
    desk.AddWord(kKey, "ENTER", 10, kVerb);
    desk.AddWord(kKey + 1, "IN", 10, kNoun);
    desk.AddEntry(1, 0, {"IN", 10}, kAny, "DONE");
    desk.AddEntry(2, 0, {"ENTER", 10}, kAny, "DONE");
    AddExits(desk, 1, "IN 0 ENTER 2", "10 0 10 2", 4);
    DeleteWord(desk, {true, true});
    EXPECT_THAT(EntryKeys(desk), ElementsAre("1"));
    EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("IN 0|10 0|2"));
}

TEST(DeleteWord, TakesWhatStillBearsASynonymThatWentBefore) {
    Desk desk;
    desk.AddWord(kKey + 1, "LANTERN", 50, kNoun);
    desk.AddWord(kKey, "LAMP", 50, kNoun);
    desk.AddEntry(1, 0, kAny, {"LAMP", 50}, "DONE");
    desk.AddEntry(2, 0, kAny, kAny, "NOUN2 LAMP DONE");
    DeleteWord(desk, {true});
    desk.context.currentEntry = kKey + 1;
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    Entries(desk.context).DeleteEntry();
    EXPECT_THAT(EntryKeys(desk), IsEmpty());
}

TEST(DeleteWord, OfANounLeavesTheEntriesOfAVerbThatShareItsNumberAfterASynonymWent) {
    Desk desk;
    desk.AddWord(kKey, "GET", 60, kVerb);
    desk.AddWord(kKey + 1, "TAKE", 60, kVerb);
    desk.AddWord(kKey + 2, "SWORD", 60, kNoun);
    desk.AddEntry(100, 0, {"GET", 60}, kAny, "DONE");
    desk.AddEntry(101, 0, {"GET", 60}, {"SWORD", 60}, "DONE");
    desk.AddEntry(102, 0, {"TAKE", 60}, kAny, "DONE");
    DeleteWord(desk, {true});
    desk.context.currentEntry = kKey + 2;
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    EXPECT_TRUE(Entries(desk.context).DeleteEntry());
    EXPECT_THAT(EntryKeys(desk), ElementsAre("100", "102"));
    EXPECT_EQ(desk.Boxes().back(), "1 Event/Status Table records were deleted.");
}

TEST(DeleteWord, RenumbersNothing) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 15, kNoun);
    desk.AddEntry(1, 0, kAny, {"LAMP", 15}, "DONE");
    desk.AddEntry(2, 0, kAny, kAny, "DONE");
    AddExits(desk, 1, "LAMP 0", "15 0", 2);
    AddExits(desk, 2, "", "", 0);
    DeleteWord(desk, {true, true});
    EXPECT_THAT(EntryKeys(desk), ElementsAre("2"));
    EXPECT_THAT(desk.Rows(TableNum::Locations, "locnum", "", "locnum"), ElementsAre("0", "1", "2"));
}

TEST(DeleteWord, KeepsExitsWhoseWordsAreNotAscii) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 15, kNoun);
    desk.AddWord(kKey + 1, "TÜR", 16, kNoun);
    AddExits(desk, 1, "LAMP 0 TÜR 2", "15 0 16 2", 4);
    DeleteWord(desk, {true, true});
    EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("TÜR 2|16 2|2"));
}

TEST(DeleteWord, TakesExitsWhoseTextWasLost) {
    Desk desk;
    desk.AddWord(kKey, "LAMP", 15, kNoun);
    AddExits(desk, 1, "", "15 0 16 2", 4);
    DeleteWord(desk, {true, true});
    EXPECT_THAT(ExitsOf(desk, 1), ElementsAre("|16 2|2"));
}

TEST(DeleteWord, AnEntryThatAskedForItAsksForItsSynonym) {
    Desk desk;
    desk.AddWord(kKey, "BENEATH", 60, kPreposition);
    desk.AddWord(kKey + 1, "UNDER", 60, kPreposition);
    desk.AddEntry(1, 0, kAny, kAny, "PREP BENEATH PLACE 0 254");
    DeleteWord(desk, {true});
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "condacts, numericcondacts, numcas"),
                ElementsAre("PREP UNDER PLACE 0 254|123 60 208 0 254|5"));
}

TEST(DeleteWord, AnEntryThatAskedForItAsksForItsSynonymAndNotForAWordOfItsFirstLetters) {
    Desk desk;
    desk.AddWord(kKey, "UNDERNEATH", 60, kPreposition);
    desk.AddWord(kKey + 1, "BENEATH", 60, kPreposition);
    desk.AddWord(kKey + 2, "UNDER", 61, kPreposition);
    desk.AddEntry(1, 0, kAny, kAny, "PREP UNDERNEATH DONE");
    DeleteWord(desk, {true});
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "condacts, numericcondacts"),
                ElementsAre("PREP BENEATH DONE|123 60 265"));
}

}  // namespace
}  // namespace fabula::authoring
