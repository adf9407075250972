#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/cond_act_screen.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(UpdateCondAct, StoresANewEntryInAllItsForms) {
    for (const AdventureKind kind : {AdventureKind::Fabula, AdventureKind::Vel, AdventureKind::Marlo}) {
        CondActScreen game(kind);
        ProcessEntryScreen screen(game.desk.context, New(game.desk));
        screen.verb.ChooseText("GET");
        screen.noun.ChooseText("LAMP");
        screen.line = " place 1  carried message 2 done";
        EXPECT_TRUE(screen.Update());
        EXPECT_THAT(game.Entries(),
                    ElementsAre("0|0|GET|20|LAMP|50|PLACE 1 254 MESSAGE 2 DONE|208 1 254 250 2 265|6"));
        EXPECT_EQ(game.desk.context.nextEntry, 1);
        EXPECT_EQ(game.desk.document.UndoName(), "add process entry 0");
        game.desk.document.Undo();
        EXPECT_THAT(game.Entries(), IsEmpty());
    }
}

TEST(UpdateCondAct, StoresASynonymAsTheFirstWordOfItsNumber) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.verb.ChooseText("TAKE");
    screen.line = "DONE";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|GET|20|_|255|DONE|265|1"));
}

TEST(UpdateCondAct, ChangesAnEntry) {
    CondActScreen game;
    game.desk.AddEntry(4, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
    ReadNextKeys(game.desk.context);
    ProcessEntryScreen screen(game.desk.context, Old(4));
    screen.process = "1";
    screen.noun.ChooseText("_");
    screen.line = "AT 1 OK";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("4|1|GET|20|_|255|AT 1 OK|101 1 267|3"));
    EXPECT_EQ(game.desk.context.nextEntry, 5);
    EXPECT_EQ(game.desk.document.UndoName(), "edit process entry 4");
}

TEST(UpdateCondAct, ShowsTheProcessOfTheEntry) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.process = "3";
    screen.line = "DONE";
    game.desk.dialogs.AnswerNext(true);
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(game.desk.context.currentESNum, kOtherProcesses);
}

TEST(UpdateCondAct, AddsTheDescriptionThatANewProcessNeeds) {
    CondActScreen game;
    const auto before = game.desk.Everything();
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.process = "3";
    screen.line = "DONE";
    game.desk.dialogs.AnswerNext(true);
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.desk.Rows(TableNum::ProcDesc, "pmsgnum, pmsgmsg", "pmsgnum=3"), ElementsAre("3| "));
    game.desk.document.Undo();
    EXPECT_EQ(game.desk.Everything(), before);
}

TEST(UpdateCondAct, OfAnEmptyLineIsRefused) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "  ";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "Cannot have a record with no Condition/Actions");
    EXPECT_EQ(game.Title(), "Error");
    EXPECT_EQ(screen.Refused(), "line");
    EXPECT_THAT(game.Entries(), IsEmpty());
}

TEST(UpdateCondAct, ChecksAllFieldsInTheirOrderAndStoresNothing) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    screen.parameter1.text = "9";
    screen.condAct.text = "MESSAGE";
    screen.process = "x";
    screen.line = "XYZ";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "Process Table # is not numeric");
    screen.process = "0";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "Invalid number for parameter 1");
    screen.parameter1.text = "1";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "XYZ is an invalid Condition/Action");
    EXPECT_THAT(game.Entries(), IsEmpty());
    EXPECT_EQ(game.desk.document.UndoName(), std::nullopt);
    EXPECT_EQ(game.desk.context.nextEntry, 0);
}

TEST(UpdateCondAct, StoresWhatWasPutTogetherAndNotAddedYet) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "AT 1";
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    screen.parameter1.text = "1";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|_|255|_|255|AT 1 MESSAGE 1|101 1 250 1|4"));
}

TEST(UpdateCondAct, LeavesOutANameThatWasOnlyChosen) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "AT 1";
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|_|255|_|255|AT 1|101 1|2"));
}

TEST(UpdateCondAct, RefusesWhatLacksItsSecondParameter) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "AT 1";
    screen.condAct.text = "PLACE";
    screen.LeaveCondAct();
    screen.parameter1.text = "0";
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "No parameter where there should be one");
    EXPECT_EQ(screen.line, "AT 1");
    EXPECT_THAT(game.Entries(), IsEmpty());
}

TEST(UpdateCondAct, LooksUpALongWordByItsFirstFiveLetters) {
    CondActScreen game;
    game.desk.AddWord(600, "LANTERN", 60, 2);
    game.desk.AddWord(601, "LANTE", 60, 2);
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "NOUN2 LANTERN DONE";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|_|255|_|255|NOUN2 LANTERN DONE|124 60 265|3"));
}

TEST(UpdateCondAct, ALongWordOfTheVocabularyCountsWhole) {
    CondActScreen game;
    game.desk.AddWord(600, "LANTERN", 60, 2);
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "NOUN2 LANTERN DONE";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|_|255|_|255|NOUN2 LANTERN DONE|124 60 265|3"));
}

TEST(UpdateCondAct, KeepsAWordThatTheVocabularyLacks) {
    CondActScreen game;
    game.desk.AddEntry(4, 0, {"GONE", 99}, kAny, "DONE");
    ProcessEntryScreen screen(game.desk.context, Old(4));
    EXPECT_EQ(screen.verb.Chosen(), nullptr);
    screen.line = "OK";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("4|0|GONE|99|_|255|OK|267|1"));
}

TEST(UpdateCondAct, WithoutAChangeIsNoStepOfUndo) {
    CondActScreen game;
    game.desk.AddEntry(4, 0, {"GET", 20}, {"LAMP", 50}, "AT 1 DONE");
    ProcessEntryScreen screen(game.desk.context, Old(4));
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(game.desk.document.UndoName(), std::nullopt);
}

