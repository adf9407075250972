#include "ide/dialogs/tables/sort_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "authoring/desk.h"
#include "authoring/desk/grid/sort_order.h"
#include "ide/opened_window.h"
#include "qt/strings.h"

namespace fabula::test {
namespace {

using store::TableNum;

class SortDialogTest : public testing::Test {
  protected:
    SortDialogTest() {
        dialog_.show();
        QApplication::setActiveWindow(&dialog_);
    }

    QComboBox& Combo(const char* name) { return *dialog_.findChild<QComboBox*>(name); }
    void Click(const char* name) { dialog_.findChild<QPushButton*>(name)->click(); }
    std::string Stored() { return authoring::StoredSort(desk_.Adventure(), TableNum::Vocabulary).value(); }

    Desk desk_;
    authoring::SortScreen screen_{desk_.context, TableNum::Vocabulary, "Vocabulary"};
    ide::SortDialog dialog_{screen_, desk_.dialogs};
};

TEST_F(SortDialogTest, ShowsTheOrderOfTheTable) {
    EXPECT_EQ(dialog_.windowTitle(), "Sort Vocabulary");
    EXPECT_EQ(Combo("field1").currentText(), "voctypen");
    EXPECT_EQ(Combo("field2").currentText(), "Number (vocnum)");
    EXPECT_EQ(Combo("field3").currentText(), "Word");
    EXPECT_EQ(Combo("direction3").currentText(), "Ascending");
}

TEST_F(SortDialogTest, StoresFieldsAndDirections) {
    Combo("field1").setCurrentText("Word");
    Combo("direction1").setCurrentText("Descending");
    Combo("field2").setCurrentText("(none)");
    Combo("field3").setCurrentText("(none)");
    EXPECT_FALSE(Combo("direction2").isEnabled());
    QTest::keyClick(dialog_.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Stored(), "word desc");
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
}

TEST_F(SortDialogTest, StaysOpenWhenTheOrderIsRefused) {
    Combo("field2").setCurrentText("Word");
    Click("update");
    EXPECT_TRUE(dialog_.isVisible());
    EXPECT_EQ(desk_.Boxes(), std::vector<std::string>{"The field Word stands twice in the order."});
}

TEST_F(SortDialogTest, OwnOrderPutsThePlainOneBack) {
    Combo("field1").setCurrentText("(none)");
    Click("plain");
    EXPECT_EQ(Combo("field1").currentText(), "voctypen");
    EXPECT_TRUE(Combo("direction1").isEnabled());
}

TEST_F(SortDialogTest, ExitStoresNothing) {
    Combo("field1").setCurrentText("Word");
    QTest::keyClick(&dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(Stored(), "voctypen, vocnum, word");
}

TEST(SortFromTheWindow, SortsTheGridAndIsUndone) {
    OpenedWindow opened;
    opened.Open(GameBuilder().Word("ZEBRA", 60, 2).Word("AARDVARK", 70, 2));
    opened.ChooseNode("Vocabulary");
    const std::string first = opened.Cell(0, 1);
    ASSERT_NE(first, "ZEBRA");
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QComboBox*>("field1")->setCurrentText("Word");
        dialog->findChild<QComboBox*>("direction1")->setCurrentText("Descending");
        dialog->findChild<QComboBox*>("field3")->setCurrentText("(none)");
        dialog->findChild<QPushButton*>("update")->click();
    });
    opened.Action("TabSort").trigger();
    EXPECT_EQ(opened.Cell(0, 1), "ZEBRA");
    opened.Action("Undo").trigger();
    EXPECT_EQ(opened.Cell(0, 1), first);
}

}  // namespace
}  // namespace fabula::test
