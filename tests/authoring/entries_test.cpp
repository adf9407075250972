#include "authoring/entries.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/desk.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using test::Desk;
using testing::ElementsAre;
using testing::IsEmpty;

/// The key that Add entry proposes on a table; nullopt when it is refused.
std::optional<int> KeyOfNew(Desk& desk, TableNum table) {
    desk.session.currentTable = table;
    const std::optional<ScreenRequest> request = Entries(desk.session).AddEntry();
    if (!request) return std::nullopt;
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(request->table, table);
    return request->key.key;
}

void StandOn(Desk& desk, TableNum table, int key) {
    desk.session.currentTable = table;
    desk.session.currentEntry = key;
}

std::optional<ScreenRequest> Edit(Desk& desk, TableNum table, int key) {
    StandOn(desk, table, key);
    return Entries(desk.session).EditEntry();
}

bool Delete(Desk& desk, TableNum table, int key) {
    StandOn(desk, table, key);
    return Entries(desk.session).DeleteEntry();
}

/// Stores what a screen would, as one change.
void Store(Desk& desk, const ScreenRequest& request, const std::string& name) {
    Change change(desk.document, name);
    desk.Add(request.table, {{store::FindTable(request.table)->key, std::int64_t{request.key.key}}});
    change.Commit();
}

// Locations

TEST(AddLocation, OpensTheLocationScreenOnTheNumberAboveTheHighest) {
    Desk desk;
    desk.session.currentTable = TableNum::Locations;
    const auto request = Entries(desk.session).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Location);
    EXPECT_EQ(request->key.key, 1);
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST(AddLocation, OfAnEmptyTableIsNumberZero) {
    Desk desk;
    desk.Clear(TableNum::Locations);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 0);
}

TEST(AddLocation, AfterNumber251Is256) {
    Desk desk;
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{251}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 256);
}

TEST(AddLocation, PassesOverTheWholeRangeOfThePlacesThatAreNone) {
    Desk desk;
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{254}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 256);
}

TEST(AddLocation, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{998}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 999);
    desk.Add(TableNum::Locations, {{"locnum", std::int64_t{999}}});
    EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 locations"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Error");
}

TEST(AddLocation, Number251IsTheLastOfTheOtherTypes) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.Add(TableNum::Locations, {{"locnum", std::int64_t{250}}});
        EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), 251);
        desk.Add(TableNum::Locations, {{"locnum", std::int64_t{251}}});
        EXPECT_EQ(KeyOfNew(desk, TableNum::Locations), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 locations"));
    }
}

TEST(AddLocation, GetsAPictureWhenGraphicsAreOn) {
    Desk desk(AdventureKind::Fabula, true);
    desk.session.currentTable = TableNum::Locations;
    Entries entries(desk.session);
    const auto before = desk.Everything();
    const auto request = entries.AddEntry();
    Store(desk, *request, "add location 1");
    EXPECT_TRUE(entries.AfterScreen(*request));
    const auto colours = desk.Rows(TableNum::Adventure, "backcolor, textcolor");
    EXPECT_THAT(desk.Rows(TableNum::Pictures,
                          "locnum, locpaper, locink, loctype, drawstring, picname, roompicnum", "locnum=1"),
                ElementsAre("1|" + colours.at(0) + "|Subroutine|END||-1"));
    EXPECT_EQ(desk.document.UndoName(), "add location 1");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddLocation, GetsNoPictureWithoutGraphics) {
    Desk desk;
    desk.session.currentTable = TableNum::Locations;
    const auto request = Entries(desk.session).AddEntry();
    Store(desk, *request, "add location 1");
    Entries(desk.session).AfterScreen(*request);
    EXPECT_THAT(desk.Rows(TableNum::Pictures, "locnum", "locnum=1"), IsEmpty());
}

