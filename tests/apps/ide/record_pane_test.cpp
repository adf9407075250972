#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTableView>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "ide/editors/cond_act_edit.h"
#include "qt/strings.h"

// The record beside the rows, by keys alone.

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::TableNum;

class RecordPaneTest : public testing::Test {
  protected:
    RecordPaneTest() { window_.Press(Qt::Key_F9); }

    static std::string Focus() { return qt::FromQt(QApplication::focusWidget()->objectName()); }
    std::string Message(int number) {
        return window_.Stored(TableNum::Messages, "msgmsg", "msgnum=" + std::to_string(number));
    }
    std::string UndoText() { return qt::FromQt(window_.Action("Undo").text()); }
    QWidget& Pane() { return window_.Part<QWidget>("RecordPane"); }
    std::string Shown() { return qt::FromQt(window_.Part<QPlainTextEdit>("text").toPlainText()); }
    /// Types in place of what a field holds.
    void Replace(const QString& text) {
        window_.Press(Qt::Key_A, Qt::ControlModifier);
        window_.Type(text);
        QApplication::processEvents();
    }
    void CloseOffers() {
        if (!static_cast<ide::CondActEdit&>(window_.Part<QPlainTextEdit>("line")).Offered().isEmpty())
            Press(Qt::Key_Escape);
    }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        window_.Press(key, modifiers);
        QApplication::processEvents();
    }

    DrivenWindow window_{AdventureKind::Fabula};
};

TEST_F(RecordPaneTest, FollowsTheRows) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    EXPECT_EQ(Shown(), "The lamp is lit.");
    Press(Qt::Key_Down);
    EXPECT_EQ(Shown(), "It is dark.");
    EXPECT_EQ(Focus(), "Grid");
}

TEST_F(RecordPaneTest, EnterGoesIntoTheRecordAndAnotherRowStoresIt) {
    const std::size_t before = window_.dialogs.Boxes().size();
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "text");
    Replace("The lamp burns.");
    EXPECT_EQ(Message(0), "The lamp is lit.");
    window_.GoToRow("1");
    EXPECT_EQ(Message(0), "The lamp burns.");
    EXPECT_EQ(UndoText(), "&Undo edit message 0");
    EXPECT_EQ(window_.Cell(0, 1), "The lamp burns.");
    EXPECT_EQ(Shown(), "It is dark.");
    EXPECT_EQ(window_.dialogs.Boxes().size(), before);
}

TEST_F(RecordPaneTest, AnotherTableStoresIt) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    window_.GoToTable("Objects");
    EXPECT_EQ(Message(0), "The lamp burns.");
}

TEST_F(RecordPaneTest, AnotherWindowStoresItAndTheFieldKeepsTheKeyboard) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    Press(Qt::Key_Left);
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    EXPECT_EQ(Message(0), "The lamp burns.");
    QApplication::setActiveWindow(&window_.Window());
    QApplication::processEvents();
    EXPECT_EQ(Focus(), "text");
    window_.Type("!");
    EXPECT_EQ(Shown(), "The lamp burns!.");
}

TEST_F(RecordPaneTest, AFaultIsToldWhenAnotherWindowIsChosen) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    window_.Part<QPlainTextEdit>("line").setFocus();
    Replace("XYZZY");
    CloseOffers();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    ASSERT_FALSE(window_.dialogs.Boxes().empty());
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "XYZZY is an invalid Condition/Action");
    QApplication::setActiveWindow(&window_.Window());
    QApplication::processEvents();
    EXPECT_EQ(Focus(), "line");
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), "XYZZY");
}

TEST_F(RecordPaneTest, AWindowOfItsOwnDoesNotStoreIt) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    QWidget own(&window_.Window(), Qt::Dialog);
    own.show();
    QApplication::setActiveWindow(&own);
    QApplication::processEvents();
    EXPECT_EQ(Message(0), "The lamp is lit.");
}

TEST_F(RecordPaneTest, CtrlEnterStoresItAndGoesBackToTheRow) {
    window_.GoToTable("Messages");
    window_.GoToRow("1");
    Press(Qt::Key_Return);
    Replace("It is very dark.");
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Message(1), "It is very dark.");
    EXPECT_EQ(Focus(), "Grid");
    EXPECT_EQ(window_.Part<QTableView>("Grid").currentIndex().row(), 1);
    EXPECT_EQ(Shown(), "It is very dark.");
}

TEST_F(RecordPaneTest, EscapeTakesBackWhatWasTypedAndThenGoesBackToTheRow) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Shown(), "The lamp is lit.");
    EXPECT_EQ(Focus(), "text");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focus(), "Grid");
    EXPECT_EQ(UndoText(), "&Undo");
}

