#include "ide/dialogs/tables/key_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "ide/author.h"
#include "ide/dialog_stand.h"
#include "ide/foreign_words.h"
#include "qt/strings.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

using authoring::KeyChangeScreen;
using authoring::KeySelectScreen;
using store::TableNum;

class KeyDialogs : public testing::Test {
  protected:
    KeyDialogs() {
        desk_.Clear(TableNum::Messages);
        for (const char* text : {"one", "two"})
            desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{5}}, {"msgmsg", std::string(text)}});
    }

    authoring::KeySelection Selection() {
        KeySelectScreen select(desk_.context);
        select.table = "Messages";
        select.key = "5";
        return select.Select().value();
    }
    /// Types a key into the cell of a row and leaves it.
    static void TypeKey(ide::KeyChangeDialog& dialog, int row, const char* key) {
        auto* rows = dialog.findChild<QTableWidget*>("rows");
        rows->item(row, 0)->setText(key);
    }
    static std::string KeyIn(const ide::KeyChangeDialog& dialog, int row) {
        return qt::FromQt(dialog.findChild<QTableWidget*>("rows")->item(row, 0)->text());
    }

    Desk desk_;
};

TEST_F(KeyDialogs, ProcessEntriesAreSelectedByTheirWordsAfterAnExplanation) {
    KeySelectScreen screen(desk_.context);
    ide::KeySelectDialog dialog(screen);
    dialog.show();
    auto* table = dialog.findChild<QComboBox*>("table");
    auto* key = dialog.findChild<QLineEdit*>("key");
    auto* verb = dialog.findChild<QLineEdit*>("w1");
    auto* explanation = dialog.findChild<QLabel*>("explanation");
    table->setCurrentText("Messages");
    EXPECT_TRUE(key->isEnabled());
    EXPECT_FALSE(verb->isEnabled());
    EXPECT_FALSE(explanation->isVisible());
    table->setCurrentText("ProcessTables");
    EXPECT_FALSE(key->isEnabled());
    EXPECT_TRUE(verb->isEnabled());
    EXPECT_TRUE(explanation->isVisible());
    EXPECT_TRUE(explanation->text().startsWith("The Table Key for Processes is CaNum"));
}

TEST_F(KeyDialogs, TablesAreSelectedInEveryLanguageOfTheWindows) {
    const ForeignWords foreign;
    KeySelectScreen screen(desk_.context);
    ide::KeySelectDialog dialog(screen);
    dialog.findChild<QComboBox*>("table")->setCurrentText("~Messages");
    dialog.findChild<QLineEdit*>("key")->setText("5");
    dialog.findChild<QPushButton*>("select")->click();
    ASSERT_TRUE(dialog.Selection());
    EXPECT_EQ(dialog.Selection()->table->number, TableNum::Messages);
}

TEST_F(KeyDialogs, SelectTakesWhatWasTyped) {
    KeySelectScreen screen(desk_.context);
    ide::KeySelectDialog dialog(screen);
    dialog.show();
    dialog.findChild<QComboBox*>("table")->setCurrentText("Messages");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("key"), "5");
    dialog.findChild<QPushButton*>("select")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    ASSERT_TRUE(dialog.Selection());
    EXPECT_EQ(dialog.Selection()->key, "5");
}

TEST_F(KeyDialogs, SelectStaysWhenNothingWasFound) {
    KeySelectScreen screen(desk_.context);
    ide::KeySelectDialog dialog(screen);
    dialog.show();
    dialog.findChild<QPushButton*>("select")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Must make a Table Selection"});
}

TEST_F(KeyDialogs, OnlyTheKeyCanBeEdited) {
    KeyChangeScreen screen(desk_.context, Selection());
    const ide::KeyChangeDialog dialog(screen, desk_.dialogs);
    const auto* rows = dialog.findChild<QTableWidget*>("rows");
    ASSERT_EQ(rows->rowCount(), 2);
    EXPECT_EQ(rows->horizontalHeaderItem(0)->text(), "msgnum");
    EXPECT_EQ(rows->horizontalHeaderItem(1)->text(), "msgmsg");
    EXPECT_EQ(rows->item(1, 1)->text(), "two");
    EXPECT_TRUE(rows->item(1, 0)->flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(rows->item(1, 1)->flags() & Qt::ItemIsEditable);
}

TEST_F(KeyDialogs, FinishStoresTheKeysThatWereTyped) {
    KeyChangeScreen screen(desk_.context, Selection());
    ide::KeyChangeDialog dialog(screen, desk_.dialogs);
    dialog.show();
    TypeKey(dialog, 1, "6");
    dialog.findChild<QPushButton*>("finish")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum, msgmsg"),
              (std::vector<std::string>{"5|one", "6|two"}));
}

TEST_F(KeyDialogs, AKeyThatIsNoneGoesBackInItsCell) {
    KeyChangeScreen screen(desk_.context, Selection());
    ide::KeyChangeDialog dialog(screen, desk_.dialogs);
    TypeKey(dialog, 1, "six");
    EXPECT_EQ(KeyIn(dialog, 1), "5");
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"The value for msgnum is not numeric"});
}

TEST_F(KeyDialogs, FinishStaysWhenTheKeyIsTaken) {
    desk_.Add(TableNum::Messages, {{"msgnum", std::int64_t{6}}});
    KeyChangeScreen screen(desk_.context, Selection());
    ide::KeyChangeDialog dialog(screen, desk_.dialogs);
    dialog.show();
    TypeKey(dialog, 0, "6");
    dialog.findChild<QPushButton*>("finish")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"Already a record with a key of 6"});
}

TEST_F(KeyDialogs, ExitChangesNothing) {
    KeyChangeScreen screen(desk_.context, Selection());
    ide::KeyChangeDialog dialog(screen, desk_.dialogs);
    dialog.show();
    TypeKey(dialog, 0, "9");
    dialog.findChild<QPushButton*>("exit")->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(desk_.Rows(TableNum::Messages, "msgnum"), (std::vector<std::string>{"5", "5"}));
}

TEST(CorrectTableKey, RepairsADoubleKeyFromTheMenuOnAndIsOneStepOfUndo) {
    Author author;
    const auto file = author.Desk().folder / "game.fbd";
    GameBuilder().Write(file);
    RawDatabase(file).Run(
        "DELETE FROM Messages; INSERT INTO Messages(msgnum, msgmsg) VALUES(3,'a'),(3,'b')");
    author.Expects("Duplicate Key Errors", [&] { author.Presses(Qt::Key_Escape); });
    author.Desk().Window().Start(file);
    author.Expects("Correct Table Key: Select", [&] {
        author.Front().findChild<QComboBox*>("table")->setCurrentText("Messages");
        author.Front().findChild<QLineEdit*>("key")->setFocus();
        author.Types("3");
        author.Presses(Qt::Key_Return);
    });
    author.Expects("Change incorrect key and Finish", [&] {
        author.Front().findChild<QTableWidget*>("rows")->item(1, 0)->setText("4");
        author.Clicks("finish");
    });
    author.Chooses("Tools > Correct Table Key");
    EXPECT_EQ(author.StillExpected(), 0u);
    EXPECT_EQ(RawDatabase(file).Ask("SELECT group_concat(msgnum || msgmsg) FROM Messages"), "3a,4b");
    author.Presses(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(RawDatabase(file).Ask("SELECT group_concat(msgnum || msgmsg) FROM Messages"), "3a,3b");
}

}  // namespace
}  // namespace fabula::test
