#include "ide/window/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressDialog>
#include <QScreen>
#include <QSettings>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "authoring/files/start_up.h"
#include "ide/dialogs/help_pages.h"
#include "ide/editors/alt_guard.h"
#include "ide/editors/wheel_guard.h"
#include "ide/window/command_actions.h"
#include "ide/window/empty_page.h"
#include "ide/window/grid/find_bar.h"
#include "ide/window/grid/tab_strip.h"
#include "ide/window/panes/findings_pane.h"
#include "ide/window/panes/record_pane.h"
#include "ide/window/panes/record_panel.h"
#include "ide/window/panes/tree_panel.h"
#include "ide/window/panes/uses_pane.h"
#include "ide/window/trial_run.h"
#include "qt/qt_settings.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::Command;
using authoring::Menu;

namespace {

constexpr QSize kDefaultSize(1280, 800);
constexpr QSize kSmallestSize(320, 240);
constexpr int kSmallestIcon = 22;
constexpr int kTreeWidth = 250;
constexpr int kShareOfRows = 600;  ///< of the room that they share with the record
constexpr int kShareOfRecord = 400;
constexpr int kFewestRows = 8;         ///< above a record that stands below them
constexpr int kWidthForBeside = 1200;  ///< of a window in which the record has room beside the rows

// Where the window's look is kept.
constexpr const char* kGeometry = "Desk/Geometry";
constexpr const char* kSplitter = "Desk/Splitter";
constexpr const char* kUsesShown = "Desk/Uses";
constexpr const char* kFindingsShown = "Desk/Findings";
constexpr const char* kRecordBeside = "Desk/RecordBeside";
constexpr const char* kWithNames = "Desk/WithNames";
constexpr const char* kComments = "Desk/Comments";

}  // namespace

MainWindow::MainWindow(const Services& services, Places places)
    : services_(services),
      places_(std::move(places)),
      boxes_(services.dialogs),
      ide_({boxes_, services.settings, services.clock, services.events}, places_.desk),
      navigator_(ide_),
      findingsList_(ide_, navigator_),
      help_(places_.help, services.dialogs),
      pages_(new QStackedWidget),
      empty_(new EmptyPage({.create = [this] { Do(Command::New); },
                            .open = [this] { Do(Command::Open); },
                            .import = [this] { Do(Command::Import); },
                            .tutorial =
                                [this] {
                                    help_.Show({"firstgame.html", {}});
                                },
                            .openExample = [this](const Example& example) { OpenExample(example); },
                            .openRecent = [this](const auto& file) { Open(file); }})),
      desk_(new QSplitter),
      tree_(new TreePanel([this](int sort) { ChooseNode(sort); }, [this](int sort) { OpenInTab(sort); })),
      tabs_(new TabStrip({.chosen = [this](int tab) { ChangeTabs([this, tab] { ide_.GoToTab(tab); }); },
                          .closed = [this](int tab) { ChangeTabs([this, tab] { ide_.CloseTab(tab); }); },
                          .moved = [this](int from, int to) { ide_.MoveTab(from, to); }})),
      work_(new QSplitter),
      records_(new RecordPanel(
          ide_.Grid(), services.timers,
          {.lineChosen = [this](int line) { ChooseLine(line); },
           .opened =
               [this] {
                   if (!beside_->Enter()) Do(Command::Edit);
               },
           .columnClicked =
               [this](int column) {
                   if (!LeaveRecord()) return;
                   ide_.ClickColumn(column);
                   ShowChanges();
               },
           .columnResized = [this](int column, int width) { ide_.ResizeColumn(column, width); },
           .filtered =
               [this](const std::string& text) {
                   if (!LeaveRecord()) return;
                   ide_.SetFilter(text);
                   ShowChanges();
               },
           .menuAsked = [this](const QPoint& place) { AskEntryMenu(place); },
           .folded = [this](int group, bool folded) { FoldGroup(group, folded); },
           .openedInTab = [this] { Do(Command::OpenInTab); },
           .typedColumn = [this] { return ide_.TypedColumn(); },
           .mayType = [this](int row) { return ide_.MayType(row); },
           .typed = [this](const std::string& text) { return StoreTyped(text); },
           .cellLeft = [this] { LeaveRecord(); }})),
      beside_(new RecordPane({.stored =
                                  [this](const authoring::ScreenRequest& request) {
                                      ide_.ScreenClosed(request);
                                      ShowChanges();
                                  },
                              .left = [this] { records_->Grid().setFocus(); }})),
      find_(new FindBar({.changed =
                             [this](const std::string& text, std::optional<std::size_t> field) {
                                 ide_.Finder().text = text;
                                 ide_.Finder().Choose(field);
                             },
                         .find = [this] { DoInLogic(Command::Find); },
                         .closed =
                             [this] {
                                 find_->hide();
                                 records_->Grid().setFocus();
                             }})),
      uses_(new UsesPane([this](const authoring::Jump& jump) {
          if (LeaveRecord()) Jump(jump);
      })),
      findings_(new FindingsPane(findingsList_, services.timers, services.dialogs,
                                 {.chosen =
                                      [this](const authoring::Jump& jump) {
                                          if (LeaveRecord()) Jump(jump);
                                      },
                                  .leaves = [this] { return LeaveRecord(); },
                                  .switched = [this] { ShowChanges(); },
                                  .left = [this] { records_->Grid().setFocus(); }})),
      actions_(new CommandActions(this, [this](Command command) { Do(command); })),
      message_(new QLabel),
      tableStatus_(new QLabel),
      adventureStatus_(new QLabel) {
    setObjectName("MainScreen");
    setMinimumSize(kSmallestSize);
    setAcceptDrops(true);
    new WheelGuard(this);
    new AltGuard(this);
    setProperty(qt::kHelpPage, kMainWindowPage);
    ide_.upgradeBoxes = {.steps = [this](std::string_view steps) { ShowUpgrade(steps); },
                         .chooseType = [this](store::AdventureSetup& setup) { ChooseType(setup); }};
    ide_.beforeDelete = [this](const authoring::Deletion& deletion) { return AskBeforeDelete(deletion); };
    MakePages();
    MakeMenus();
    MakeStatusBar();
    MakeKeys();
    PlaceWindow();
    empty_->ShowExamples(places_.examples);
    ShowChanges();
}

