#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>

#include "ide/dialogs/help_pages.h"
#include "ide/dialogs/leaving.h"
#include "ide/editors/picture_view.h"
#include "ide/editors/record_picture.h"
#include "ide/window/command_actions.h"
#include "ide/window/empty_page.h"
#include "ide/window/grid/find_bar.h"
#include "ide/window/main_window.h"
#include "ide/window/panes/findings_pane.h"
#include "ide/window/panes/record_pane.h"
#include "ide/window/panes/record_panel.h"
#include "ide/window/panes/tree_panel.h"
#include "ide/window/panes/uses_pane.h"
#include "qt/help/help_book.h"
#include "qt/look/icons.h"
#include "qt/strings.h"

// What the window shows, and the menus and panes that go with it.

namespace fabula::ide {

using authoring::Command;
using authoring::Menu;

namespace {

constexpr int kEntryGroup = 1;  ///< of the menu Edit: the commands on records

/// The theme is the one of the player's window too.
constexpr const char* kTheme = "Startup/Theme";

}  // namespace

void MainWindow::ShowChanges() {
    const bool open = ide_.GetState() != authoring::MainScreen::State::NoAdventure;
    const bool changedPage = (pages_->currentWidget() == desk_) != open;
    ShowTitle();
    pages_->setCurrentWidget(open ? static_cast<QWidget*>(desk_) : empty_);
    const authoring::TreeNode* node = ide_.CurrentNode();
    tree_->Show(ide_.Tree(), node ? node->sort : -1);
    const auto file = open ? ide_.CurrentContext().document.File() : std::filesystem::path();
    const bool sameTable = open && file == shownFile_ && shownView_ == ide_.Grid().View();
    if (sameTable) {
        records_->ShowRecords();
    } else {
        shownView_ = ide_.Grid().View();
        records_->ShowTable(qt::Translated(ide_.Caption()));
        find_->ShowFields(ide_.Finder());
        tree_->setProperty(qt::kHelpPage, HelpPageOf(shownView_));
    }
    shownFile_ = file;
    records_->ChooseLine(ide_.CurrentLine());
    if (changedPage) open ? records_->Grid().setFocus() : empty_->setFocus();
    tableMenu_->setEnabled(open);
    columns_->setEnabled(open);
    ShowRecent();
    beside_->Outdate();
    ShowRow();
    if (ide_.MustExit()) close();
}

void MainWindow::ShowTitle() {
    setWindowTitle(qt::Translated(ide_.Title()));
}

void MainWindow::ShowRow() {
    qt::HelpTopic topic = HelpTopicOf(ide_.Grid(), ide_.CurrentRow());
    // A file may name a page that the help does not have.
    if (qt::HelpBook(places_.help).FileOf(topic.page).empty()) topic.page = HelpPageOf(ide_.Grid().View());
    records_->setProperty(qt::kHelpPage, topic.page);
    records_->setProperty(qt::kHelpAnchor, topic.anchors.value(0));
    ShowUses();
    findings_->Follow();
    ShowBeside();
    ShowTabs();
    ShowActions();
}

/// The record of the current row beside the rows, when the author wants it there.
void MainWindow::ShowBeside() {
    const bool wanted = (showBeside_->isChecked() || ide_.IsRecordTab()) &&
                        ide_.GetState() == authoring::MainScreen::State::Open;
    const auto request = wanted ? ide_.RecordBeside() : std::nullopt;
    // On the way over a heading the rows stay where they are.
    const bool atHeading = wanted && ide_.CurrentRow() < 0 && ide_.CurrentLine() >= 0;
    beside_->Show(request, request ? &ide_.CurrentContext() : nullptr, atHeading);
    ShowPicture();
}

/// The author goes to another line: what was typed beside the rows is stored first, which may move them.
void MainWindow::ChooseLine(int line) {
    const int row = line >= 0 ? ide_.Grid().Lines().At(line).row : -1;
    const auto key = row >= 0 ? std::optional(ide_.Grid().KeyOf(row)) : std::nullopt;
    const int changes = ide_.CurrentRow() >= 0 ? ide_.CurrentContext().document.Changes() : 0;
    if (!LeaveRecord()) return;
    if (key && ide_.CurrentContext().document.Changes() != changes) {
        ide_.SelectRow(ide_.Grid().RowOf(*key, row).value_or(-1));
        records_->ChooseLine(ide_.CurrentLine());
    } else {
        ide_.SelectLine(line);
    }
    ShowRow();
}

void MainWindow::FoldGroup(int group, bool folded) {
    if (!LeaveRecord()) return;
    if (group < static_cast<int>(ide_.Grid().Lines().Groups().size())) ide_.FoldGroup(group, folded);
    ShowChanges();
}

void MainWindow::ChooseNode(int sort) {
    if (!LeaveRecord()) {
        const authoring::TreeNode* node = ide_.CurrentNode();
        return tree_->Show(ide_.Tree(), node ? node->sort : -1);
    }
    ide_.ShowNode(sort);
    ShowChanges();
}

/// What was typed into a cell of the rows.
bool MainWindow::StoreTyped(const std::string& text) {
    if (!ide_.StoreTyped(text)) return false;
    ShowChanges();
    return true;
}

/// Stores what was typed beside the rows and in them. When that is refused, the author stays at the record.
bool MainWindow::LeaveRecord() {
    if (records_->LeaveCell() && beside_->Leave()) return true;
    // Once the rows have taken what the author did.
    QMetaObject::invokeMethod(
        this,
        [this] {
            QWidget* const focus = QApplication::focusWidget();
            records_->ChooseLine(ide_.CurrentLine());
            if (focus && focus != &records_->Grid()) focus->setFocus();
        },
        Qt::QueuedConnection);
    return false;
}

/// Before the window closes: what was typed is stored. Where that fails it may be dropped, so that nobody
/// is kept by a file that can't be written.
bool MainWindow::MayEnd() {
    if (LeaveRecord()) return true;
    bool stored = false;
    const bool dropped = MayClose(true, services_.dialogs, [&] { stored = LeaveRecord(); });
    if (!dropped) return stored;
    records_->CloseCell();
    beside_->Show(std::nullopt, nullptr);
    return true;
}

/// Where a record stands below the rows and has its picture itself, they don't give their room for it.
void MainWindow::ShowPicture() {
    const bool isBelow = work_->orientation() == Qt::Vertical && beside_->findChild<QLabel*>("pictureView");
    const bool shown =
        ide_.GetState() == authoring::MainScreen::State::Open && ide_.CurrentRow() >= 0 && !isBelow;
    records_->Picture().Show(shown ? PictureOfRecord(ide_.CurrentContext().document.Adventure(),
                                                     ide_.Grid().View().table,
                                                     ide_.Grid().KeyOf(ide_.CurrentRow()))
                                   : QImage());
}

void MainWindow::ShowActions() {
    actions_->Refresh([this](Command command) { return ide_.StateOf(command); });
    ShowStatus();
}

void MainWindow::ShowStatus() {
    message_->setText(qt::Translated(ide_.Message()));
    message_->setToolTip(ide_.Message().empty() ? QString() : qt::TipOf(qt::Translated(ide_.Message())));
    tableStatus_->setText(qt::Translated(ide_.TableStatus()));
    tableStatus_->setVisible(!tableStatus_->text().isEmpty());
    adventureStatus_->setText(qt::Translated(ide_.AdventureStatus()));
    adventureStatus_->setToolTip(adventureStatus_->text());
    adventureStatus_->setVisible(!adventureStatus_->text().isEmpty());
}

/// A group of nodes opens what its first node opens, unless it is a table itself.
bool MainWindow::OpensOwnTable(const authoring::TreeNode& node) const {
    return !node.group || authoring::NodeOf(ide_.Tree(), node.view) == &node;
}

void MainWindow::ShowTables() {
    tableMenu_->clear();
    const authoring::TreeNode* current = ide_.CurrentNode();
    for (const authoring::TreeNode& node : ide_.Tree()) {
        if (!OpensOwnTable(node)) continue;
        QAction* action =
            tableMenu_->addAction(qt::IconOf(node.icon), qt::Translated(node.name).replace('&', "&&"), this,
                                  [this, sort = node.sort] { ChooseNode(sort); });
        action->setCheckable(true);
        action->setChecked(current && current->sort == node.sort);
    }
}

/// What a click on a heading does, for the keyboard.
void MainWindow::ShowColumns() {
    columns_->clear();
    const authoring::TableGrid& grid = ide_.Grid();
    for (int column = 0; column < static_cast<int>(grid.Columns().size()); ++column) {
        const bool sorted = grid.SortColumn() == column;
        QString name =
            qt::Translated(grid.Columns()[static_cast<std::size_t>(column)].title).replace('&', "&&");
        if (sorted) name += grid.SortsDown() ? tr(" (descending)") : tr(" (ascending)");
        QAction* action = columns_->addAction(name, this, [this, column] {
            if (!LeaveRecord()) return;
            ide_.ClickColumn(column);
            ShowChanges();
        });
        action->setCheckable(true);
        action->setChecked(sorted);
    }
}

void MainWindow::ShowRecent() {
    QMenu* file = menuBar()->findChild<QMenu*>("File");
    for (QAction* action : recent_->actions()) {
        recent_->removeAction(action);
        file->removeAction(action);
        action->deleteLater();  // it may be the one that was chosen
    }
    int number = 0;
    for (const std::filesystem::path& each : ide_.RecentFiles()) {
        const QString name = qt::PathToQt(each.stem()).replace('&', "&&");
        QAction* action =
            file->addAction(QString("&%1  %2").arg(++number).arg(name), this, [this, each] { Open(each); });
        action->setToolTip(qt::TipOf(qt::PathToQt(each)));
        action->setStatusTip(qt::PathToQt(each));
        recent_->addAction(action);
    }
    empty_->ShowRecent(ide_.RecentFiles());
}

void MainWindow::NextPane(int direction) {
    const std::vector<QWidget*> panes = {
        tree_, &records_->FilterLine(), &records_->Grid(), beside_, uses_, findings_, find_};
    const int count = static_cast<int>(panes.size());
    int at = 0;
    while (at < count && !panes[static_cast<std::size_t>(at)]->isAncestorOf(QApplication::focusWidget()) &&
           panes[static_cast<std::size_t>(at)] != QApplication::focusWidget())
        ++at;
    for (int step = 1; step <= count; ++step) {
        QWidget* pane = panes[static_cast<std::size_t>((at + step * direction + 2 * count) % count)];
        if (!pane->isVisible()) continue;
        if (pane == find_) return find_->Ask();
        if (pane == uses_) return uses_->Focus();
        if (pane == findings_) return findings_->Focus();
        if (pane == beside_) return void(beside_->Enter());
        return pane->setFocus(Qt::TabFocusReason);
    }
}

void MainWindow::AskEntryMenu(const QPoint& place) {
    QMenu menu(this);
    menu.setToolTipsVisible(true);
    actions_->FillGroup(menu, Menu::Edit, kEntryGroup);
    menu.addSeparator();
    menu.addAction(actions_->Of(Command::OpenInTab));
    menu.addAction(actions_->Of(Command::Sort));
    menu.exec(place);
}

void MainWindow::ChooseTheme(qt::Theme theme) {
    services_.store.setValue(kTheme, QString::fromUtf8(qt::NameOf(theme)));
    qt::ApplyTheme(theme);
}

}  // namespace fabula::ide
