// Uses, jumps, find and replace over all tables and new numbers, by keys and clicks.

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "ide/dialogs/quick_list_dialog.h"
#include "ide/dialogs/renumber_dialog.h"
#include "ide/dialogs/replace_dialog.h"
#include "ide/opened_window.h"
#include "qt/strings.h"
#include "qt/theme.h"

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
        window_.Open(game);
        window_.ChooseNode("Messages");
        window_.Logic().SelectRow(0);
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
