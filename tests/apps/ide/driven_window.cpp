#include "ide/driven_window.h"

#include <QApplication>
#include <QComboBox>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <map>

#include <gtest/gtest.h>

#include "qt/strings.h"
#include "support/active_window.h"
#include "support/raw_database.h"

namespace fabula::test {
namespace {

using store::TableNum;

constexpr int kMostSteps = 2000;

bool TabTo(QDialog& dialog, const QString& control) {
    for (int step = 0; step < kMostSteps; ++step) {
        QWidget* now = QApplication::focusWidget();
        if (!now) return false;
        if (now->objectName() == control) return true;
        if (now->window() != &dialog) return false;
        QTest::keyClick(now, Qt::Key_Tab);
        QApplication::processEvents();
    }
    return false;
}

void ClickOn(const QDialog& dialog, const char* control) {
    auto* button = dialog.findChild<QWidget*>(control);
    ASSERT_NE(button, nullptr) << control;
    // The mark of an option stands at its left.
    const QPoint place(std::min(10, button->width() / 2), button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, {}, place);
}

void Do(QDialog& dialog, const Step& step) {
    if (*step.typed == '\0') return ClickOn(dialog, step.control);
    ASSERT_TRUE(TabTo(dialog, step.control)) << step.control;
    // A list goes to the line that begins with what is typed.
    const auto* list = qobject_cast<QComboBox*>(QApplication::focusWidget());
    if (!list || list->isEditable())
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), step.typed);
}

/// An update closes the dialog; one that is refused has told so.
void DoAll(QDialog& dialog, const std::vector<Step>& steps) {
    if (!test::BecomesActive(&dialog)) ADD_FAILURE() << "the dialog did not become active";
    for (const Step& step : steps)
        Do(dialog, step);
    ClickOn(dialog, "update");
    QApplication::processEvents();
    if (!dialog.isVisible()) return;
    ADD_FAILURE() << "the dialog did not close";
    dialog.reject();
}

}  // namespace

std::string AnyVerb(store::AdventureKind kind) {
    return kind == store::AdventureKind::Marlo ? "_" : "*";
}

namespace {

void MakeSmallGame(const std::filesystem::path& file, store::AdventureKind kind) {
    const std::string anyVerb = AnyVerb(kind);
    GameBuilder(kind)
        .Graphics()
        .SettingText("advname", "The Lighthouse")
        .SettingText("savename", "light")
        .Location(0, "You are in the hall of the lighthouse.", "The hall")
        .Message(0, "The lamp is lit.")
        .Message(1, "It is dark.")
        .SystemMessage(7, "What now?")
        .Word("NORTH", 1, 2)
        .Word("LAMP", 60, 2)
        .Object(0, {.description = "a lamp", .place = 1, .noun = "LAMP"})
        .Entry(0, anyVerb, "_", "DESC")
        .Entry(1, anyVerb, "_", "DESC")
        .Entry(2, anyVerb, "_", "DESC")
        .Entry(3, anyVerb, "_", "DESC")
        .Write(file);
    const auto adventure = store::Adventure::Open(file, store::OpenMode::ReadWrite);
    store::Cursor& entries = adventure->OpenTable(TableNum::ProcessTables, "def");
    for (; !entries.Eof(); entries.MoveNext()) {
        entries.SetField("w1", anyVerb);
        entries.SetField("w2", std::string("_"));
        entries.SetField("condacts", std::string("DESC"));
        entries.Update();
    }
    if (kind == store::AdventureKind::Marlo) return;
    store::Cursor& descriptions = adventure->OpenTable(TableNum::ProcDesc, "def");
    descriptions.AddNew();
    descriptions.SetField("pmsgnum", std::int64_t{3});
    descriptions.SetField("pmsgmsg", std::string("What the keeper does"));
    descriptions.Update();
}

}  // namespace

void WriteSmallGame(const std::filesystem::path& file, store::AdventureKind kind) {
    static std::map<store::AdventureKind, std::string> games;
    std::string& game = games[kind];
    if (game.empty()) {
        MakeSmallGame(file, kind);
        game = ReadBytes(file);
    }
    WriteBytes(file, game);
}

DrivenWindow::DrivenWindow(store::AdventureKind kind) {
    const auto file = folder / "game.fbd";
    WriteSmallGame(file, kind);
    Window().Start(file);
}

void DrivenWindow::GoToTable(const char* node) {
    for (int pane = 0; pane < 4 && QApplication::focusWidget()->objectName() != "Tree"; ++pane)
        Press(Qt::Key_F6);
    auto& tree = Part<QTreeWidget>("Tree");
    Press(Qt::Key_Home);
    Press(Qt::Key_Asterisk);  // opens all groups
    const auto found = tree.findItems(node, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(found.isEmpty()) << "there is no table " << node;
    tree.scrollToItem(found.first());
    const QPoint place = tree.visualItemRect(found.first()).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(tree.currentItem(), found.first()) << node;
}

void DrivenWindow::GoToRow(const std::string& first) {
    for (int pane = 0; pane < 4 && QApplication::focusWidget()->objectName() != "Grid"; ++pane)
        Press(Qt::Key_F6);
    Press(Qt::Key_Home, Qt::ControlModifier);
    for (int step = 0; step < RowCount(); ++step) {
        if (Cell(Part<QTableView>("Grid").currentIndex().row(), 0) == first) return;
        Press(Qt::Key_Down);
    }
    ADD_FAILURE() << "there is no row " << first;
}

bool DrivenWindow::InDialog(int key, Qt::KeyboardModifiers modifiers, const std::vector<Step>& steps) {
    bool opened = false;
    QTimer act;
    act.setSingleShot(true);
    QObject::connect(&act, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        opened = true;
        DoAll(*dialog, steps);
    });
    act.start(0);
    Press(key, modifiers);
    // As a desktop does when a dialog has closed.
    QApplication::setActiveWindow(&Window());
    return opened;
}

std::string DrivenWindow::CellOf(const std::string& first, const std::string& title) const {
    const QAbstractItemModel& model = *Part<QTableView>("Grid").model();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (qt::FromQt(model.headerData(column, Qt::Horizontal).toString()) != title) continue;
        for (int row = 0; row < model.rowCount(); ++row) {
            if (Cell(row, 0) == first) return Cell(row, column);
        }
        return "no row " + first;
    }
    std::string titles;
    for (int column = 0; column < model.columnCount(); ++column)
        titles += qt::FromQt(model.headerData(column, Qt::Horizontal).toString()) + "; ";
    return "no column " + title + " but " + titles;
}

int DrivenWindow::RowCount() const {
    return Part<QTableView>("Grid").model()->rowCount();
}

std::string DrivenWindow::Stored(TableNum table, const char* field, const std::string& where) const {
    store::PreparedQuery query = Logic().CurrentContext().document.Adventure().Prepare(table, field, where);
    return query.First({}) ? std::string(query.Text(0)) : "no record";
}

}  // namespace fabula::test
