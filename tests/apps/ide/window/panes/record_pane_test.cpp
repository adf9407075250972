#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTableView>
#include <QTextEdit>
#include <algorithm>

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

TEST_F(RecordPaneTest, AFaultIsToldWhenTheRowIsLeftAndNotWhenAnotherWindowIsChosen) {
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    window_.Part<QPlainTextEdit>("line").setFocus();
    Replace("XYZZY");
    CloseOffers();
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::processEvents();
    EXPECT_TRUE(window_.dialogs.Boxes().empty());
    QApplication::setActiveWindow(&window_.Window());
    QApplication::processEvents();
    EXPECT_EQ(Focus(), "line");
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), "XYZZY");
    window_.ChooseNode("Messages");
    ASSERT_FALSE(window_.dialogs.Boxes().empty());
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "XYZZY is an invalid Condition/Action");
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

TEST_F(RecordPaneTest, EscapeAsksBeforeItTakesBackWhatWasTypedAndThenGoesBackToTheRow) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    window_.dialogs.AnswerLeaving(platform::Leaving::KeepEditing);
    Press(Qt::Key_Escape);
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "What was changed here is not stored yet.");
    EXPECT_EQ(Shown(), "The lamp burns.");
    window_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Shown(), "The lamp is lit.");
    EXPECT_EQ(Focus(), "text");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focus(), "Grid");
    EXPECT_EQ(UndoText(), "&Undo");
}

TEST_F(RecordPaneTest, EscapeStoresWhatWasTypedWhenTheAuthorWantsThat) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    Press(Qt::Key_Return);
    Replace("The lamp burns.");
    window_.dialogs.AnswerLeaving(platform::Leaving::Store);
    Press(Qt::Key_Escape);
    QApplication::processEvents();  // the pane closes its dialog once that is no longer at work
    EXPECT_EQ(Message(0), "The lamp burns.");
    EXPECT_EQ(Focus(), "Grid");
}

TEST_F(RecordPaneTest, EscapeTakesBackAnExitThatIsTyped) {
    window_.GoToTable("Locations");
    window_.Part<QComboBox>("exitWord").setFocus();
    window_.Type("NORTH The loft");
    EXPECT_NE(window_.Part<QLabel>("whatAddDoes").text(), "");
    window_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    Press(Qt::Key_Escape);
    EXPECT_EQ(window_.Part<QComboBox>("exitWord").currentText(), "");
    EXPECT_EQ(window_.Part<QLabel>("whatAddDoes").text(), "");
    window_.GoToTable("Messages");
    EXPECT_EQ(UndoText(), "&Undo");
}