MainWindow::~MainWindow() {
    // The panes show what the logic holds, up to their own end.
    delete takeCentralWidget();
}

void MainWindow::MakePages() {
    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(records_, 1);
    column->addWidget(uses_);
    column->addWidget(findings_);
    column->addWidget(find_);
    find_->hide();
    uses_->setVisible(services_.store.value(kUsesShown, false).toBool());
    findings_->setVisible(services_.store.value(kFindingsShown, false).toBool());
    desk_->setChildrenCollapsible(false);
    desk_->setHandleWidth(1);
    desk_->addWidget(tree_);
    work_->setChildrenCollapsible(false);
    work_->addWidget(right);
    work_->addWidget(beside_);
    work_->setStretchFactor(0, 1);
    work_->setStretchFactor(1, 0);
    beside_->hide();
    desk_->addWidget(work_);
    desk_->setStretchFactor(1, 1);
    desk_->setSizes({kTreeWidth, kDefaultSize.width() - kTreeWidth});
    tree_->setMinimumWidth(80);
    right->setMinimumWidth(160);
    pages_->addWidget(empty_);
    pages_->addWidget(desk_);
    setCentralWidget(pages_);
}

void MainWindow::MakeMenus() {
    actions_->FillMenuBar(*menuBar());
    QMenu* file = menuBar()->findChild<QMenu*>("File");
    recent_ = new QActionGroup(this);
    recent_->setExclusive(false);
    file->addSeparator();
    QMenu* view = menuBar()->findChild<QMenu*>("View");
    view->addSeparator();
    tableMenu_ = view->addMenu(tr("&Tables"));
    tableMenu_->setObjectName("Tables");
    columns_ = view->addMenu(tr("Sort &Rows By"));
    columns_->setObjectName("Columns");
    // Filled when they are opened: none of their lines may go while it is being chosen.
    QObject::connect(tableMenu_, &QMenu::aboutToShow, this, [this] { ShowTables(); });
    QObject::connect(columns_, &QMenu::aboutToShow, this, [this] { ShowColumns(); });
    view->addSeparator();
    MakeViewSwitches(*view);
    MakeThemeMenu(*view);

    QToolBar* bar = addToolBar(tr("Tool bar"));
    bar->setObjectName("Toolbar");
    bar->setMovable(false);
    const int icon = std::max(kSmallestIcon, fontMetrics().height() * 5 / 4);
    bar->setIconSize(QSize(icon, icon));
    actions_->FillToolBar(*bar);
    // What an author does most often is said in words.
    for (const Command command : {Command::Add, Command::Run, Command::Verify}) {
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(actions_->Of(command)));
        if (button) button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    view->addSeparator();
    view->addAction(bar->toggleViewAction());
    const auto addPane = [this, view](const QString& text, const char* name, QWidget* pane) {
        QAction* action =
            view->addAction(text, this, [this, pane] { ShowBelow(pane, !pane->isVisibleTo(desk_)); });
        action->setObjectName(name);
        action->setCheckable(true);
        QObject::connect(view, &QMenu::aboutToShow, this,
                         [this, action, pane] { action->setChecked(pane->isVisibleTo(desk_)); });
    };
    addPane(tr("&Uses"), "UsesShown", uses_);
    addPane(tr("F&indings"), "FindingsShown", findings_);
}

