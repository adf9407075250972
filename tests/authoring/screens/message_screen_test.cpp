#include "authoring/screens/message_screen.h"

#include <gtest/gtest.h>

#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"
#include "support/temp_folder.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

class MessageScreenTest : public testing::Test {
  protected:
    MessageScreenTest() : document_(Made(folder_ / "game.fbd")) {
        context_.currentTable = TableNum::Messages;
        for (const int number : {0, 1, 4})
            Add("messages", "msgnum", "msgmsg", number, "message " + std::to_string(number));
    }

    static std::filesystem::path Made(const std::filesystem::path& file) {
        test::MakeAdventure(file);
        return file;
    }

    void Add(const std::string& table, std::string_view key, std::string_view field, int number,
             std::string text) {
        store::Cursor& cursor = document_.Adventure().OpenTable(TableNum::Free22, "* from " + table);
        cursor.AddNew();
        cursor.SetField(key, std::int64_t{number});
        cursor.SetField(field, std::move(text));
        cursor.Update();
    }
    std::string Stored(int number) {
        const store::Cursor& cursor =
            document_.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=" + std::to_string(number));
        return cursor.Eof() ? "none" : std::string(cursor.Text("msgmsg"));
    }
    MessageScreen Open(int number) { return MessageScreen(context_, {.key = number}); }
    MessageScreen OpenNew(int number) { return {context_, {.key = number, .isNew = true}}; }

    test::TempFolder folder_;
    Document document_;
    platform::ScriptedDialogs dialogs_;
    ScreenContext context_{document_, dialogs_};
};

TEST_F(MessageScreenTest, OfAMessage) {
    const MessageScreen screen = Open(1);
    EXPECT_EQ(screen.Caption(), "Messages Editor");
    EXPECT_EQ(screen.Label(), "Message #:");
    EXPECT_EQ(screen.PreviewCaption(), "Converted Message");
    EXPECT_TRUE(screen.TagsAllowed());
    EXPECT_EQ(screen.MostCharacters(), 0U);
    EXPECT_EQ(screen.Number(), 1);
    EXPECT_EQ(screen.Text(), "message 1");
}

TEST_F(MessageScreenTest, OfASystemMessage) {
    context_.currentTable = TableNum::SystemMessages;
    const MessageScreen screen = Open(33);
    EXPECT_EQ(screen.Caption(), "System Messages Editor");
    EXPECT_EQ(screen.Label(), "System Message #:");
    EXPECT_EQ(screen.PreviewCaption(), "Converted System Message");
    EXPECT_TRUE(screen.TagsAllowed());
    EXPECT_EQ(screen.Text(), "&gt;");
}

TEST_F(MessageScreenTest, OfTheDescriptionOfAProcessTable) {
    context_.currentTable = TableNum::ProcDesc;
    const MessageScreen screen = Open(3);
    EXPECT_EQ(screen.Caption(), "Process Table Descriptions Editor");
    EXPECT_EQ(screen.Label(), "Process Table #:");
    EXPECT_EQ(screen.PreviewCaption(), "");
    EXPECT_FALSE(screen.TagsAllowed());
    EXPECT_EQ(screen.MostCharacters(), 255U);
}

TEST_F(MessageScreenTest, OfAnotherTableIsAnErrorOfTheProgram) {
    context_.currentTable = TableNum::Flags;
    EXPECT_THROW(Open(0), std::logic_error);
}

TEST_F(MessageScreenTest, UpdateStoresWithLineEndMarkers) {
    MessageScreen screen = Open(1);
    screen.TypeMessage("one\r\ntwo\nthree");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(1), "one\u008Ctwo\u008Cthree");
    EXPECT_EQ(Open(1).Text(), "one\ntwo\nthree");
    EXPECT_EQ(document_.UndoName(), "edit message 1");
}

TEST_F(MessageScreenTest, UpdateOfASystemMessageStoresIt) {
    context_.currentTable = TableNum::SystemMessages;
    MessageScreen screen = Open(7);
    screen.TypeMessage("No such way.");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Open(7).Text(), "No such way.");
    EXPECT_EQ(document_.UndoName(), "edit system message 7");
}

