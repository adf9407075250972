#include "authoring/screens/process_entry_screen.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/cond_act_screen.h"

namespace fabula::authoring {
namespace {

using store::AdventureKind;
using store::TableNum;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// Opening

TEST(OpenCondAct, ANewEntryShowsTheNextFreeKeyAndNoWords) {
    CondActScreen game;
    game.desk.AddEntry(7, 0, kAny, kAny, "DONE");
    ReadNextKeys(game.desk.context);
    const ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_EQ(screen.recordKey, "Record Key: 8");
    EXPECT_EQ(screen.process, "0");
    EXPECT_EQ(screen.verb.Chosen()->text, "_");
    EXPECT_EQ(screen.noun.Chosen()->text, "_");
    EXPECT_EQ(screen.condAct.text, "");
    EXPECT_EQ(screen.parameter1.label, "Param1");
    EXPECT_FALSE(screen.parameter1.enabled);
    EXPECT_EQ(screen.parameter2.label, "Param2");
    EXPECT_FALSE(screen.parameter2.enabled);
    EXPECT_EQ(screen.line, "");
    EXPECT_EQ(ProcessEntryScreen::kCaption, "Process Table Editor");
    EXPECT_EQ(ProcessEntryScreen::kHelpLine,
              "Type your Conditions/Actions directly into the above fields and then click the Add to "
              "Conditions/Actions button. They will be checked for validity.");
}

TEST(OpenCondAct, ANewEntryIsOfTheProcessInView) {
    CondActScreen game;
    game.desk.context.currentESNum = 2;
    EXPECT_EQ(ProcessEntryScreen(game.desk.context, New(game.desk)).process, "2");
    game.desk.context.currentESNum = kOtherProcesses;
    EXPECT_EQ(ProcessEntryScreen(game.desk.context, New(game.desk)).process, "3");
    game.desk.AddEntry(4, 6, kAny, kAny, "DONE");
    game.desk.context.currentEntry = 4;
    EXPECT_EQ(ProcessEntryScreen(game.desk.context, New(game.desk)).process, "6");
}

TEST(OpenCondAct, ANewEntryBeforeAnotherBeginsWithItsProcessAndWords) {
    CondActScreen game;
    game.desk.AddEntry(1, 2, {"GET", 20}, {"LAMP", 50}, "DONE");
    ReadNextKeys(game.desk.context);
    ScreenRequest request = New(game.desk);
    request.before = 1;
    const ProcessEntryScreen screen(game.desk.context, request);
    EXPECT_EQ(screen.process, "2");
    EXPECT_EQ(screen.verb.Chosen()->text, "GET");
    EXPECT_EQ(screen.noun.Chosen()->text, "LAMP");
    EXPECT_EQ(screen.line, "");
}

TEST(OpenCondAct, AnEntryShowsWhatIsStored) {
    CondActScreen game;
    game.desk.AddEntry(4, 1, {"LIGHT", 30}, {"LIGHT", 80}, "AT 1 DONE");
    const ProcessEntryScreen screen(game.desk.context, Old(4));
    EXPECT_EQ(screen.recordKey, "Record Key: 4");
    EXPECT_EQ(screen.process, "1");
    EXPECT_EQ(screen.verb.Chosen()->text, "LIGHT (Verb)");
    EXPECT_EQ(screen.noun.Chosen()->text, "LIGHT (Noun)");
    EXPECT_EQ(screen.line, "AT 1 DONE");
}

TEST(OpenCondAct, TheWordsAreVerbsNounsAndReservedOnes) {
    CondActScreen game;
    const ProcessEntryScreen screen(game.desk.context, New(game.desk));
    std::vector<std::string> words;
    for (const ListItem& item : screen.verb.items)
        words.push_back(item.text);
    EXPECT_THAT(words, ElementsAre("GET", "TAKE", "LIGHT (Verb)", "LAMP", "LIGHT (Noun)", "*", "_"));
    EXPECT_EQ(screen.noun.items, screen.verb.items);
}

TEST(OpenCondAct, AStarIsNoWordOfAMarloAdventure) {
    CondActScreen game(AdventureKind::Marlo);
    const ProcessEntryScreen screen(game.desk.context, New(game.desk));
    for (const ListItem& item : screen.verb.items)
        EXPECT_NE(item.text, "*");
    EXPECT_EQ(screen.verb.Chosen()->text, "_");
}

TEST(OpenCondAct, TheListHoldsTheCondactsOfTheDialect) {
    CondActScreen fabula;
    const ProcessEntryScreen all(fabula.desk.context, New(fabula.desk));
    EXPECT_THAT(all.condAct.items, Contains(ListItem{292, "MESF"}));
    CondActScreen marlo(AdventureKind::Marlo);
    const ProcessEntryScreen few(marlo.desk.context, New(marlo.desk));
    EXPECT_EQ(few.condAct.items.size(), 54U);
    EXPECT_THAT(few.condAct.items, Not(Contains(ListItem{292, "MESF"})));
}

// Putting a condact together

TEST(ChooseCondAct, WithoutParametersAddsItAtOnce) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "AT 1";
    screen.condAct.text = "done";
    EXPECT_TRUE(screen.LeaveCondAct());
    EXPECT_EQ(screen.line, "AT 1 DONE");
    EXPECT_EQ(screen.condAct.text, "");
    EXPECT_TRUE(screen.LeaveCondAct());
    EXPECT_EQ(screen.line, "AT 1 DONE");
}

TEST(ChooseCondAct, WithOneParameterOpensTheFirstField) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "message";
    EXPECT_TRUE(screen.LeaveCondAct());
    EXPECT_EQ(screen.condAct.text, "MESSAGE");
    EXPECT_EQ(screen.parameter1.label, "Message");
    EXPECT_TRUE(screen.parameter1.enabled);
    EXPECT_EQ(screen.parameter1.items.size(), 3U);
    EXPECT_FALSE(screen.parameter2.enabled);
    EXPECT_EQ(screen.line, "");
}

