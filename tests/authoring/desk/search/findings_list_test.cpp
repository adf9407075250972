#include "authoring/desk/search/findings_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "authoring/main_screen_stand.h"

namespace fabula::authoring {
namespace {

using store::TableNum;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;

class FindingsListTest : public testing::Test, public test::MainScreenStand {
  protected:
    FindingsListTest() {
        OpenNew();
        StoreMessage(0, "You lower the wick.");
        StoreMessage(1, "It is dark.");
        StoreMessage(5, "The sea is calm.");
        list.Read();
    }

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const FindingLine& line : list.Lines())
            texts.push_back(line.text);
        return texts;
    }
    std::vector<std::string> HeaderLines() {
        std::vector<std::string> lines;
        store::Cursor& headers = Adventure().OpenTable(TableNum::Header, "def", "hdrkey='lint off'");
        for (; !headers.Eof(); headers.MoveNext())
            lines.emplace_back(headers.Text("hdrmess"));
        return lines;
    }
    void SwitchOff(std::string_view code, const char* reason,
                   std::optional<std::int64_t> record = std::nullopt) {
        dialogs.AnswerText(reason);
        EXPECT_TRUE(list.SwitchOff(code, record));
    }

    Navigator navigator{*main};
    FindingsList list{*main, navigator};
};

TEST_F(FindingsListTest, TellsCodePlaceAndSentence) {
    EXPECT_THAT(list.Lines(), Contains(AllOf(Field(&FindingLine::code, "message-unused"),
                                             Field(&FindingLine::where, "message 1: It is dark."),
                                             Field(&FindingLine::text, "No rule prints message 1."))));
    EXPECT_THAT(list.Lines(), Contains(AllOf(Field(&FindingLine::code, "gap"),
                                             Field(&FindingLine::text, "There are no messages 2 to 4."))));
}

TEST_F(FindingsListTest, ShowsOneKindAndTellsHowManyThereAre) {
    const std::size_t all = list.Lines().size();
    EXPECT_EQ(list.Title(), std::to_string(all) + " findings");
    list.Choose("message-unused");
    EXPECT_THAT(Texts(), ElementsAre("No rule prints message 0.", "No rule prints message 1.",
                                     "No rule prints message 5."));
    EXPECT_EQ(list.Title(), "message-unused: 3 of " + std::to_string(all) + " findings");
    EXPECT_EQ(list.Remark(), "no rule prints a message");
    list.Choose("");
    EXPECT_EQ(list.Lines().size(), all);
}

TEST_F(FindingsListTest, AKindThatTheAdventureDoesNotHaveIsNotShown) {
    list.Choose("start-missing");
    EXPECT_EQ(list.Chosen(), "");
}

TEST_F(FindingsListTest, LeadsToTheRecordAndBack) {
    main->Show({TableNum::Vocabulary});
    list.Choose("message-unused");
    navigator.GoTo(list.Lines()[2].jump);
    EXPECT_EQ(main->Grid().View().table, TableNum::Messages);
    EXPECT_EQ(main->Grid().KeyOf(main->CurrentRow()), 5);
    EXPECT_TRUE(navigator.Back());
    EXPECT_EQ(main->Grid().View().table, TableNum::Vocabulary);
}

TEST_F(FindingsListTest, LeadsToTheSettings) {
    store::Cursor& record = Adventure().OpenTable(TableNum::Adventure, "startloc");
    record.SetField("startloc", std::int64_t{77});
    record.Update();
    list.Read();
    list.Choose("start-missing");
    ASSERT_EQ(list.Lines().size(), 1U);
    EXPECT_EQ(list.Lines()[0].where, "the settings");
    navigator.GoTo(list.Lines()[0].jump);
    EXPECT_EQ(main->Grid().View().table, TableNum::Adventure);
    EXPECT_EQ(main->CurrentRow(), 0);
    EXPECT_EQ(main->Message(), "");
}

TEST_F(FindingsListTest, KnowsWhenTheAdventureHasChanged) {
    EXPECT_TRUE(list.IsCurrent());
    AddMessage("A gull cries.");
    EXPECT_FALSE(list.IsCurrent());
    list.Read();
    EXPECT_TRUE(list.IsCurrent());
    main->Run(Command::Undo);
    EXPECT_FALSE(list.IsCurrent());
    main->Run(Command::Redo);
    EXPECT_FALSE(list.IsCurrent());
}

TEST_F(FindingsListTest, KnowsWhenAnotherAdventureIsOpen) {
    EXPECT_TRUE(list.IsOfOpenAdventure());
    main->Close();
    EXPECT_FALSE(list.IsOfOpenAdventure());
    list.Read();
    EXPECT_TRUE(list.IsOfOpenAdventure());
    EXPECT_THAT(list.Lines(), IsEmpty());
    EXPECT_EQ(list.Title(), "0 findings");
    EXPECT_FALSE(list.CanSwitch());
}