void MainWindow::MakeViewSwitches(QMenu& view) {
    const auto add = [&](const char* name, const QString& text, const QKeySequence& key,
                         const QString& kept, const std::function<void(bool)>& show) {
        QAction* action = view.addAction(text);
        action->setObjectName(name);
        action->setShortcut(key);
        action->setCheckable(true);
        action->setChecked(services_.store.value(kept, false).toBool());
        QObject::connect(action, &QAction::toggled, this, [this, action, kept, show](bool on) {
            if (LeaveRecord()) {
                services_.store.setValue(kept, on);
                return show(on);
            }
            // The record stays, and with it what is shown of it.
            const QSignalBlocker refused(action);
            action->setChecked(!on);
        });
        return action;
    };
    showBeside_ = add("RecordBeside", tr("Record &Beside the Rows"), Qt::Key_F9, kRecordBeside,
                      [this](bool) { ShowBeside(); });
    const QAction* names =
        add("WithNames", tr("Process Tables with &Names"), Qt::Key_F8, kWithNames, [this](bool on) {
            ide_.ShowNames(on);
            ShowChanges();
        });
    ide_.ShowNames(names->isChecked());
    const QAction* comments = add("Comments", tr("Co&mments"), {}, kComments, [this](bool on) {
        ide_.ShowComments(on);
        ShowChanges();
    });
    ide_.ShowComments(comments->isChecked());
}

void MainWindow::MakeThemeMenu(QMenu& view) {
    QMenu* menu = view.addMenu(tr("T&heme"));
    themes_ = new QActionGroup(this);
    const qt::Theme now = qt::ThemeFrom(services_.settings.Get("Startup", "Theme"));
    const auto add = [&](qt::Theme theme, const char* name, const QString& text) {
        QAction* action = menu->addAction(text, this, [this, theme] { ChooseTheme(theme); });
        action->setObjectName(name);
        action->setCheckable(true);
        action->setChecked(theme == now);
        themes_->addAction(action);
    };
    add(qt::Theme::System, "ThemeSystem", tr("&System"));
    add(qt::Theme::Light, "ThemeLight", tr("&Light"));
    add(qt::Theme::Dark, "ThemeDark", tr("&Dark"));
    qt::ApplyTheme(now);
}

