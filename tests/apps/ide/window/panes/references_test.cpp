// Uses, jumps, find and replace over all tables and new numbers, by keys and clicks.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <functional>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/dialogs/records/quick_list_dialog.h"
#include "ide/dialogs/tables/renumber_dialog.h"
#include "ide/dialogs/tables/replace_dialog.h"
#include "ide/foreign_words.h"
#include "ide/opened_window.h"
#include "qt/look/theme.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::TableNum;

/// In both themes.
class References : public testing::TestWithParam<qt::Theme> {
  protected:
    References() {
        qt::ApplyTheme(GetParam());
        GameBuilder game;
        game.Message(0, "You lower the wick.").Message(1, "It is dark.");
        game.Entry(0, "DO", "_", "MESSAGE 0 DONE").Entry(0, "DO", "_", "MESSAGE 1");
        game.Object(0, {.description = "a lamp", .place = 0});
        window_.Open(game);
        // The builder writes numbers only.
        store::Cursor& entries = window_.Logic().CurrentContext().document.Adventure().OpenTable(
            TableNum::Free25, "* from processtables", "canum>=0", "canum");
        for (const char* line : {"MESSAGE 0 DONE", "MESSAGE 1"}) {
            entries.SetField("condacts", std::string(line));
            entries.Update();
            entries.MoveNext();
        }
        window_.Logic().Refresh();
        window_.ChooseNode("Messages");
        window_.Logic().SelectRow(0);
    }

    /// A dialog that has closed gives the keyboard back once its events are done.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QApplication::setActiveWindow(&window_.Window());
        QApplication::processEvents();
        window_.Press(key, modifiers);
        QApplication::processEvents();
    }

    QListWidget& Uses() { return window_.Part<QListWidget>("UsesList"); }

    OpenedWindow window_;
};

TEST_P(References, ShiftF12ListsTheUsesAndEnterGoesThereAndAltLeftBack) {
    EXPECT_FALSE(Uses().isVisible());
    window_.Press(Qt::Key_F12, Qt::ShiftModifier);
    EXPECT_TRUE(Uses().isVisible());
    EXPECT_EQ(window_.Part<QLabel>("UsesTitle").text(), "message 0: 1 use");
    ASSERT_EQ(Uses().count(), 1);
    EXPECT_TRUE(Uses().hasFocus());
    window_.Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
    EXPECT_EQ(window_.Part<QLabel>("UsesTitle").text().left(13), "process table");
    window_.Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    window_.Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
}

TEST_P(References, WhatWasTypedBesideTheRowsIsStoredBeforeTheJumpToAUse) {
    Press(Qt::Key_F9);
    Press(Qt::Key_F12, Qt::ShiftModifier);
    window_.Part<QPlainTextEdit>("text").setPlainText("You raise the wick.");
    Uses().setFocus();
    window_.Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
    window_.ChooseNode("Messages");
    EXPECT_EQ(window_.Cell(0, 1), "You raise the wick.");
}

TEST_P(References, ControlPGoesToARecordByItsNumber) {
    QTimer::singleShot(0, [] {
        auto* dialog = dynamic_cast<ide::QuickListDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>("QuickLine"), "m1");
        EXPECT_EQ(dialog->findChild<QListWidget*>("QuickList")->count(), 1);
        QTest::keyClick(dialog->findChild<QLineEdit*>("QuickLine"), Qt::Key_Return);
    });
    window_.Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
}

TEST_P(References, ControlPGoesToATableByTheBeginningOfItsName) {
    QTimer::singleShot(0, [] {
        auto* dialog = dynamic_cast<ide::QuickListDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>("QuickLine"), "locat");
        QTest::keyClick(dialog->findChild<QLineEdit*>("QuickLine"), Qt::Key_Return);
    });
    window_.Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Locations);
}

TEST_P(References, ThePaletteDoesACommandByAPartOfItsName) {
    QTimer::singleShot(0, [] {
        auto* dialog = dynamic_cast<ide::QuickListDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>("QuickLine"), "show uses");
        QTest::keyClick(dialog->findChild<QLineEdit*>("QuickLine"), Qt::Key_Return);
    });
    window_.Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(Uses().isVisible());
}

TEST_P(References, ThePaletteOpensATableByAPartOfItsName) {
    QTimer::singleShot(0, [] {
        auto* dialog = dynamic_cast<ide::QuickListDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClicks(dialog->findChild<QLineEdit*>("QuickLine"), "system mess");
        QTest::keyClick(dialog->findChild<QLineEdit*>("QuickLine"), Qt::Key_Return);
    });
    window_.Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::SystemMessages);
}