TEST_F(MessageScreenTest, UpdateOfAProcessTableStoresItsDescription) {
    Add("procdesc", "pmsgnum", "pmsgmsg", 4, " ");
    context_.currentTable = TableNum::ProcDesc;
    MessageScreen screen = Open(4);
    EXPECT_EQ(screen.Text(), "");
    screen.TypeMessage("Fights &amp; falls");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Open(4).Text(), "Fights &amp; falls");
    EXPECT_EQ(document_.UndoName(), "edit description of process table 4");
}

TEST_F(MessageScreenTest, UpdateWithoutAKeystrokeStoresNothing) {
    MessageScreen screen = Open(1);
    EXPECT_FALSE(screen.Changed());
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(MessageScreenTest, UpdateOfANewRecordWithoutAKeystrokeAddsNone) {
    EXPECT_TRUE(OpenNew(5).Update());
    EXPECT_EQ(Stored(5), "none");
}

TEST_F(MessageScreenTest, UpdateOfANewRecordAddsIt) {
    MessageScreen screen = OpenNew(5);
    EXPECT_EQ(screen.Text(), "");
    screen.TypeMessage("Click.");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(5), "Click.");
    EXPECT_EQ(document_.UndoName(), "add message 5");
}

TEST_F(MessageScreenTest, ANewRecordWhoseKeystrokesLeftNothingHoldsABlank) {
    MessageScreen screen = OpenNew(5);
    screen.TypeMessage("");
    EXPECT_TRUE(screen.Update());
    EXPECT_EQ(Stored(5), " ");
}

TEST_F(MessageScreenTest, ExitLeavesTheRecordAsItWas) {
    {
        MessageScreen screen = Open(1);
        screen.TypeMessage("changed");
    }
    EXPECT_EQ(Stored(1), "message 1");
}

TEST_F(MessageScreenTest, UpdateIsOneStepOfUndo) {
    MessageScreen screen = Open(1);
    screen.TypeMessage("changed");
    screen.Update();
    document_.Undo();
    EXPECT_EQ(Stored(1), "message 1");
    document_.Redo();
    EXPECT_EQ(Stored(1), "changed");
}

TEST_F(MessageScreenTest, AFaultyTextIsRefusedWithItsWord) {
    MessageScreen screen = Open(1);
    screen.TypeMessage("Fish & chips");
    EXPECT_FALSE(screen.LeaveText());
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].text,
              "Word: 2 Cannot use & by itself. Use the &amp; or 'and' (no quotes) format instead. ");
    EXPECT_EQ(dialogs_.Boxes()[0].title, "Error");
}

TEST_F(MessageScreenTest, UpdateChecksAgain) {
    MessageScreen screen = Open(1);
    screen.TypeMessage("a<b");
    EXPECT_FALSE(screen.Update());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Word: 1 < without matching >. If not a botched tag, use &lt;");
    EXPECT_EQ(Stored(1), "message 1");
    EXPECT_EQ(screen.Text(), "a<b");
    EXPECT_TRUE(screen.Changed());
}

TEST_F(MessageScreenTest, TagsAreAllowedInMessages) {
    MessageScreen screen = Open(1);
    screen.TypeMessage("A <ink=2>red</ink> door");
    EXPECT_FALSE(screen.LeaveText());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Word: 2 Invalid Tag: </INK>");
    screen.TypeMessage("A <ink=2>red<ink> door");
    EXPECT_TRUE(screen.LeaveText());
}

TEST_F(MessageScreenTest, TagsAreNotAllowedInDescriptionsOfProcessTables) {
    context_.currentTable = TableNum::ProcDesc;
    MessageScreen screen = Open(3);
    screen.TypeMessage("The <bright>fight");
    EXPECT_FALSE(screen.LeaveText());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Word: 2 Tags not allowed in this Description");
}