TEST(AddLocation, ThatWasCancelledGetsNoPicture) {
    Desk desk(AdventureKind::Vel, true);
    desk.session.currentTable = TableNum::Locations;
    const auto before = desk.Everything();
    const auto request = Entries(desk.session).AddEntry();
    Entries(desk.session).AfterScreen(*request);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST(AddLocation, KeepsThePictureThatIsThereAlready) {
    Desk desk(AdventureKind::Marlo, true);
    desk.Add(TableNum::Pictures,
             {{"locnum", std::int64_t{1}}, {"drawstring", std::string("LINE 1 1 END")}});
    desk.session.currentTable = TableNum::Locations;
    const auto request = Entries(desk.session).AddEntry();
    Store(desk, *request, "add location 1");
    Entries(desk.session).AfterScreen(*request);
    EXPECT_THAT(desk.Rows(TableNum::Pictures, "drawstring", "locnum=1"), ElementsAre("LINE 1 1 END"));
}

// Messages, system messages, objects

TEST(AddMessage, OpensTheTextScreenOnTheNumberOfTheRecords) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 3);
    desk.session.currentTable = TableNum::Messages;
    const auto request = Entries(desk.session).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Text);
    EXPECT_EQ(request->table, TableNum::Messages);
    EXPECT_EQ(request->key.key, 3);
}

TEST(AddMessage, FillsTheGapThatADeletionLeft) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 5);
    desk.dialogs.AnswerNext(true);
    Delete(desk, TableNum::Messages, 2);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 2);
}

TEST(AddMessage, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 999);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 999);
    desk.FillUp(TableNum::Messages, 1000);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 messages"));
}

TEST(AddMessage, ToATableOf256RecordsShowsTheLimitOf255) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::Messages, 255);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), 255);
        desk.FillUp(TableNum::Messages, 256);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Messages), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 messages"));
    }
}

TEST(AddSystemMessage, OpensTheTextScreenOnTheNumberOfTheRecords) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.session.currentTable = TableNum::SystemMessages;
        const auto request = Entries(desk.session).AddEntry();
        ASSERT_TRUE(request);
        EXPECT_EQ(request->screen, Screen::Text);
        EXPECT_EQ(request->key.key, 54);
    }
}

TEST(AddSystemMessage, HasTheLimitOfTheType) {
    Desk fabula;
    fabula.FillUp(TableNum::SystemMessages, 1000);
    EXPECT_EQ(KeyOfNew(fabula, TableNum::SystemMessages), std::nullopt);
    EXPECT_THAT(fabula.Boxes(), ElementsAre("You have reached the maximum of 999 system messages"));
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::SystemMessages, 256);
        EXPECT_EQ(KeyOfNew(desk, TableNum::SystemMessages), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 255 system messages"));
    }
}

TEST(AddObject, OpensTheObjectScreenOnTheNumberOfTheRecords) {
    Desk desk;
    desk.session.currentTable = TableNum::Objects;
    const auto request = Entries(desk.session).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Object);
    EXPECT_EQ(request->key.key, 0);
}

TEST(AddObject, Number999IsTheLastOfAFabulaAdventure) {
    Desk desk;
    desk.FillUp(TableNum::Objects, 999);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), 999);
    desk.FillUp(TableNum::Objects, 1000);
    EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), std::nullopt);
    EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 objects"));
}

TEST(AddObject, The256thOfAnOlderTypeShowsTheLimitOf999AllTheSame) {
    for (const AdventureKind kind : {AdventureKind::Vel, AdventureKind::Marlo}) {
        Desk desk(kind);
        desk.FillUp(TableNum::Objects, 254);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), 254);
        desk.FillUp(TableNum::Objects, 255);
        EXPECT_EQ(KeyOfNew(desk, TableNum::Objects), std::nullopt);
        EXPECT_THAT(desk.Boxes(), ElementsAre("You have reached the maximum of 999 objects"));
    }
}

// Process entries

