#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableView>

#include <gtest/gtest.h>

#include "ide/driven_window.h"
#include "qt/strings.h"

// Comments in dialogs, beside the rows and in them.

namespace fabula::test {
namespace {

using store::AdventureKind;
using store::TableNum;

class CommentTest : public testing::Test {
  protected:
    std::vector<std::string> Titles() {
        const QAbstractItemModel& rows = *window_.Part<QTableView>("Grid").model();
        std::vector<std::string> titles;
        for (int column = 0; column < rows.columnCount(); ++column)
            titles.push_back(qt::FromQt(rows.headerData(column, Qt::Horizontal).toString()));
        return titles;
    }

    DrivenWindow window_{AdventureKind::Fabula};
};

TEST_F(CommentTest, IsTypedInTheDialogOfARecord) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    EXPECT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {{"comment", "When it is lit"}}));
    EXPECT_EQ(window_.Stored(TableNum::Messages, "comment", "msgnum=0"), "When it is lit");
    window_.GoToTable("Locations");
    window_.GoToRow("0");
    EXPECT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {{"comment", "Where it begins"}}));
    EXPECT_EQ(window_.Stored(TableNum::Locations, "comment", "locnum=0"), "Where it begins");
    window_.GoToTable("Response (P0)");
    window_.GoToRow("*");
    EXPECT_TRUE(window_.InDialog(Qt::Key_Return, Qt::NoModifier, {{"comment", "The lamp"}}));
    EXPECT_EQ(window_.Stored(TableNum::ProcessTables, "comment", "canum=0"), "The lamp");
}

TEST_F(CommentTest, IsTypedBesideTheRows) {
    window_.Press(Qt::Key_F9);
    window_.GoToTable("Objects");
    window_.GoToRow("0");
    auto& comment = window_.Part<QPlainTextEdit>("comment");
    comment.setFocus();
    window_.Type("Carried at first");
    window_.GoToTable("Messages");
    EXPECT_EQ(window_.Stored(TableNum::Objects, "comment", "objnum=0"), "Carried at first");
    EXPECT_EQ(window_.Part<QPlainTextEdit>("comment").toPlainText(), "");
}

TEST_F(CommentTest, IsAColumnOfTheRowsOnRequestWhichIsRemembered) {
    window_.GoToTable("Messages");
    window_.GoToRow("0");
    window_.InDialog(Qt::Key_Return, Qt::NoModifier, {{"comment", "When it is lit"}});
    EXPECT_EQ(Titles(), (std::vector<std::string>{"Message", "Text"}));
    window_.Action("Comments").trigger();
    EXPECT_EQ(Titles(), (std::vector<std::string>{"Message", "Text", "Comment"}));
    EXPECT_EQ(window_.CellOf("0", "Comment"), "When it is lit");
    window_.Restart();
    window_.GoToTable("Messages");
    EXPECT_EQ(Titles().back(), "Comment");
    window_.Action("Comments").trigger();
    EXPECT_EQ(Titles().back(), "Text");
}

}  // namespace
}  // namespace fabula::test