TEST_F(MessageScreenTest, ADescriptionLongerThanItsFieldIsRefused) {
    context_.currentTable = TableNum::ProcDesc;
    MessageScreen screen = Open(3);
    std::string text;
    for (int i = 0; i < 128; ++i)
        text += "\u00E4 ";
    screen.TypeMessage(text);
    EXPECT_FALSE(screen.LeaveText());
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "A maximum of 255 characters is allowed.\nYou have 256");
    text.pop_back();
    screen.TypeMessage(text);
    EXPECT_TRUE(screen.Update());
}

TEST_F(MessageScreenTest, UpDown1GoesToTheNeighbouringNumberOverGaps) {
    MessageScreen screen = Open(1);
    EXPECT_TRUE(screen.Step(1));
    EXPECT_EQ(screen.Number(), 4);
    EXPECT_EQ(screen.Text(), "message 4");
    EXPECT_EQ(context_.currentEntry, 4);
    EXPECT_TRUE(screen.Step(-1));
    EXPECT_EQ(screen.Number(), 1);
    EXPECT_EQ(screen.Text(), "message 1");
}

TEST_F(MessageScreenTest, UpDown1StopsAtBothEnds) {
    MessageScreen last = Open(4);
    EXPECT_FALSE(last.Step(1));
    EXPECT_EQ(last.Number(), 4);
    MessageScreen first = Open(0);
    EXPECT_FALSE(first.Step(-1));
    EXPECT_EQ(first.Number(), 0);
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(MessageScreenTest, UpDown1StoresWhatWasChanged) {
    MessageScreen screen = Open(0);
    screen.TypeMessage("changed");
    EXPECT_TRUE(screen.Step(1));
    EXPECT_FALSE(screen.Changed());
    EXPECT_EQ(Stored(0), "changed");
    EXPECT_EQ(document_.UndoName(), "edit message 0");
}

TEST_F(MessageScreenTest, UpDown1WithoutAKeystrokeStoresNothing) {
    MessageScreen screen = Open(0);
    screen.Step(1);
    EXPECT_EQ(document_.UndoName(), std::nullopt);
}

TEST_F(MessageScreenTest, UpDown1StaysOnAFaultyText) {
    MessageScreen screen = Open(0);
    screen.TypeMessage("&nbsp;");
    EXPECT_FALSE(screen.Step(1));
    EXPECT_EQ(dialogs_.Boxes().at(0).text,
              "Word: 1 Invalid value for &nbsp; Only &amp;, &gt;, &sp;, and &lt; allowed. ");
    EXPECT_EQ(screen.Number(), 0);
    EXPECT_EQ(screen.Text(), "&nbsp;");
    EXPECT_EQ(Stored(0), "message 0");
}

TEST_F(MessageScreenTest, UpDown1StaysOnATextThatWasFaultyBefore) {
    Add("messages", "msgnum", "msgmsg", 2, "a>b");
    MessageScreen screen = Open(2);
    EXPECT_FALSE(screen.Step(1));
    EXPECT_EQ(dialogs_.Boxes().at(0).text, "Word: 1 > without matching <. If not a botched tag, use &gt;");
}

TEST_F(MessageScreenTest, UpDown1AddsANewRecordThatWasChanged) {
    MessageScreen screen = OpenNew(5);
    screen.TypeMessage("Click.");
    EXPECT_TRUE(screen.Step(-1));
    EXPECT_EQ(Stored(5), "Click.");
    EXPECT_TRUE(screen.Step(1));
    EXPECT_EQ(screen.Text(), "Click.");
}

TEST_F(MessageScreenTest, UpDown1DropsANewRecordWithoutAKeystroke) {
    MessageScreen screen = OpenNew(5);
    EXPECT_TRUE(screen.Step(-1));
    EXPECT_EQ(Stored(5), "none");
}

TEST_F(MessageScreenTest, UpDown1NeverReachesTheProcessTablesThatCannotBeEdited) {
    context_.currentTable = TableNum::ProcDesc;
    Add("procdesc", "pmsgnum", "pmsgmsg", 3, "Fights");
    MessageScreen screen = Open(3);
    EXPECT_FALSE(screen.Step(-1));
    EXPECT_EQ(screen.Number(), 3);
}

}  // namespace
}  // namespace fabula::authoring
