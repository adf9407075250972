// The list of findings in the authoring tool, by keys and clicks.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

#include "ide/opened_window.h"
#include "ide/window/panes/findings_pane.h"
#include "qt/look/theme.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::TableNum;

/// In both themes.
class Findings : public testing::TestWithParam<qt::Theme> {
  protected:
    Findings() {
        qt::ApplyTheme(GetParam());
        GameBuilder game;
        game.Message(0, "You lower the wick.").Message(1, "It is dark.").Message(2, "The sea is calm.");
        game.Entry(0, "DO", "_", "MESSAGE 0 DONE");
        window_.Open(game);
        window_.ChooseNode("Vocabulary");
    }

    QTreeView& List() { return window_.Part<QTreeView>("FindingsList"); }
    QComboBox& Kinds() { return window_.Part<QComboBox>("FindingsKind"); }
    std::string Title() { return qt::FromQt(window_.Part<QLabel>("FindingsTitle").text()); }
    std::string Remark() { return qt::FromQt(window_.Part<QLabel>("FindingsRemark").text()); }
    std::string Cell(int row, int column) {
        return qt::FromQt(List().model()->index(row, column).data().toString());
    }
    int Rows() { return List().model()->rowCount(); }
    void Open() { window_.Press(Qt::Key_F7, Qt::ShiftModifier); }
    /// Chooses a kind as its name begins.
    void ChooseKind(const QString& kind) {
        const int index = Kinds().findText(kind, Qt::MatchStartsWith);
        ASSERT_GE(index, 0) << qt::FromQt(kind);
        Kinds().setCurrentIndex(index);
    }
    QAction& InMenu(const char* text) {
        for (QAction* action : window_.Part<QPushButton>("FindingsSwitch").menu()->actions()) {
            if (action->text() == text) return *action;
        }
        throw std::logic_error(text);
    }

    OpenedWindow window_;
};

TEST_P(Findings, ShiftF7ListsThemAndEnterGoesThereAndAltLeftBack) {
    EXPECT_FALSE(List().isVisible());
    Open();
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(Title(), std::to_string(Rows()) + " findings");
    ChooseKind("message-unused");
    ASSERT_EQ(Rows(), 2);
    EXPECT_EQ(Cell(1, 0), "message-unused");
    EXPECT_EQ(Cell(1, 1), "message 2: The sea is calm.");
    EXPECT_EQ(Cell(1, 2), "No rule prints message 2.");
    List().setFocus();
    List().setCurrentIndex(List().model()->index(0, 0));
    window_.Press(Qt::Key_Down);
    window_.Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(window_.Logic().CurrentRow(), 2);
    window_.Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Vocabulary);
}

TEST_P(Findings, ADoubleClickGoesThere) {
    Open();
    ChooseKind("message-unused");
    const QRect line = List().visualRect(List().model()->index(1, 2));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, line.topLeft() + QPoint(4, 4));
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, line.topLeft() + QPoint(4, 4));
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(window_.Logic().CurrentRow(), 2);
}

TEST_P(Findings, TheListComesBackWhereItWasLeft) {
    Open();
    ChooseKind("message-unused");
    List().setCurrentIndex(List().model()->index(1, 0));
    List().setFocus();
    window_.Press(Qt::Key_Return);
    EXPECT_FALSE(List().hasFocus());
    Open();
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(List().currentIndex().row(), 1);
}

TEST_P(Findings, EscGoesBackToTheRowsAndF6GoesThroughThePanes) {
    Open();
    window_.Press(Qt::Key_Escape);
    EXPECT_TRUE(window_.Part<QWidget>("Grid").hasFocus());
    EXPECT_TRUE(List().isVisible());
    window_.Press(Qt::Key_F6);
    EXPECT_TRUE(List().hasFocus());
}

TEST_P(Findings, TabGoesFromTheKindsToTheSwitchesAndTheList) {
    Open();
    Kinds().setFocus();
    window_.Press(Qt::Key_Tab);
    EXPECT_TRUE(window_.Part<QPushButton>("FindingsSwitch").hasFocus());
    window_.Press(Qt::Key_Tab);
    EXPECT_TRUE(List().hasFocus());
}

TEST_P(Findings, AreLookedForAgainOnceTheAuthorRests) {
    Open();
    ChooseKind("message-unused");
    authoring::Document& document = window_.Logic().CurrentContext().document;
    authoring::Change change(document, "delete message 2");
    document.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=2").Delete();
    change.Commit();
    window_.ChooseNode("Messages");
    EXPECT_EQ(Rows(), 2);
    window_.timers.Advance(ide::FindingsPane::kRest - std::chrono::milliseconds(1));
    window_.ChooseNode("Objects");
    window_.timers.Advance(ide::FindingsPane::kRest - std::chrono::milliseconds(1));
    EXPECT_EQ(Rows(), 2) << "the author was still on the way";
    window_.timers.Advance(std::chrono::milliseconds(1));
    EXPECT_EQ(Rows(), 1);
    EXPECT_EQ(window_.Part<QComboBox>("FindingsKind").currentText(), "message-unused (1)");
}

TEST_P(Findings, AreNotLookedForWhileThePaneIsHidden) {
    Open();
    window_.Action("FindingsShown").trigger();
    const int rows = Rows();
    authoring::Document& document = window_.Logic().CurrentContext().document;
    authoring::Change change(document, "delete message 2");
    document.Adventure().OpenTable(TableNum::Messages, "def", "msgnum=2").Delete();
    change.Commit();
    window_.ChooseNode("Messages");
    window_.timers.Advance(ide::FindingsPane::kRest * 2);
    EXPECT_EQ(Rows(), rows);
    Open();
    EXPECT_EQ(Rows(), rows - 1);
}