TEST(ChooseCondAct, WithTwoParametersOpensBoth) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "PLACE";
    EXPECT_TRUE(screen.LeaveCondAct());
    EXPECT_EQ(screen.parameter1.label, "Object");
    EXPECT_EQ(screen.parameter2.label, "Location");
    EXPECT_TRUE(screen.parameter2.enabled);
    ASSERT_EQ(screen.parameter2.items.size(), 9U);
    EXPECT_EQ(screen.parameter2.items[5].insert, "NOTCR");
    EXPECT_EQ(screen.parameter2.items[6].insert, "WORN");
    EXPECT_EQ(screen.parameter2.items[7].insert, "CARRIED");
    EXPECT_EQ(screen.parameter2.items[8].insert, "HERE");
}

TEST(ChooseCondAct, AnotherOneOpensItsOwnFields) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "PLACE";
    screen.LeaveCondAct();
    screen.parameter1.text = "1";
    screen.LeaveCondAct();
    EXPECT_EQ(screen.parameter1.text, "1");
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    EXPECT_EQ(screen.parameter1.text, "");
    EXPECT_EQ(screen.parameter2.label, "Param2");
    screen.condAct.text = "";
    screen.LeaveCondAct();
    EXPECT_FALSE(screen.parameter1.enabled);
}

TEST(ChooseCondAct, OfAnotherDialectIsRefused) {
    CondActScreen game(AdventureKind::Vel);
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "MESF";
    EXPECT_FALSE(screen.LeaveCondAct());
    EXPECT_EQ(game.Box(), "Invalid Condition/Action");
    EXPECT_EQ(game.Title(), "Error");
    EXPECT_EQ(screen.Refused(), "condAct");
}

TEST(LeaveParameter, TheOnlyOneIsChecked) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    screen.parameter1.text = "3";
    EXPECT_FALSE(screen.LeaveParameter1());
    EXPECT_EQ(game.Box(), "Invalid number for parameter 1");
    EXPECT_EQ(screen.Refused(), "parameter1");
    screen.parameter1.text = "2";
    EXPECT_TRUE(screen.LeaveParameter1());
    screen.parameter1.text = "";
    EXPECT_TRUE(screen.LeaveParameter1());
}

TEST(LeaveParameter, TheFirstOfTwoWaitsForTheSecond) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "PLACE";
    screen.LeaveCondAct();
    screen.parameter1.text = "44";
    EXPECT_TRUE(screen.LeaveParameter1());
    screen.parameter2.text = "1";
    EXPECT_FALSE(screen.LeaveParameter2());
    EXPECT_EQ(game.Box(), "Invalid number for parameter 1");
    EXPECT_EQ(screen.Refused(), "parameter2");
    screen.parameter1.text = "1";
    EXPECT_TRUE(screen.LeaveParameter2());
}

TEST(AddCondAct, AppendsItWithLocationWordsAsNumbersAndClosesTheFields) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "AT 1 ";
    screen.condAct.text = "PLACE";
    screen.LeaveCondAct();
    screen.parameter1.text = "1";
    screen.parameter2.text = "carried";
    EXPECT_TRUE(screen.Add());
    EXPECT_EQ(screen.line, "AT 1 PLACE 1 254");
    EXPECT_EQ(screen.condAct.text, "");
    EXPECT_EQ(screen.parameter1.label, "Param1");
    EXPECT_EQ(screen.parameter2.label, "Param2");
    EXPECT_FALSE(screen.parameter1.enabled);
    EXPECT_FALSE(screen.parameter2.enabled);
    EXPECT_EQ(screen.parameter1.text, "");
    EXPECT_THAT(screen.parameter1.items, IsEmpty());
}

TEST(AddCondAct, RefusesWhatIsNotComplete) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.condAct.text = "MESSAGE";
    screen.LeaveCondAct();
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(game.Box(), "No parameters for a Condition/Action which must have parameter");
    EXPECT_EQ(screen.line, "");
}

TEST(AddCondAct, OfNothingIsRefused) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    EXPECT_FALSE(screen.Add());
    EXPECT_EQ(game.Box(), "Invalid Condition/Action");
}

// The line

