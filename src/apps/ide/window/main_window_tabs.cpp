#include <QApplication>
#include <QMenu>
#include <QTreeWidgetItem>

#include "ide/window/grid/tab_strip.h"
#include "ide/window/main_window.h"
#include "ide/window/panes/record_pane.h"
#include "ide/window/panes/record_panel.h"
#include "ide/window/panes/tree_panel.h"
#include "qt/help/help_window.h"
#include "qt/strings.h"

// Tabs, and what happens when the author goes to another window.

namespace fabula::ide {

void MainWindow::ShowTabs() {
    QStringList titles;
    const bool open = ide_.GetState() != authoring::MainScreen::State::NoAdventure;
    for (int tab = 0; open && tab < ide_.Tabs().Count(); ++tab)
        titles << qt::Translated(ide_.TabTitle(tab));
    tabs_->Show(titles, ide_.Tabs().Current());
}

void MainWindow::ChangeTabs(const std::function<void()>& change) {
    if (!LeaveRecord()) return ShowTabs();
    change();
    ShowChanges();
}

/// Of the tree the table that is shown, of the rows the record.
void MainWindow::OpenInTab() {
    const authoring::TreeNode* const node = tree_->hasFocus() ? ide_.CurrentNode() : nullptr;
    if (node) return OpenInTab(node->sort);
    ChangeTabs([this] { ide_.OpenRecordInTab(); });
}

void MainWindow::OpenInTab(int sort) {
    ChangeTabs([this, sort] {
        if (const authoring::TreeNode* const node = authoring::NodeAt(ide_.Tree(), sort))
            ide_.OpenInTab(node->view);
    });
}

void MainWindow::AskTreeMenu(const QPoint& place) {
    const QTreeWidgetItem* const item = tree_->itemAt(place);
    if (!item) return;
    const int sort = TreePanel::SortOf(*item);
    QMenu menu(this);
    menu.addAction(tr("Open in New T&ab"), this, [this, sort] { OpenInTab(sort); });
    menu.exec(tree_->viewport()->mapToGlobal(place));
}

/// The author has gone to another window. Boxes and lists of this one are not left for, nor is a record for
/// the help on it. Nobody is here to be told: what is refused stays as it was typed until it is left.
void MainWindow::StoreBeside() {
    if (isActiveWindow() || QApplication::activeModalWidget() || QApplication::activePopupWidget()) return;
    if (help_.Window() && help_.Window()->isActiveWindow()) return;
    for (const QWidget* window = QApplication::activeWindow(); window; window = window->parentWidget()) {
        if (window == this) return;
    }
    const StillDialogs::Stillness still(boxes_);
    if (records_->LeaveCell()) beside_->Store();
}

}  // namespace fabula::ide