TEST(OpenCondAct, ThatIsCancelledChangesNothing) {
    CondActScreen game;
    const auto before = game.desk.Everything();
    {
        ProcessEntryScreen screen(game.desk.context, New(game.desk));
        screen.line = "DONE";
        screen.LeaveLine();
    }
    EXPECT_EQ(game.desk.Everything(), before);
    EXPECT_EQ(game.desk.context.nextEntry, 0);
}

TEST(AddBeforeWithItsScreen, IsOneStepThatPutsTheNewEntryFirst) {
    CondActScreen game;
    game.desk.AddEntry(1, 0, {"GET", 20}, {"LAMP", 50}, "DONE");
    game.desk.context.currentTable = TableNum::ProcessTables;
    game.desk.context.currentEntry = 1;
    const auto before = game.desk.Everything();
    Entries entries(game.desk.context);
    const auto request = entries.AddEntryBefore();
    ProcessEntryScreen screen(game.desk.context, *request);
    screen.line = "OK";
    EXPECT_TRUE(screen.Update());
    entries.AfterScreen(*request);
    EXPECT_THAT(game.desk.Rows(TableNum::ProcessTables, "canum, condacts", "", "canum"),
                ElementsAre("2|OK", "3|DONE"));
    game.desk.document.Undo();
    EXPECT_EQ(game.desk.Everything(), before);
}

std::vector<std::string> Messages(CondActScreen& game) {
    return game.desk.Rows(TableNum::Messages, "msgnum, msgmsg", "msgnum>2", "msgnum");
}

TEST(NamesInALine, BecomeNumbersWhenTheLineIsLeft) {
    CondActScreen game;
    game.desk.Add(TableNum::Objects,
                  {{"objnum", std::int64_t{2}}, {"objdesc", std::string("a brass lamp")}});
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "present \"a brass lamp\" get @brass prep \"";
    EXPECT_FALSE(screen.LeaveLine());
    screen.line = "present \"a brass lamp\" get @brass done";
    EXPECT_TRUE(screen.LeaveLine());
    EXPECT_EQ(screen.line, "PRESENT 2 GET 2 DONE");
}

TEST(NamesInALine, ThatNobodyHasOrMoreThanOneAreRefused) {
    CondActScreen game;
    game.desk.Add(TableNum::Objects, {{"objnum", std::int64_t{2}}, {"objdesc", std::string("a red lamp")}});
    game.desk.Add(TableNum::Objects,
                  {{"objnum", std::int64_t{3}}, {"objdesc", std::string("a green lamp")}});
    EXPECT_EQ(game.Left("GET \"lantern\" DONE"), "There is no lantern");
    EXPECT_EQ(game.Left("GET \"lamp\" DONE"), "More than one is called lamp");
}

TEST(NewMessage, ComesWithItsEntryInOneStepOfUndo) {
    CondActScreen game;
    const auto before = game.desk.Everything();
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_EQ(screen.AddMessage("It snows."), condacts::MessageNumber(3));
    EXPECT_EQ(screen.AddMessage("It thaws."), condacts::MessageNumber(4));
    screen.line = "MESSAGE 3 MESSAGE 4 DONE";
    EXPECT_EQ(game.desk.Everything(), before);
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(Messages(game), ElementsAre("3|It snows.", "4|It thaws."));
    EXPECT_EQ(game.desk.document.UndoName(), "add process entry 0");
    game.desk.document.Undo();
    EXPECT_EQ(game.desk.Everything(), before);
    EXPECT_EQ(game.desk.document.UndoName(), std::nullopt);
}

TEST(NewMessage, ThatTheLineDoesNotPrintInTheEndIsNotAdded) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_EQ(screen.AddMessage("It snows."), condacts::MessageNumber(3));
    screen.line = "DONE";
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(Messages(game), IsEmpty());
}

TEST(NewMessage, OfAScreenThatIsLeftIsNotAdded) {
    CondActScreen game;
    {
        ProcessEntryScreen screen(game.desk.context, New(game.desk));
        screen.AddMessage("It snows.");
        screen.line = "MESSAGE 3";
    }
    EXPECT_THAT(Messages(game), IsEmpty());
    EXPECT_EQ(game.desk.document.UndoName(), std::nullopt);
}

TEST(NewMessage, ThatWasTypedOutIsAddedAfterAQuestion) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "MESSAGE \"It snows.\" DONE";
    game.desk.dialogs.AnswerNext(false);
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(game.Box(), "There is no message \u201CIt snows.\u201D. Add it?");
    game.desk.dialogs.AnswerNext(true);
    EXPECT_TRUE(screen.Update());
    EXPECT_THAT(game.Entries(), ElementsAre("0|0|_|255|_|255|MESSAGE 3 DONE|250 3 265|3"));
    EXPECT_THAT(Messages(game), ElementsAre("3|It snows."));
}

TEST(NewMessage, WithAFaultInItsTextIsRefused) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_EQ(screen.AddMessage("<INK=99>snow"), std::nullopt);
    EXPECT_EQ(game.desk.Boxes().size(), 1U);
}

TEST(NewMessage, BeyondTheLastNumberIsRefused) {
    CondActScreen game(AdventureKind::Vel);
    game.desk.Clear(TableNum::Messages);
    game.desk.FillUp(TableNum::Messages, 256);
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_EQ(screen.AddMessage("It snows."), std::nullopt);
    EXPECT_EQ(game.Box(), "You have reached the maximum of 255 messages");
}

}  // namespace
}  // namespace fabula::authoring