TEST(AddProcessEntry, OpensTheScreenOnTheNextFreeKey) {
    Desk desk;
    desk.AddEntry(7, 0, {"_", 255}, {"_", 255}, "DESC");
    StandOn(desk, TableNum::ProcessTables, 7);
    const auto request = Entries(desk.session).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::ProcessEntry);
    EXPECT_EQ(request->key.key, 8);
    EXPECT_EQ(request->before, std::nullopt);
    EXPECT_EQ(desk.session.nextEntry, 8);
    EXPECT_EQ(desk.session.currentEntry, 7);
    EXPECT_EQ(desk.session.currentESNum, 0);
}

TEST(AddProcessEntry, TheFirstOfAllShowsProcessTwo) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel}) {
        Desk desk(kind);
        StandOn(desk, TableNum::ProcessTables, 12);
        EXPECT_TRUE(Entries(desk.session).AddEntry());
        EXPECT_EQ(desk.session.currentEntry, 0);
        EXPECT_EQ(desk.session.currentESNum, 2);
    }
}

TEST(AddProcessEntry, TheFirstOfAMarloAdventureStaysInItsTable) {
    Desk desk(AdventureKind::Marlo);
    StandOn(desk, TableNum::ProcessTables, 12);
    desk.session.currentESNum = 1;
    EXPECT_TRUE(Entries(desk.session).AddEntry());
    EXPECT_EQ(desk.session.currentEntry, 0);
    EXPECT_EQ(desk.session.currentESNum, 1);
}

class AddBefore : public testing::TestWithParam<AdventureKind> {
  protected:
    AddBefore() : desk(GetParam()) {
        desk.AddEntry(1, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
        desk.AddEntry(2, 0, {"GET", 20}, {"LAMP", 50}, "OK");
        desk.AddEntry(3, 0, {"GET", 20}, {"BOX", 51}, "OK");
        desk.AddEntry(4, 1, {"GET", 20}, {"LAMP", 50}, "OK");
        desk.AddEntry(5, 0, {"GET", 20}, {"LAMP", 50}, "DESC");
        desk.AddEntry(6, 0, {"DROP", 21}, {"LAMP", 50}, "DESC");
    }

    /// Add before, with a screen that stores an entry of the same words.
    void AddAndStore(int before) {
        StandOn(desk, TableNum::ProcessTables, before);
        const auto request = Entries(desk.session).AddEntryBefore();
        Change change(desk.document, "add process entry " + std::to_string(request->key.key));
        desk.AddEntry(request->key.key, 0, {"GET", 20}, {"LAMP", 50}, "INVEN");
        ++desk.session.nextEntry;
        change.Commit();
        Entries(desk.session).AfterScreen(*request);
    }

    std::vector<std::string> GetLamp() {
        return desk.Rows(TableNum::ProcessTables, "canum, condacts", "estype=0 and w1num=20 and w2num=50",
                         "estype, w1num, w2num, canum");
    }

    Desk desk;
};

INSTANTIATE_TEST_SUITE_P(Types, AddBefore,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_P(AddBefore, OpensTheScreenOnTheNextFreeKey) {
    StandOn(desk, TableNum::ProcessTables, 2);
    const auto request = Entries(desk.session).AddEntryBefore();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::ProcessEntry);
    EXPECT_EQ(request->key.key, 7);
    EXPECT_TRUE(request->key.isNew);
    EXPECT_EQ(request->before, 2);
}

TEST_P(AddBefore, GivesTheEntriesOfTheSameWordsFromThereOnHigherKeys) {
    AddAndStore(2);
    EXPECT_THAT(GetLamp(), ElementsAre("1|DONE", "7|INVEN", "8|OK", "9|DESC"));
    EXPECT_THAT(desk.Rows(TableNum::ProcessTables, "canum", "w2num=51 or estype=1 or w1num=21", "canum"),
                ElementsAre("3", "4", "6"));
    EXPECT_EQ(desk.session.nextEntry, 10);
}

TEST_P(AddBefore, StandsBeforeTheEntryWithTheHighestKeyToo) {
    AddAndStore(5);
    EXPECT_THAT(GetLamp(), ElementsAre("1|DONE", "2|OK", "7|INVEN", "8|DESC"));
}

TEST_P(AddBefore, IsOneStepOfUndo) {
    const auto before = desk.Everything();
    AddAndStore(1);
    const auto after = desk.Everything();
    EXPECT_EQ(desk.document.UndoName(), "add process entry 7");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
    desk.document.Redo();
    EXPECT_EQ(desk.Everything(), after);
}

TEST_P(AddBefore, ThatWasCancelledMovesNothing) {
    const auto before = desk.Everything();
    StandOn(desk, TableNum::ProcessTables, 2);
    const auto request = Entries(desk.session).AddEntryBefore();
    Entries(desk.session).AfterScreen(*request);
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_EQ(desk.document.UndoName(), std::nullopt);
}

TEST_P(AddBefore, IsForProcessEntriesOnly) {
    StandOn(desk, TableNum::Messages, 0);
    EXPECT_FALSE(Entries(desk.session).AddEntryBefore());
}

TEST(AddEntryBefore, InAnEmptyTableIsAddEntry) {
    Desk desk;
    StandOn(desk, TableNum::ProcessTables, 0);
    const auto request = Entries(desk.session).AddEntryBefore();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->before, std::nullopt);
}