TEST_P(References, ThePaletteSaysThatNothingFits) {
    QTimer::singleShot(0, [] {
        auto* dialog = dynamic_cast<ide::QuickListDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        const auto* nothing = dialog->findChild<QLabel*>("QuickNothing");
        EXPECT_FALSE(nothing->isVisible());
        QTest::keyClicks(dialog->findChild<QLineEdit*>("QuickLine"), "zzz");
        EXPECT_TRUE(nothing->isVisible());
        EXPECT_EQ(nothing->text(), "Nothing found.");
        QTest::keyClick(dialog->findChild<QLineEdit*>("QuickLine"), Qt::Key_Escape);
    });
    window_.Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
}

constexpr int kTurnsToWait = 1000;

/// Does something in the dialog of this name when it has opened.
void InNextDialog(const char* name, const std::function<void(QDialog&)>& steps) {
    auto* watch = new QTimer(qApp);
    QObject::connect(watch, &QTimer::timeout, watch, [=, turns = 0]() mutable {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const bool opened = dialog && dialog->objectName() == name;
        if (!opened && ++turns < kTurnsToWait) return;
        watch->stop();
        watch->deleteLater();
        ASSERT_TRUE(opened) << name;
        QApplication::processEvents();
        steps(*dialog);
    });
    watch->start(0);
}

TEST_P(References, DeleteShowsTheUsesFirstAndEnterGoesThere) {
    InNextDialog("DeletionDialog", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("deletionTitle")->text(), "message 0: 1 use");
        EXPECT_EQ(dialog.findChild<QLabel*>("deletionSummary")->text(),
                  "They stay, and name what is not there any more.");
        auto* list = dialog.findChild<QListWidget*>("deletionUses");
        ASSERT_EQ(list->count(), 1);
        EXPECT_TRUE(list->item(0)->text().endsWith(": MESSAGE 0"));
        EXPECT_EQ(dialog.focusWidget(), list);
        QTest::keyClick(list, Qt::Key_Return);
    });
    Press(Qt::Key_Delete);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
    EXPECT_TRUE(window_.dialogs.Boxes().empty());
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Cell(0, 1), "You lower the wick.");
}

TEST_P(References, DeleteGoesOnToItsQuestionAndTellsWhatIsLeft) {
    const std::size_t boxes = window_.dialogs.Boxes().size();
    InNextDialog("DeletionDialog",
                 [](QDialog& dialog) { dialog.findChild<QPushButton*>("goOn")->click(); });
    window_.dialogs.AnswerNext(true);
    Press(Qt::Key_Delete);
    ASSERT_EQ(window_.dialogs.Boxes().size(), boxes + 1);
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "Are you sure you want to delete Messages 0 ?");
    EXPECT_EQ(window_.Cell(0, 1), "It is dark.");
    EXPECT_EQ(window_.Part<QLabel>("status").text(), "Done: delete message 0. 1 place names it still.");
}

TEST_P(References, DeleteThatIsCancelledAtTheUsesAsksNothing) {
    const std::size_t boxes = window_.dialogs.Boxes().size();
    InNextDialog("DeletionDialog", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Press(Qt::Key_Delete);
    EXPECT_EQ(window_.dialogs.Boxes().size(), boxes);
    EXPECT_EQ(window_.Cell(0, 1), "You lower the wick.");
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
}

TEST_P(References, DeleteOfWhatNothingUsesAsksItsQuestionOnly) {
    window_.ChooseNode("Objects");
    window_.Logic().SelectRow(0);
    window_.dialogs.AnswerNext(true);
    Press(Qt::Key_Delete);
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "Are you sure you want to delete Objects 0 ?");
    EXPECT_EQ(window_.Part<QLabel>("status").text(), "Done: delete object 0");
}

/// Puts the cursor behind the first letters of the line of conditions.
QPlainTextEdit* CursorInLine(QWidget& window, int position) {
    auto* line = window.findChild<QPlainTextEdit*>("line");
    line->setFocus();
    QTextCursor cursor = line->textCursor();
    cursor.setPosition(position);
    line->setTextCursor(cursor);
    return line;
}