void MainWindow::MakeStatusBar() {
    const auto add = [](QLabel& label, const char* name, const QString& spoken) {
        label.setObjectName(name);
        label.setAccessibleDescription(spoken);
        label.setTextFormat(Qt::PlainText);
        label.setContentsMargins(6, 0, 6, 0);
    };
    add(*message_, "status", tr("What just happened"));
    add(*tableStatus_, "TableStatus", tr("Table in view"));
    add(*adventureStatus_, "AdventureStatus", tr("Adventure"));
    // Long sentences are cut rather than widening the window.
    message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    adventureStatus_->setMinimumWidth(1);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(message_, 3);
    statusBar()->addPermanentWidget(tableStatus_);
    statusBar()->addPermanentWidget(adventureStatus_);
}

void MainWindow::MakeKeys() {
    // Del belongs to the rows; elsewhere it edits text.
    QAction* remove = actions_->Of(Command::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    records_->Grid().addAction(remove);
    // Elsewhere Ctrl+Enter stores a record.
    QAction* inTab = actions_->Of(Command::OpenInTab);
    inTab->setShortcutContext(Qt::WidgetShortcut);
    records_->Grid().addAction(inTab);
    tree_->addAction(inTab);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(tree_, &QWidget::customContextMenuRequested, this,
                     [this](const QPoint& place) { AskTreeMenu(place); });
    const auto add = [this](const QKeySequence& key, int direction) {
        auto* action = new QAction(this);
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, this, [this, direction] { NextPane(direction); });
        addAction(action);
    };
    add(Qt::Key_F6, 1);
    add(QKeySequence(Qt::SHIFT | Qt::Key_F6), -1);
}

void MainWindow::PlaceWindow() {
    desk_->restoreState(services_.store.value(kSplitter).toByteArray());
    if (restoreGeometry(services_.store.value(kGeometry).toByteArray())) return;
    resize(kDefaultSize.boundedTo(screen()->availableSize() * 9 / 10));
}

void MainWindow::Start(const std::filesystem::path& file) {
    std::error_code error;  // what can't be looked at is told below
    const bool isFile = std::filesystem::is_regular_file(file, error);
    const auto remembered = std::filesystem::absolute(file, error).string();
    if (isFile) services_.settings.Set(authoring::startup::kSection, authoring::startup::kFile, remembered);
    ide_.Start();
    if (!isFile && !file.empty()) ide_.OpenFile(file);
    const std::string notKept = qt::WhyNotKept(services_.store);
    if (!notKept.empty()) ide_.Say(notKept);
    ShowChanges();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!MayEnd()) return event->ignore();
    services_.store.setValue(kGeometry, saveGeometry());
    services_.store.setValue(kSplitter, desk_->saveState());
    services_.store.setValue(kUsesShown, uses_->isVisibleTo(desk_));
    services_.store.setValue(kFindingsShown, findings_->isVisibleTo(desk_));
    ide_.End();
    help_.Close();
    event->accept();
    QApplication::quit();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    ArrangePanes();
}

/// The record stands beside the rows where the window has the room, and else below them.
void MainWindow::ArrangePanes() {
    const bool wide = width() >= kWidthForBeside;
    const auto wanted = wide ? Qt::Horizontal : Qt::Vertical;
    if (work_->orientation() != wanted) {
        work_->setOrientation(wanted);
        work_->setSizes({kShareOfRows, kShareOfRecord});
        ShowPicture();
    }
    records_->KeepRoomFor(wide ? 0 : kFewestRows, pages_->height() / 2);
    // Until the author chooses, the room decides whether it is shown.
    if (services_.store.contains(kRecordBeside) || showBeside_->isChecked() == wide || !LeaveRecord())
        return;
    const QSignalBlocker unchosen(showBeside_);
    showBeside_->setChecked(wide);
    ShowBeside();
}

void MainWindow::changeEvent(QEvent* event) {
    // Icons are drawn in the theme's colours, but buttons keep what they have drawn.
    if (event->type() == QEvent::PaletteChange) update();
    // Which window has the keyboard instead is known a moment later.
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
        QMetaObject::invokeMethod(
            this, [this] { StoreBeside(); }, Qt::QueuedConnection);
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().first().isLocalFile())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    Open(qt::PathFromQt(event->mimeData()->urls().first().toLocalFile()));
}

}  // namespace fabula::ide