// Words

TEST(AddWord, OpensTheVocabularyScreenOnTheNextFreeKey) {
    Desk desk;
    desk.AddWord(500, "LAMP", 50, 2);
    desk.session.currentTable = TableNum::Vocabulary;
    const auto request = Entries(desk.session).AddEntry();
    ASSERT_TRUE(request);
    EXPECT_EQ(request->screen, Screen::Word);
    EXPECT_EQ(request->key.key, 501);
    EXPECT_EQ(desk.session.nextWord, 501);
}

// Flags

TEST(AddFlags, AddsTheTwentyFiveAfter1024) {
    Desk desk;
    desk.session.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(true);
    const auto before = desk.Everything();
    EXPECT_FALSE(Entries(desk.session).AddEntry());
    EXPECT_THAT(desk.Boxes(), ElementsAre("Confirm add of flags 1025 to 1049"));
    const auto added =
        desk.Rows(TableNum::Flags, "flgnum, flgtype, flguse, flgmod, flgdesc, flgchg", "flgnum>1024");
    ASSERT_EQ(added.size(), 25U);
    EXPECT_EQ(added.front(), "1025|User|Unknown|2| |1");
    EXPECT_EQ(added.back(), "1049|User|Unknown|2| |1");
    EXPECT_EQ(desk.document.UndoName(), "add flags 1025 to 1049");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddFlags, GoesOnFromTheHighest) {
    Desk desk;
    desk.session.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    Entries(desk.session).AddEntry();
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Boxes().at(1), "Confirm add of flags 1050 to 1074");
    EXPECT_EQ(desk.Rows(TableNum::Flags, "flgnum", "flgnum>1024").size(), 50U);
}

TEST(AddFlags, AddsNoneWhenTheAuthorSaysNo) {
    Desk desk;
    desk.session.currentTable = TableNum::Flags;
    desk.dialogs.AnswerNext(false);
    Entries(desk.session).AddEntry();
    EXPECT_THAT(desk.Rows(TableNum::Flags, "flgnum", "flgnum>1024"), IsEmpty());
}

TEST(AddFlags, IsForFabulaAdventuresOnly) {
    Desk vel(AdventureKind::Vel);
    vel.session.currentTable = TableNum::Flags;
    Entries(vel.session).AddEntry();
    EXPECT_THAT(vel.Boxes(), ElementsAre("Extended flags cannot be used in a VEL type Adventure"));
    Desk marlo(AdventureKind::Marlo);
    marlo.session.currentTable = TableNum::Flags;
    Entries(marlo.session).AddEntry();
    EXPECT_THAT(marlo.Boxes(), ElementsAre("Extended flags cannot be used in a Marlo type Adventure"));
}

