#include "ide/text_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "platform/scripted_dialogs.h"
#include "support/temp_folder.h"
#include "support/template_adventure.h"

namespace fabula::test {
namespace {

using authoring::Document;
using store::TableNum;

class TextDialogTest : public testing::Test {
  protected:
    TextDialogTest() {
        MakeAdventure(folder_ / "game.fbd");
        document_.emplace(folder_ / "game.fbd");
        session_.emplace(authoring::Session{*document_, dialogs_});
        session_->currentTable = TableNum::SystemMessages;
        screen_.emplace(*session_, authoring::ScreenKey{.key = 7});
        editing_.emplace(document_->Adventure());
        dialog_.emplace(*screen_, *editing_, dialogs_);
        dialog_->show();
        dialog_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*dialog_));
    }

    void Type(const char* text) {
        Field()->selectAll();
        QTest::keyClicks(Field(), text);
    }
    QPlainTextEdit* Field() { return dialog_->findChild<QPlainTextEdit*>("txtMessage"); }
    QString Number() { return dialog_->findChild<QLabel*>("lblNumber")->text(); }
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
    std::optional<authoring::Session> session_;
    std::optional<authoring::frmBothMessages> screen_;
    std::optional<authoring::TextEditing> editing_;
    std::optional<ide::TextDialog> dialog_;
};

TEST_F(TextDialogTest, OpensOnTheTextWithTheKeyboardInIt) {
    EXPECT_EQ(dialog_->windowTitle(), "System Messages Editor");
    EXPECT_EQ(Number(), "System Message #: 7");
    EXPECT_EQ(QApplication::focusWidget(), Field());
}

TEST_F(TextDialogTest, ChecksTheTextWhenItIsLeft) {
    Type("<QUARK>");
    QTest::keyClick(Field(), Qt::Key_Backtab);
    QApplication::processEvents();
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), Field());
    EXPECT_EQ(Field()->textCursor().selectedText(), "<QUARK>");
}

TEST_F(TextDialogTest, ChecksNothingOnTheWayToExit) {
    Type("<QUARK>");
    Click("cmdExit");
    QApplication::processEvents();
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(TextDialogTest, CtrlReturnStoresAndCloses) {
    Type("No such way.");
    QTest::keyClick(Field(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Stored(7), "No such way.");
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
}

TEST_F(TextDialogTest, ARefusedTextKeepsTheKeyboardWithItsFaultChosen) {
    Type("one & two");
    Click("cmdUpdate");
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), Field());
    EXPECT_EQ(Field()->textCursor().selectedText(), "&");
}

TEST_F(TextDialogTest, EscapeStoresNothing) {
    const std::string before = Stored(7);
    Type("changed");
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(Stored(7), before);
}

TEST_F(TextDialogTest, TheArrowsMoveAndStoreWhatWasChanged) {
    Type("changed");
    Click("UpDown1Next");
    EXPECT_EQ(Number(), "System Message #: 8");
    EXPECT_EQ(Stored(7), "changed");
    QTest::keyClick(Field(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Field()->toPlainText(), "changed");
}

}  // namespace
}  // namespace fabula::test