TEST_P(References, F12InADialogGoesToWhatTheTokenAtTheCursorNames) {
    window_.ChooseNode("Response (P0)");
    window_.Logic().SelectRow(1);
    InNextDialog("ProcessEntryScreen", [](QDialog& dialog) {
        QTest::keyClick(CursorInLine(dialog, 9), Qt::Key_F12);
        EXPECT_FALSE(dialog.isVisible());
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
}

TEST_P(References, F12InADialogWithChangesAsksAsItsExitDoes) {
    window_.ChooseNode("Response (P0)");
    window_.Logic().SelectRow(1);
    window_.dialogs.AnswerLeaving(platform::Leaving::KeepEditing);
    window_.dialogs.AnswerLeaving(platform::Leaving::Store);
    InNextDialog("ProcessEntryScreen", [this](QDialog& dialog) {
        QPlainTextEdit* line = CursorInLine(dialog, 9);
        line->setPlainText("MESSAGE 1 DONE");
        CursorInLine(dialog, 9);
        QTest::keyClick(line, Qt::Key_F12);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(window_.dialogs.Boxes().back().text, "What was changed here is not stored yet.");
        QTest::keyClick(line, Qt::Key_F12);
        EXPECT_FALSE(dialog.isVisible());
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Cell(1, 2), "MESSAGE 1 DONE");
}

TEST_P(References, ShiftF12InADialogListsTheUsesOfTheTokenAndStaysUntilOneIsChosen) {
    window_.ChooseNode("Response (P0)");
    window_.Logic().SelectRow(1);
    InNextDialog("ProcessEntryScreen", [](QDialog& dialog) {
        QPlainTextEdit* line = CursorInLine(dialog, 9);
        InNextDialog("QuickListDialog", [](QDialog& uses) {
            EXPECT_EQ(uses.windowTitle(), "Uses of message 1");
            EXPECT_EQ(uses.findChild<QListWidget*>("QuickList")->count(), 1);
            QTest::keyClick(&uses, Qt::Key_Escape);
        });
        QTest::keyClick(line, Qt::Key_F12, Qt::ShiftModifier);
        EXPECT_TRUE(dialog.isVisible());
        InNextDialog("QuickListDialog", [](QDialog& uses) {
            QTest::keyClick(uses.findChild<QLineEdit*>("QuickLine"), Qt::Key_Return);
        });
        QApplication::setActiveWindow(&dialog);
        QApplication::processEvents();
        QTest::keyClick(CursorInLine(dialog, 9), Qt::Key_F12, Qt::ShiftModifier);
        EXPECT_FALSE(dialog.isVisible());
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
}

TEST_P(References, F12InTheRecordBesideTheRowsStoresItAndGoesToTheToken) {
    window_.ChooseNode("Response (P0)");
    window_.Logic().SelectRow(1);
    Press(Qt::Key_F9);
    QPlainTextEdit* line = CursorInLine(window_.Window(), 9);
    line->setPlainText("MESSAGE 1 DONE");
    CursorInLine(window_.Window(), 9);
    Press(Qt::Key_F12);
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::Messages);
    EXPECT_EQ(window_.Logic().CurrentRow(), 1);
    EXPECT_EQ(window_.Part<QPlainTextEdit>("text").toPlainText(), "It is dark.");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window_.Cell(1, 2), "MESSAGE 1 DONE");
}

TEST_P(References, F12OfANumberWithoutARecordTellsSo) {
    window_.ChooseNode("Response (P0)");
    window_.Logic().SelectRow(1);
    Press(Qt::Key_F9);
    CursorInLine(window_.Window(), 9)->setPlainText("MESSAGE 77");
    CursorInLine(window_.Window(), 9);
    Press(Qt::Key_F12);
    EXPECT_EQ(window_.dialogs.Boxes().back().text, "There is no message 77.");
    EXPECT_EQ(window_.Logic().Grid().View().table, TableNum::ProcessTables);
}

INSTANTIATE_TEST_SUITE_P(Themes, References, testing::Values(qt::Theme::Light, qt::Theme::Dark));

class ReferenceDialogs : public testing::Test {
  protected:
    ReferenceDialogs() {
        desk_.Add(TableNum::Messages,
                  {{"msgnum", std::int64_t{900}}, {"msgmsg", std::string("the old lamp")}});
        desk_.Add(TableNum::Messages,
                  {{"msgnum", std::int64_t{901}}, {"msgmsg", std::string("an old coin")}});
    }

    std::string Text(const char* where) {
        const auto rows = desk_.Rows(TableNum::Messages, "msgmsg", where);
        return rows.empty() ? "(none)" : rows.front();
    }

    Desk desk_;
};

TEST_F(ReferenceDialogs, ReplaceLeavesOutWhatIsNotTicked) {
    authoring::ReplaceScreen screen(desk_.context);
    ide::ReplaceDialog dialog(screen);
    dialog.show();
    QTest::keyClicks(dialog.findChild<QLineEdit*>("what"), "old");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("with"), "new");
    dialog.findChild<QPushButton*>("find")->click();
    auto* found = dialog.findChild<QTreeWidget*>("found");
    int here = 0;
    for (int row = 0; row < found->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = found->topLevelItem(row);
        const bool wanted = item->text(0) == "message 900";
        if (wanted) {
            EXPECT_EQ(item->text(2), "the new lamp");
        }
        here += wanted ? 1 : 0;
        item->setCheckState(0, wanted ? Qt::Checked : Qt::Unchecked);
    }
    EXPECT_EQ(here, 1);
    dialog.findChild<QPushButton*>("replace")->click();
    EXPECT_EQ(Text("msgnum=900"), "the new lamp");
    EXPECT_EQ(Text("msgnum=901"), "an old coin");
    EXPECT_EQ(dialog.findChild<QLabel*>("replaceStatus")->text(), "Replaced 1 place in 1 record.");
    EXPECT_EQ(found->topLevelItemCount(), 0);
}

TEST_F(ReferenceDialogs, WhatWasFoundGoesWhenSomethingElseIsWanted) {
    authoring::ReplaceScreen screen(desk_.context);
    ide::ReplaceDialog dialog(screen);
    dialog.show();
    auto* found = dialog.findChild<QTreeWidget*>("found");
    auto* replace = dialog.findChild<QPushButton*>("replace");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("what"), "old");
    const std::vector<std::function<void()>> changes = {
        [&] { QTest::keyClicks(dialog.findChild<QLineEdit*>("with"), "new"); },
        [&] { QTest::keyClick(dialog.findChild<QLineEdit*>("what"), Qt::Key_Backspace); },
        [&] { dialog.findChild<QCheckBox*>("matchCase")->click(); },
        [&] { dialog.findChild<QCheckBox*>("wholeWords")->click(); },
        [&] { dialog.findChild<QCheckBox*>("wholeWords")->click(); },
        [&] { dialog.findChild<QComboBox*>("scope")->setCurrentIndex(1); }};
    for (const auto& change : changes) {
        dialog.findChild<QPushButton*>("find")->click();
        EXPECT_TRUE(replace->isEnabled());
        change();
        EXPECT_EQ(found->topLevelItemCount(), 0);
        EXPECT_FALSE(replace->isEnabled());
        EXPECT_EQ(dialog.findChild<QLabel*>("replaceStatus")->text(), "Find shows what is found now.");
        dialog.findChild<QComboBox*>("scope")->setCurrentIndex(0);
        dialog.findChild<QLineEdit*>("what")->setText("old");
    }
    EXPECT_EQ(Text("msgnum=900"), "the old lamp");
}

TEST_F(ReferenceDialogs, ReplaceLooksInOneTableInEveryLanguageOfTheWindows) {
    const ForeignWords foreign;
    authoring::ReplaceScreen screen(desk_.context);
    ide::ReplaceDialog dialog(screen);
    auto* scope = dialog.findChild<QComboBox*>("scope");
    scope->setCurrentText("~messages");
    ASSERT_GT(scope->currentIndex(), 0);
    dialog.findChild<QLineEdit*>("what")->setText("coin");
    dialog.findChild<QPushButton*>("find")->click();
    EXPECT_EQ(dialog.findChild<QTreeWidget*>("found")->topLevelItemCount(), 1);
}

TEST_F(ReferenceDialogs, ReplaceOpensWithinTheScreen) {
    authoring::ReplaceScreen screen(desk_.context);
    const ide::ReplaceDialog dialog(screen);
    const QSize room = dialog.screen()->availableSize() * 9 / 10;
    EXPECT_LE(dialog.width(), room.width());
    EXPECT_LE(dialog.height(), room.height());
}

TEST_F(ReferenceDialogs, ChangeNumberShowsWhatWillChange) {
    authoring::RenumberScreen screen(desk_.context, TableNum::Messages, 900);
    ide::RenumberDialog dialog(screen);
    dialog.show();
    dialog.findChild<QLineEdit*>("number")->setText("950");
    auto* changes = dialog.findChild<QListWidget*>("changes");
    ASSERT_EQ(changes->count(), 1);
    EXPECT_EQ(changes->item(0)->text(), "message 900, msgnum: 900 becomes 950");
    dialog.findChild<QPushButton*>("update")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(Text("msgnum=950"), "the old lamp");
    EXPECT_EQ(Text("msgnum=900"), "(none)");
}

}  // namespace
}  // namespace fabula::test