TEST(AddFlags, EndsWhenOver999WereAdded) {
    Desk desk;
    desk.session.currentTable = TableNum::Flags;
    desk.Add(TableNum::Flags, {{"flgnum", std::int64_t{2023}}});
    desk.dialogs.AnswerNext(true);
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "Confirm add of flags 2024 to 2048");
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "There are over 999 flags.\nNo more flags can be added.");
}

// Character sets

TEST(AddCharacterSet, CopiesTheFontOfSetZeroUnderANewName) {
    Desk desk;
    desk.session.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("Runes");
    const auto before = desk.Everything();
    EXPECT_FALSE(Entries(desk.session).AddEntry());
    const auto& question = desk.dialogs.TextQuestions().at(0);
    EXPECT_EQ(question.prompt, "Enter a name for your Set:");
    EXPECT_EQ(question.title, "Set Name");
    EXPECT_EQ(question.proposal, "My Set 1");
    const auto added = desk.Rows(TableNum::Characters, "charkey, charset, charsetnum, charsetname, charnum",
                                 "charsetnum=1", "charkey");
    ASSERT_EQ(added.size(), 96U);
    EXPECT_EQ(added.front(), "1032|SET 0001|1|Runes|32");
    EXPECT_EQ(added.back(), "1127|SET 0001|1|Runes|127");
    EXPECT_EQ(desk.Rows(TableNum::Characters, "charvals", "charkey=1065"),
              desk.Rows(TableNum::Characters, "charvals", "charkey=65"));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Character Set 1 added."));
    EXPECT_EQ(desk.document.UndoName(), "add character set 1");
    desk.document.Undo();
    EXPECT_EQ(desk.Everything(), before);
}

TEST(AddCharacterSet, ComesBackUntilTheNameWillDo) {
    Desk desk;
    desk.session.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("");
    desk.dialogs.AnswerText("   ");
    desk.dialogs.AnswerText("ABCDEFGHIJKLMNOPQRSTU");
    desk.dialogs.AnswerText("ABCDEFGHIJKLMNOPQRST");
    Entries(desk.session).AddEntry();
    EXPECT_THAT(desk.Boxes(), ElementsAre("Set name cannot be blank or more than 20 characters",
                                          "Set name cannot be blank or more than 20 characters",
                                          "Set name cannot be blank or more than 20 characters",
                                          "Character Set 1 added."));
    EXPECT_THAT(desk.Rows(TableNum::Characters, "charsetname", "charkey=1032"),
                ElementsAre("ABCDEFGHIJKLMNOPQRST"));
}

TEST(AddCharacterSet, CountsTheLettersOfANameAndNotItsBytes) {
    Desk desk;
    desk.session.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText("ÄÖÜÄÖÜÄÖÜÄÖÜÄÖÜÄÖÜÄÖ");
    Entries(desk.session).AddEntry();
    EXPECT_THAT(desk.Boxes(), ElementsAre("Character Set 1 added."));
}

TEST(AddCharacterSet, ThatWasCancelledAddsNothing) {
    Desk desk;
    desk.session.currentTable = TableNum::Characters;
    desk.dialogs.AnswerText(std::nullopt);
    const auto before = desk.Everything();
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Everything(), before);
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(AddCharacterSet, HasALimitOf998BesideSetZero) {
    Desk desk;
    desk.session.currentTable = TableNum::Characters;
    desk.Add(TableNum::Characters, {{"charkey", std::int64_t{997032}},
                                    {"charsetnum", std::int64_t{997}},
                                    {"charnum", std::int64_t{32}}});
    desk.dialogs.AnswerText("The last");
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "Character Set 998 added.");
    Entries(desk.session).AddEntry();
    EXPECT_EQ(desk.Boxes().back(), "There is a limit of 998 character sets");
    EXPECT_EQ(desk.dialogs.TextQuestions().size(), 1U);
}

// Edit