TEST_F(RecordPaneTest, AnotherRowStoresAnExitThatIsTypedWithThePlaceThatItMakes) {
    window_.GoToTable("Locations");
    window_.Part<QComboBox>("exitWord").setFocus();
    window_.Type("NORTH The loft");
    window_.GoToRow("1");
    EXPECT_EQ(window_.Stored(TableNum::Locations, "exits", "locnum=0"), "NORTH 3");
    EXPECT_EQ(window_.Stored(TableNum::Locations, "locshortdesc", "locnum=3"), "The loft");
    EXPECT_EQ(UndoText(), "&Undo edit location 0 with new location 3");
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

/// What all the fields of the pane show, in their order.
QStringList ShownIn(const QWidget& pane) {
    QStringList shown;
    for (const auto* part : pane.findChildren<QWidget*>()) {
        if (part->window() != pane.window()) continue;  // a list that opens
        if (const auto* window = qobject_cast<const QDialog*>(part)) shown << window->windowTitle();
        if (const auto* label = qobject_cast<const QLabel*>(part)) shown << label->text();
        if (const auto* line = qobject_cast<const QLineEdit*>(part)) shown << line->text();
        if (const auto* text = qobject_cast<const QPlainTextEdit*>(part)) shown << text->toPlainText();
        if (const auto* text = qobject_cast<const QTextEdit*>(part)) shown << text->toPlainText();
        if (const auto* list = qobject_cast<const QComboBox*>(part)) shown << list->currentText();
        if (const auto* tick = qobject_cast<const QAbstractButton*>(part))
            shown << (tick->isChecked() ? "on" : "off");
        if (const auto* view = qobject_cast<const QAbstractItemView*>(part)) {
            for (int row = 0; view->model() && row < view->model()->rowCount(); ++row) {
                for (int column = 0; column < view->model()->columnCount(); ++column)
                    shown << view->model()->index(row, column).data().toString();
            }
        }
        shown << (part->isEnabled() ? "+" : "-");
    }
    return shown;
}

TEST_F(RecordPaneTest, ShowsTheNextRecordAsIfItHadBeenMadeForIt) {
    window_.Open(GameBuilder(AdventureKind::Fabula)
                     .Graphics()
                     .Word("NORTH", 2, 2)
                     .Word("LAMP", 60, 2)
                     .Word("BOX", 61, 2)
                     .Word("RED", 40, 3)
                     .Location(0, "The hall.\u008CIt is wide.", "Hall")
                     .Location(1, std::string(300, 'x') + " <faulty")
                     .Location(2, "The yard.", "Yard")
                     .Exit(0, 2, 1)
                     .Exit(1, 2, 2)
                     .PictureOf(0, "hall.png")
                     .Message(0, "The lamp is lit.")
                     .Message(1, "It is\u008Cdark.")
                     .SystemMessage(7, "What now?")
                     .Object(0, {.description = "a red lamp", .place = 1, .noun = "LAMP"})
                     .Object(1, {.description = "a box", .place = 254, .noun = "BOX"})
                     .Object(2, {.description = "nothing", .place = 252})
                     .Entry(0, "_", "_", "AT 0 MESSAGE 1")
                     .Entry(0, "_", "LAMP", "DESC")
                     .Entry(0, "NORTH", "BOX", "SET 62 LET 63 5"));
    for (const char* table :
         {"Locations", "Objects", "Messages", "System Messages", "Response (P0)", "Flags"}) {
        window_.GoToTable(table);
        if (table == std::string_view("Flags")) window_.GoToRow("62");
        for (int pane = 0; pane < 4 && Focus() != "Grid"; ++pane)
            Press(Qt::Key_F6);
        auto& grid = window_.Part<QTableView>("Grid");
        const int last = std::min(grid.model()->rowCount() - 1, grid.currentIndex().row() + 4);
        EXPECT_GT(last, grid.currentIndex().row()) << table;
        for (const int key : {Qt::Key_Down, Qt::Key_Up}) {
            while (grid.currentIndex().row() != (key == Qt::Key_Down ? last : std::max(last - 4, 0))) {
                const QDialog* const before = Pane().findChild<QDialog*>();
                Press(key);
                EXPECT_EQ(Pane().findChild<QDialog*>(), before) << table << grid.currentIndex().row();
                const QStringList gone = ShownIn(Pane());
                Press(Qt::Key_F9);
                Press(Qt::Key_F9);
                EXPECT_EQ(ShownIn(Pane()), gone) << table << grid.currentIndex().row();
            }
        }
    }
}

TEST_F(RecordPaneTest, ARecordThatWasTouchedIsNotGoneOnWith) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    const QPointer<QDialog> touched = Pane().findChild<QDialog*>();
    Press(Qt::Key_Return);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focus(), "Grid");
    Press(Qt::Key_Down);
    EXPECT_TRUE(touched.isNull());
    EXPECT_EQ(Shown(), "It is dark.");
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
    window_.dialogs.AnswerLeaving(platform::Leaving::Discard);
    Press(Qt::Key_Escape);
    EXPECT_EQ(window_.Part<QPlainTextEdit>("line").toPlainText(), before);
    window_.GoToTable("Messages");
    EXPECT_EQ(Message(2), "no record");
}

}  // namespace
}  // namespace fabula::test