TEST(LeaveLine, ABareNameFails) {
    CondActScreen game;
    EXPECT_EQ(game.Left("MESSAGE"), "No parameters for a Condition/Action which must have parameter");
}

TEST(LeaveLine, ALocationBeyondTheRecordsFails) {
    CondActScreen game;
    EXPECT_EQ(game.Left("AT 5"), "Invalid number for parameter 1");
    EXPECT_EQ(game.Left("AT 4"), "");
    EXPECT_EQ(game.Left("AT 254"), "");
}

TEST(LeaveLine, TheFlagsOfTheEngineHaveTheirRules) {
    CondActScreen game;
    EXPECT_EQ(game.Left("SET 1004"), "Flag 1004 cannot be modified or checked using conditions/actions");
    EXPECT_EQ(game.Left("SET 1005"), "");
    EXPECT_EQ(game.Left("LET 1005 1"), "Flag 1005 can only be SET or CLEAR");
    EXPECT_EQ(game.Left("AUTOINC 30 1"), "Flag 30 cannot be set With AUTOINC");
    EXPECT_EQ(game.Left("SET 1000"), "This flag cannot be used in an Action, only a Condition");
}

TEST(LeaveLine, AnUnknownNameFails) {
    CondActScreen game;
    EXPECT_EQ(game.Left("AT 1 XYZ DONE"), "XYZ is an invalid Condition/Action");
}

TEST(LeaveLine, OnlyTheFirstFaultIsTold) {
    CondActScreen game;
    EXPECT_EQ(game.Left("AT 77 XYZ"), "Invalid number for parameter 1");
    EXPECT_EQ(game.desk.dialogs.Boxes().size(), 1U);
}

TEST(LeaveLine, AnEmptyOneMayBeLeft) {
    CondActScreen game;
    EXPECT_EQ(game.Left(""), "");
}

TEST(LeaveLine, PutsItIntoCapitals) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.line = "at 1 done";
    EXPECT_TRUE(screen.LeaveLine());
    EXPECT_EQ(screen.line, "AT 1 DONE");
}

// The number of the process table

/// What the box says when a number is left; "" for none.
std::string LeftType(CondActScreen& game, const std::string& number) {
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.process = number;
    const std::size_t before = game.desk.dialogs.Boxes().size();
    const bool left = screen.LeaveProcess();
    if (game.desk.dialogs.Boxes().size() == before) {
        EXPECT_TRUE(left);
        return "";
    }
    return game.Box();
}

TEST(LeaveProcess, MustBeANumber) {
    CondActScreen game;
    EXPECT_EQ(LeftType(game, "two"), "Process Table # is not numeric");
    EXPECT_EQ(LeftType(game, ""), "Process Table # is not numeric");
    EXPECT_EQ(game.Title(), "Error");
}

TEST(LeaveProcess, OneThatExistsIsAccepted) {
    CondActScreen game;
    EXPECT_EQ(LeftType(game, "1"), "");
    EXPECT_EQ(LeftType(game, " 2 "), "");
}

TEST(LeaveProcess, ANewOneMustBeTheNext) {
    CondActScreen game;
    game.desk.Add(TableNum::ProcDesc, {{"pmsgnum", std::int64_t{3}}});
    game.desk.AddEntry(1, 3, kAny, kAny, "DONE");
    EXPECT_EQ(LeftType(game, "5"), "The new Process Table number must be 4");
    EXPECT_EQ(LeftType(game, "-1"), "The new Process Table number must be 4");
    EXPECT_EQ(LeftType(game, "99999999999"), "The new Process Table number must be 4");
}

TEST(LeaveProcess, TheFirstNewOneIsThreeWhereverEntriesStand) {
    CondActScreen game;
    EXPECT_EQ(LeftType(game, "4"), "The new Process Table number must be 3");
    game.desk.AddEntry(1, 1, kAny, kAny, "DONE");
    game.desk.context.currentESNum = kOtherProcesses;
    EXPECT_EQ(LeftType(game, "4"), "The new Process Table number must be 3");
}

TEST(LeaveProcess, ANewOneIsConfirmedOnce) {
    CondActScreen game;
    ProcessEntryScreen screen(game.desk.context, New(game.desk));
    screen.process = "3";
    game.desk.dialogs.AnswerNext(false);
    EXPECT_FALSE(screen.LeaveProcess());
    EXPECT_EQ(screen.Refused(), "process");
    EXPECT_EQ(game.Box(), "Confirm Creation of Process table 3");
    EXPECT_EQ(game.Title(), "Confirm");
    game.desk.dialogs.AnswerNext(true);
    EXPECT_TRUE(screen.LeaveProcess());
    EXPECT_TRUE(screen.LeaveProcess());
    EXPECT_EQ(game.desk.dialogs.Boxes().size(), 2U);
}

TEST(LeaveProcess, AMarloAdventureHasNoNewOne) {
    CondActScreen game(AdventureKind::Marlo);
    EXPECT_EQ(LeftType(game, "3"), "You cannot change the Process Table number when using the Marlo");
    EXPECT_EQ(LeftType(game, "4"), "The new Process Table number must be 3");
}

}  // namespace
}  // namespace fabula::authoring