TEST(EditEntry, OpensTheScreenOfTheTable) {
    Desk desk;
    desk.FillUp(TableNum::Messages, 1);
    desk.FillUp(TableNum::Objects, 1);
    desk.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DESC");
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    const auto screenOf = [&](TableNum table, int key) {
        const auto request = Edit(desk, table, key);
        EXPECT_TRUE(request);
        EXPECT_EQ(request->key.key, key);
        EXPECT_FALSE(request->key.isNew);
        EXPECT_EQ(request->table, table);
        return request->screen;
    };
    EXPECT_EQ(screenOf(TableNum::Locations, 0), Screen::Location);
    EXPECT_EQ(screenOf(TableNum::Messages, 0), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Objects, 0), Screen::Object);
    EXPECT_EQ(screenOf(TableNum::ProcessTables, 4), Screen::ProcessEntry);
    EXPECT_EQ(screenOf(TableNum::SystemMessages, 5), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Flags, 11), Screen::Flag);
    EXPECT_EQ(screenOf(TableNum::ProcDesc, 3), Screen::Text);
    EXPECT_EQ(screenOf(TableNum::Adventure, 0), Screen::Settings);
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(EditEntry, OfARecordThatIsNotThereOpensNothing) {
    Desk desk;
    EXPECT_FALSE(Edit(desk, TableNum::Messages, 0));
    EXPECT_FALSE(Edit(desk, TableNum::Flags, 5000));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(EditEntry, OfAWordIsRefused) {
    Desk desk;
    EXPECT_FALSE(Edit(desk, TableNum::Vocabulary, 1));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Vocabulary cannot be edited"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Error");
}

TEST(EditEntry, OfAFlagThatIsNotTheAuthorsIsRefused) {
    Desk desk;
    EXPECT_FALSE(Edit(desk, TableNum::Flags, 0));
    EXPECT_THAT(desk.Boxes(), ElementsAre("That Flag cannot be edited"));
    EXPECT_EQ(desk.dialogs.Boxes().at(0).title, "Flag Information");
}

TEST(EditEntry, OfTheFirstThreeProcessDescriptionsIsRefused) {
    Desk desk;
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    for (const int process : {0, 1, 2}) {
        EXPECT_FALSE(Edit(desk, TableNum::ProcDesc, process));
        EXPECT_EQ(desk.Boxes().back(), "That Process table Description cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Process Description Information");
    }
    EXPECT_TRUE(Edit(desk, TableNum::ProcDesc, 3));
}

TEST(EditEntry, OfAFixedCharacterIsRefused) {
    Desk desk;
    for (const int fixed : {32, 65, 127, 128, 143}) {
        EXPECT_FALSE(Edit(desk, TableNum::Characters, fixed));
        EXPECT_EQ(desk.Boxes().back(), "Character " + std::to_string(fixed) + " cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Error");
    }
}

TEST(EditEntry, OfOtherCharactersWaitsForTheirEditor) {
    Desk desk;
    for (const int editable : {0, 15, 144, 164, 1032, 1127}) {
        EXPECT_FALSE(Edit(desk, TableNum::Characters, editable));
        EXPECT_EQ(desk.Boxes().back(), "The character editor is not part of this version.");
    }
}

TEST(EditEntry, OfAPictureWaitsForItsEditor) {
    Desk desk(AdventureKind::Fabula, true);
    EXPECT_FALSE(Edit(desk, TableNum::Pictures, 0));
    EXPECT_THAT(desk.Boxes(), ElementsAre("The picture editor is not part of this version."));
}

TEST(EditEntry, OfAnyOtherTableIsRefusedWithItsName) {
    Desk desk;
    for (const auto& [table, name] :
         {std::pair{TableNum::Codes, "Codes"}, std::pair{TableNum::CondActs, "CondActs"},
          std::pair{TableNum::Commands, "Commands"}, std::pair{TableNum::Templates, "Templates"}}) {
        EXPECT_FALSE(Edit(desk, table, 1));
        EXPECT_EQ(desk.Boxes().back(), std::string(name) + " cannot be edited");
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Error");
    }
}