TEST_F(FindingsListTest, AKindIsSwitchedOffWithItsReasonAsTheCommandLineKeepsIt) {
    SwitchOff("message-unused", "they come later");
    EXPECT_THAT(HeaderLines(), ElementsAre("message-unused they come later"));
    EXPECT_THAT(list.Lines(), Not(Contains(Field(&FindingLine::code, "message-unused"))));
    EXPECT_EQ(list.Remark(), "1 kind is switched off.");
    EXPECT_EQ(main->Message(), "Done: switch off message-unused");
}

TEST_F(FindingsListTest, WhatIsSwitchedOffIsShownWithItsKind) {
    SwitchOff("message-unused", "they come later");
    list.Choose("message-unused");
    ASSERT_EQ(list.Lines().size(), 3U);
    EXPECT_TRUE(list.Lines()[0].off);
    EXPECT_TRUE(list.IsOff("message-unused"));
    EXPECT_EQ(list.Remark(), "no rule prints a message - switched off: they come later");
}

TEST_F(FindingsListTest, SwitchingOffIsOneStepOfUndo) {
    const int changes = main->CurrentContext().document.Changes();
    SwitchOff("message-unused", "");
    EXPECT_EQ(main->CurrentContext().document.Changes(), changes + 1);
    EXPECT_THAT(HeaderLines(), ElementsAre("message-unused"));
    main->Run(Command::Undo);
    EXPECT_THAT(HeaderLines(), IsEmpty());
    list.Read();
    EXPECT_THAT(Texts(), Contains("No rule prints message 1."));
}

TEST_F(FindingsListTest, SwitchingOnIsOneStepOfUndoThatBringsTheReasonBack) {
    SwitchOff("message-unused", "they come later");
    SwitchOff("gap", "kept free");
    list.SwitchOn("message-unused");
    EXPECT_THAT(HeaderLines(), ElementsAre("gap kept free"));
    EXPECT_THAT(Texts(), Contains("No rule prints message 1."));
    main->Run(Command::Undo);
    EXPECT_THAT(HeaderLines(), ElementsAre("message-unused they come later", "gap kept free"));
}

TEST_F(FindingsListTest, OneRecordAloneCanBeSwitchedOffAndOn) {
    SwitchOff("message-unused", "for the second part", 1);
    EXPECT_THAT(HeaderLines(), ElementsAre("message-unused 1 for the second part"));
    EXPECT_THAT(Texts(), Not(Contains("No rule prints message 1.")));
    EXPECT_THAT(Texts(), Contains("No rule prints message 5."));
    list.Choose("message-unused");
    EXPECT_FALSE(list.IsOff("message-unused"));
    EXPECT_EQ(list.Lines().size(), 3U);
    EXPECT_TRUE(list.Lines()[1].off);
    EXPECT_EQ(list.Lines()[1].reason, "for the second part");
    EXPECT_EQ(list.Lines()[2].reason, "");
    list.SwitchOn("message-unused", 1);
    EXPECT_THAT(HeaderLines(), IsEmpty());
}

TEST_F(FindingsListTest, NothingIsSwitchedOffWhenTheAuthorWouldRatherNot) {
    dialogs.AnswerText(std::nullopt);
    EXPECT_FALSE(list.SwitchOff("gap"));
    EXPECT_THAT(HeaderLines(), IsEmpty());
}

TEST_F(FindingsListTest, AReasonThatIsTooLongIsAskedForAgain) {
    const std::string tooLong(121, 'x');
    dialogs.AnswerText(tooLong);
    dialogs.AnswerText(std::string(120, 'x'));
    EXPECT_TRUE(list.SwitchOff("gap"));
    EXPECT_EQ(Boxes().back(), "A reason has at most 120 characters.");
    EXPECT_EQ(dialogs.TextQuestions().back().proposal, tooLong);
    EXPECT_THAT(HeaderLines(), ElementsAre("gap " + std::string(120, 'x')));
}

TEST_F(FindingsListTest, ALineIsFoundAgainAfterAnotherHasGone) {
    list.Choose("message-unused");
    const FindingLine second = list.Lines()[1];
    EXPECT_EQ(list.Near(second, 1), 1);
    const FindingLine third = list.Lines()[2];
    SwitchOff("message-unused", "", 0);
    list.Choose("");
    EXPECT_EQ(list.Lines()[static_cast<std::size_t>(list.Near(third, 2))].text, third.text);
    FindingLine gone = third;
    gone.text = "No rule prints message 77.";
    EXPECT_EQ(list.Near(gone, 1), 1);
    EXPECT_EQ(list.Near(gone, 1000), static_cast<int>(list.Lines().size()) - 1);
}

}  // namespace
}  // namespace fabula::authoring