TEST_P(Findings, AKindIsSwitchedOffAndOnAgain) {
    Open();
    const int all = Rows();
    ChooseKind("message-unused");
    window_.dialogs.AnswerText("they come later");
    InMenu("Switch Off This Kind in This Adventure...").trigger();
    EXPECT_EQ(window_.dialogs.TextQuestions().back().title, "Switch Off message-unused");
    EXPECT_EQ(Title(), "message-unused: 0 of " + std::to_string(all - 2) + " findings");
    EXPECT_EQ(Remark(), "no rule prints a message - switched off: they come later");
    EXPECT_EQ(Kinds().currentText(), "message-unused (switched off)");
    EXPECT_EQ(Cell(0, 0), "message-unused (switched off)");
    EXPECT_EQ(Cell(0, 2), "No rule prints message 1. (they come later)");
    EXPECT_TRUE(List().model()->index(0, 0).data(Qt::FontRole).value<QFont>().italic());
    EXPECT_FALSE(InMenu("Switch Off This Kind in This Adventure...").isEnabled());
    ChooseKind("All kinds");
    EXPECT_EQ(Rows(), all - 2);
    EXPECT_EQ(Remark(), "1 kind is switched off.");
    ChooseKind("message-unused");
    InMenu("Switch On Again").trigger();
    EXPECT_EQ(Kinds().currentText(), "message-unused (2)");
    EXPECT_EQ(Title(), "message-unused: 2 of " + std::to_string(all) + " findings");
}

TEST_P(Findings, WhatWasSwitchedOffComesBackByUndo) {
    Open();
    ChooseKind("message-unused");
    window_.dialogs.AnswerText("");
    InMenu("Switch Off at This Record...").trigger();
    EXPECT_EQ(Kinds().currentText(), "message-unused (1, 1 switched off)");
    EXPECT_EQ(Rows(), 2);
    window_.Press(Qt::Key_Z, Qt::ControlModifier);
    window_.timers.Advance(ide::FindingsPane::kRest);
    EXPECT_EQ(Kinds().currentText(), "message-unused (2)");
}

TEST_P(Findings, ThePaneTakesThePlaceOfTheUses) {
    window_.Press(Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_TRUE(window_.Part<QWidget>("UsesPane").isVisible());
    Open();
    EXPECT_FALSE(window_.Part<QWidget>("UsesPane").isVisible());
    EXPECT_TRUE(window_.Part<QWidget>("FindingsPane").isVisible());
}

TEST_P(Findings, ThePaneIsThereAgainTheNextTime) {
    Open();
    window_.Restart();
    EXPECT_TRUE(window_.Part<QWidget>("FindingsPane").isVisible());
    EXPECT_GT(Rows(), 0);
}

TEST_P(Findings, OfAnotherAdventureAreShownAtOnce) {
    Open();
    GameBuilder other;
    other.Message(7, "Another one.");
    const auto file = window_.folder / "other.fbd";
    other.Write(file);
    window_.Logic().OpenFile(file);
    window_.Logic().Refresh();
    window_.ChooseNode("Messages");
    ChooseKind("message-unused");
    EXPECT_EQ(Cell(0, 1), "message 7: Another one.");
}

TEST_P(Findings, AnEmptyListSaysSo) {
    Open();
    const auto kinds = [this] {
        std::vector<QString> codes;
        for (int i = 1; i < Kinds().count(); ++i)
            codes.push_back(Kinds().itemData(i).toString());
        return codes;
    }();
    for (const QString& kind : kinds) {
        ChooseKind(kind);
        window_.dialogs.AnswerText("");
        InMenu("Switch Off This Kind in This Adventure...").trigger();
    }
    List().setFocus();
    ChooseKind("All kinds");
    EXPECT_EQ(Title(), "0 findings");
    EXPECT_FALSE(List().isVisible());
    EXPECT_EQ(window_.Part<QLabel>("FindingsNone").text(), "Nothing was found.");
    EXPECT_TRUE(window_.Part<QLabel>("FindingsNone").isVisible());
    EXPECT_TRUE(Kinds().hasFocus());
    window_.Press(Qt::Key_Escape);
    Open();
    EXPECT_TRUE(Kinds().hasFocus());
}

TEST_P(Findings, ALongSentenceIsScrolledTo) {
    window_.Window().resize(400, 400);
    Open();
    int needed = 0;
    for (int row = 0; row < Rows(); ++row)
        needed = std::max(needed, List().fontMetrics().horizontalAdvance(qt::ToQt(Cell(row, 2))));
    EXPECT_GT(List().columnWidth(2), needed);
    EXPECT_GT(List().columnWidth(0) + List().columnWidth(1) + List().columnWidth(2),
              List().viewport()->width());
}

TEST_P(Findings, WhatWasTypedBesideTheRowsIsStoredBeforeTheJump) {
    window_.ChooseNode("Messages");
    window_.Press(Qt::Key_F9);
    Open();
    ChooseKind("message-unused");
    window_.Part<QPlainTextEdit>("text").setPlainText("You raise the wick.");
    List().setFocus();
    List().setCurrentIndex(List().model()->index(1, 0));
    EXPECT_EQ(window_.Cell(0, 1), "You lower the wick.");
    window_.Press(Qt::Key_Return);
    EXPECT_EQ(window_.Cell(0, 1), "You raise the wick.");
    EXPECT_EQ(window_.Logic().CurrentRow(), 2);
}

INSTANTIATE_TEST_SUITE_P(Themes, Findings, testing::Values(qt::Theme::Light, qt::Theme::Dark));

}  // namespace
}  // namespace fabula::test