TEST(EditSettings, EndsTheProgramWhenCharacterSetsWereSwitched) {
    Desk desk;
    const auto request = Edit(desk, TableNum::Adventure, 0);
    ASSERT_TRUE(request);
    Change change(desk.document, "edit the settings");
    store::Cursor& settings = desk.Adventure().OpenTable(TableNum::Adventure, "def");
    settings.SetField("charsets", std::int64_t{1});
    settings.Update();
    change.Commit();
    EXPECT_FALSE(Entries(desk.session).AfterScreen(*request));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Changing Character Sets requires exiting program"));
}

TEST(EditSettings, GoesOnWhenTheyWereNot) {
    Desk desk;
    const auto request = Edit(desk, TableNum::Adventure, 0);
    EXPECT_TRUE(Entries(desk.session).AfterScreen(*request));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

TEST(MissingEditor, NamesTheEditorsThatThisVersionLacks) {
    EXPECT_EQ(MissingEditor(TableNum::Pictures, EntryCommand::Add),
              "The picture editor is not part of this version.");
    EXPECT_EQ(MissingEditor(TableNum::Pictures, EntryCommand::Edit),
              "The picture editor is not part of this version.");
    EXPECT_EQ(MissingEditor(TableNum::Pictures, EntryCommand::Delete), "");
    EXPECT_EQ(MissingEditor(TableNum::Characters, EntryCommand::Edit),
              "The character editor is not part of this version.");
    EXPECT_EQ(MissingEditor(TableNum::Characters, EntryCommand::Add), "");
    EXPECT_EQ(MissingEditor(TableNum::Messages, EntryCommand::Edit), "");
}

TEST(AddPicture, WaitsForItsEditor) {
    Desk desk(AdventureKind::Fabula, true);
    desk.session.currentTable = TableNum::Pictures;
    EXPECT_FALSE(Entries(desk.session).AddEntry());
    EXPECT_THAT(desk.Boxes(), ElementsAre("The picture editor is not part of this version."));
}

TEST(AddEntry, ToATableThatTakesNoneDoesNothing) {
    Desk desk;
    desk.session.currentTable = TableNum::ProcDesc;
    EXPECT_FALSE(Entries(desk.session).AddEntry());
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

// Delete

TEST(DeleteEntry, AsksWithTheCaptionAndTheKey) {
    Desk desk(AdventureKind::Fabula, true);
    desk.FillUp(TableNum::Messages, 2);
    desk.FillUp(TableNum::Objects, 2);
    desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    desk.Add(TableNum::Pictures, {{"locnum", std::int64_t{6}}});
    const auto question = [&](TableNum table, int key) {
        desk.dialogs.AnswerNext(false);
        EXPECT_FALSE(Delete(desk, table, key));
        EXPECT_EQ(desk.dialogs.Boxes().back().title, "Confirm");
        return desk.Boxes().back();
    };
    const auto before = desk.Everything();
    EXPECT_EQ(question(TableNum::Locations, 0), "Are you sure you want to delete Locations 0 ?");
    EXPECT_EQ(question(TableNum::Messages, 1), "Are you sure you want to delete Messages 1 ?");
    EXPECT_EQ(question(TableNum::Objects, 1), "Are you sure you want to delete Objects 1 ?");
    EXPECT_EQ(question(TableNum::SystemMessages, 53),
              "Are you sure you want to delete System Messages 53 ?");
    EXPECT_EQ(question(TableNum::ProcDesc, 3), "Are you sure you want to delete Process Descriptions 3 ?");
    EXPECT_EQ(question(TableNum::Pictures, 6), "Are you sure you want to delete Pictures 6 ?");
    EXPECT_EQ(desk.Everything(), before);
}

class DeletePlain : public testing::TestWithParam<AdventureKind> {};

INSTANTIATE_TEST_SUITE_P(Types, DeletePlain,
                         testing::Values(AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo));

TEST_P(DeletePlain, TakesTheRecordAloneAndIsUndoneAsAWhole) {
    Desk desk(GetParam(), true);
    desk.FillUp(TableNum::Messages, 3);
    desk.FillUp(TableNum::Objects, 3);
    desk.FillUp(TableNum::Locations, 3);
    const auto tryOut = [&](TableNum table, int key, const std::string& name) {
        const auto before = desk.Everything();
        desk.dialogs.AnswerNext(true);
        EXPECT_TRUE(Delete(desk, table, key));
        const auto after = desk.Everything();
        const std::string tableName(store::FindTable(table)->name);
        EXPECT_EQ(after.tables.at(tableName).size(), before.tables.at(tableName).size() - 1);
        EXPECT_EQ(desk.document.UndoName(), name);
        EXPECT_EQ(desk.document.Undo(), std::set{table});
        EXPECT_EQ(desk.Everything(), before);
        desk.document.Redo();
        EXPECT_EQ(desk.Everything(), after);
    };
    tryOut(TableNum::Locations, 1, "delete location 1");
    tryOut(TableNum::Messages, 1, "delete message 1");
    tryOut(TableNum::Objects, 2, "delete object 2");
    tryOut(TableNum::SystemMessages, 53, "delete system message 53");
}

TEST(DeleteEntry, OfAProcessEntryShowsItInTheQuestion) {
    Desk desk;
    desk.AddEntry(3, 0, {"GET", 20}, {"LAMP", 50}, "PRESENT 0 GET 0 DONE");
    desk.dialogs.AnswerNext(false);
    EXPECT_FALSE(Delete(desk, TableNum::ProcessTables, 3));
    EXPECT_THAT(desk.Boxes(), ElementsAre("Are you sure you want to delete Process Record 3 ?\n"
                                          "GET LAMP\n"
                                          "PRESENT 0 GET 0 DONE"));
}

TEST(DeleteEntry, OfTheHighestProcessEntryLowersTheNextKey) {
    Desk desk;
    desk.AddEntry(3, 0, {"_", 255}, {"_", 255}, "DONE");
    desk.AddEntry(4, 0, {"_", 255}, {"_", 255}, "DONE");
    desk.AddEntry(5, 0, {"_", 255}, {"_", 255}, "DONE");
    ReadNextKeys(desk.session);
    desk.dialogs.AnswerNext(true);
    desk.dialogs.AnswerNext(true);
    Delete(desk, TableNum::ProcessTables, 3);
    EXPECT_EQ(desk.session.nextEntry, 6);
    Delete(desk, TableNum::ProcessTables, 5);
    EXPECT_EQ(desk.session.nextEntry, 5);
    EXPECT_EQ(desk.document.UndoName(), "delete process entry 5");
}

TEST(DeleteEntry, OfTheFirstThreeProcessDescriptionsIsRefused) {
    Desk desk;
    for (const int process : {0, 1, 2}) {
        EXPECT_FALSE(Delete(desk, TableNum::ProcDesc, process));
        EXPECT_EQ(desk.Boxes().back(), "That Process table Description cannot be deleted");
    }
}

TEST(DeleteEntry, OfFlagsSettingsAndCataloguesIsRefused) {
    Desk desk;
    EXPECT_FALSE(Delete(desk, TableNum::Flags, 11));
    EXPECT_EQ(desk.Boxes().back(), "Flags cannot be deleted");
    EXPECT_FALSE(Delete(desk, TableNum::Adventure, 0));
    EXPECT_EQ(desk.Boxes().back(), "Adventure cannot be deleted");
    EXPECT_FALSE(Delete(desk, TableNum::CondActs, 101));
    EXPECT_EQ(desk.Boxes().back(), "CondActs cannot be deleted");
}

TEST(DeleteEntry, OfARecordThatIsNotThereAsksNothing) {
    Desk desk;
    EXPECT_FALSE(Delete(desk, TableNum::Messages, 7));
    EXPECT_FALSE(Delete(desk, TableNum::Vocabulary, 7000));
    EXPECT_THAT(desk.Boxes(), IsEmpty());
}

}  // namespace
}  // namespace fabula::authoring
