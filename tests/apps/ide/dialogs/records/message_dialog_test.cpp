#include "ide/dialogs/records/message_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "support/active_window.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/template_adventure.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

using authoring::Document;
using store::TableNum;

class MessageDialogTest : public testing::Test {
  protected:
    MessageDialogTest() {
        MakeAdventure(folder_ / "game.fbd");
        document_.emplace(folder_ / "game.fbd");
        context_.emplace(authoring::ScreenContext{*document_, dialogs_});
        context_->currentTable = TableNum::SystemMessages;
        screen_.emplace(*context_, authoring::ScreenKey{.key = 7});
        dialog_.emplace(*screen_);
        dialog_->show();
        dialog_->activateWindow();
        EXPECT_TRUE(test::BecomesActive(&*dialog_));
    }

    void Type(const char* text) {
        Field()->selectAll();
        QTest::keyClicks(Field(), text);
    }
    QPlainTextEdit* Field() { return dialog_->findChild<QPlainTextEdit*>("text"); }
    QString Number() { return dialog_->findChild<QLabel*>("number")->text(); }
    void Click(const char* name) {
        QTest::mouseClick(dialog_->findChild<QAbstractButton*>(name), Qt::LeftButton);
    }
    std::string Stored(int number) {
        return std::string(
            document_->Adventure()
                .OpenTable(TableNum::SystemMessages, "def", "smsgnum=" + std::to_string(number))
                .Text("smsgmsg"));
    }

    TempFolder folder_;
    platform::ScriptedDialogs dialogs_;
    std::optional<Document> document_;
    std::optional<authoring::ScreenContext> context_;
    std::optional<authoring::MessageScreen> screen_;
    std::optional<ide::MessageDialog> dialog_;
};

TEST_F(MessageDialogTest, OpensOnTheTextWithTheKeyboardInIt) {
    EXPECT_EQ(dialog_->windowTitle(), "System Messages Editor");
    EXPECT_EQ(Number(), "System Message #: 7");
    EXPECT_EQ(QApplication::focusWidget(), Field());
}

TEST_F(MessageDialogTest, ChecksTheTextWhenItIsLeft) {
    Type("<QUARK>");
    QTest::keyClick(Field(), Qt::Key_Backtab);
    QApplication::processEvents();
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), Field());
    EXPECT_EQ(Field()->textCursor().selectedText(), "<QUARK>");
}

TEST_F(MessageDialogTest, ChecksNothingOnTheWayToExit) {
    Type("<QUARK>");
    dialogs_.AnswerLeaving(platform::Leaving::Discard);
    Click("exit");
    QApplication::processEvents();
    EXPECT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(MessageDialogTest, CtrlReturnStoresAndCloses) {
    Type("No such way.");
    QTest::keyClick(Field(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Stored(7), "No such way.");
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(MessageDialogTest, ARefusedTextKeepsTheKeyboardWithItsFaultChosen) {
    Type("one & two");
    Click("update");
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), Field());
    EXPECT_EQ(Field()->textCursor().selectedText(), "&");
}

TEST_F(MessageDialogTest, ControlCharactersAreDroppedFromWhatIsPasted) {
    QApplication::clipboard()->setText(QString("\x01red\x1b[31m\tand\nmore") + QChar(0));
    Field()->selectAll();
    Field()->paste();
    EXPECT_EQ(Field()->toPlainText(), "red[31m\tand\nmore");
}

TEST_F(MessageDialogTest, EscapeWithoutAChangeAsksNothing) {
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(MessageDialogTest, EscapeStoresTheTextWhenTheAuthorWantsThat) {
    Type("No such way.");
    dialogs_.AnswerLeaving(platform::Leaving::Store);
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(Stored(7), "No such way.");
}

TEST_F(MessageDialogTest, EscapeStoresNothingThatTheAuthorDiscards) {
    const std::string before = Stored(7);
    Type("changed");
    dialogs_.AnswerLeaving(platform::Leaving::Discard);
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(Stored(7), before);
}

TEST_F(MessageDialogTest, TheArrowsMoveAndStoreWhatWasChanged) {
    Type("changed");
    Click("next");
    EXPECT_EQ(Number(), "System Message #: 8");
    EXPECT_EQ(Stored(7), "changed");
    QTest::keyClick(Field(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Field()->toPlainText(), "changed");
}

}  // namespace
}  // namespace fabula::test