TEST_F(RecordPaneTest, AFaultKeepsTheKeyboardAndTheRow) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    auto& grid = window_.Part<QTableView>("Grid");
    auto& line = window_.Part<QPlainTextEdit>("line");
    line.setFocus();
    Replace("XYZZY");
    window_.Action("Verify").trigger();
    QApplication::processEvents();
    EXPECT_EQ(Focus(), "line");
    EXPECT_EQ(grid.currentIndex().row(), 0);
    ASSERT_FALSE(window_.dialogs.Boxes().empty());
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "XYZZY is an invalid Condition/Action");
    EXPECT_EQ(window_.Stored(TableNum::ProcessTables, "condacts", "canum=0"), "DESC");
    Replace("DESC DONE");
    CloseOffers();
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(window_.Stored(TableNum::ProcessTables, "condacts", "canum=0"), "DESC DONE");
}

TEST_F(RecordPaneTest, ARuleShowsOneConditionOrActionToALine) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    window_.Part<QPlainTextEdit>("line").setFocus();
    Replace("AT 0 MESSAGE 1 ");
    const auto& explained = window_.Part<QListWidget>("explained");
    ASSERT_EQ(explained.count(), 2);
    EXPECT_EQ(qt::FromQt(explained.item(0)->text()), "AT 0    The hall");
    EXPECT_EQ(qt::FromQt(explained.item(1)->text()), "MESSAGE 1    \u201CIt is dark.\u201D");
    EXPECT_NE(explained.item(0)->foreground(), explained.item(1)->foreground());
}

TEST_F(RecordPaneTest, StandsThereForPlacesObjectsAndFlagsToo) {
    for (const char* table : {"Locations", "Objects", "Flags"}) {
        window_.GoToTable(table);
        if (std::string(table) == "Flags") window_.GoToRow("60");
        EXPECT_TRUE(Pane().isVisible()) << table;
    }
    window_.GoToTable("Pictures");
    EXPECT_FALSE(Pane().isVisible());
}

TEST_F(RecordPaneTest, StandsThereForWordsToo) {
    window_.GoToTable("Vocabulary");
    window_.GoToRow("60");
    ASSERT_TRUE(Pane().isVisible());
    Press(Qt::Key_Return);
    EXPECT_EQ(Focus(), "word");
    Replace("LAMPS");
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(window_.Stored(TableNum::Vocabulary, "word", "vocnum=60 and voctypen=2"), "LAMPS");
    EXPECT_TRUE(Pane().isVisible());
}

TEST_F(RecordPaneTest, IsRememberedAndCanBeLeftOutForTheDialogs) {
    window_.Restart();
    window_.GoToTable("Messages");
    EXPECT_TRUE(Pane().isVisible());
    window_.Press(Qt::Key_F9);
    EXPECT_FALSE(Pane().isVisible());
    window_.GoToRow("0");
    EXPECT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {{"text", "By the dialog."}}));
    EXPECT_EQ(Message(0), "By the dialog.");
}

TEST_F(RecordPaneTest, ProcessTablesShowNamesByF8) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    auto& line = window_.Part<QPlainTextEdit>("line");
    line.setFocus();
    line.setPlainText("MESSAGE 1 DONE");
    Press(Qt::Key_Return, Qt::ControlModifier);
    Press(Qt::Key_F8);
    EXPECT_EQ(window_.CellOf("*", "CondActs"), "MESSAGE 1 \u201CIt is dark.\u201D  \u00B7  DONE");
    Press(Qt::Key_F8);
    EXPECT_EQ(window_.CellOf("*", "CondActs"), "MESSAGE 1 DONE");
}

TEST_F(RecordPaneTest, ANewTextInALineBecomesAMessageWhenTheRowIsLeft) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    window_.Part<QPlainTextEdit>("line").setFocus();
    Replace("MESSAGE \"It snows.");
    Press(Qt::Key_Tab);
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), "MESSAGE 2 ");
    EXPECT_EQ(Message(2), "no record");
    CloseOffers();
    window_.GoToTable("Messages");
    EXPECT_EQ(Message(2), "It snows.");
    EXPECT_EQ(UndoText().substr(0, 24), "&Undo edit process entry");
    window_.Action("Undo").trigger();
    EXPECT_EQ(Message(2), "no record");
}

TEST_F(RecordPaneTest, EscapeTakesANewTextInALineBack) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    auto* line = &window_.Part<QPlainTextEdit>("line");
    const QString before = line->toPlainText();
    line->setFocus();
    Replace("MESSAGE \"It snows.");
    Press(Qt::Key_Tab);
    CloseOffers();
    Press(Qt::Key_Escape);
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), before);
    window_.GoToTable("Messages");
    EXPECT_EQ(Message(2), "no record");
}

}  // namespace
}  // namespace fabula::test
