#include "ide/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "authoring/start_up.h"
#include "ide/command_actions.h"
#include "ide/empty_page.h"
#include "ide/find_bar.h"
#include "ide/game_test.h"
#include "ide/help_pages.h"
#include "ide/import_dialog.h"
#include "ide/job_events.h"
#include "ide/record_panel.h"
#include "ide/screens.h"
#include "ide/setup_dialog.h"
#include "ide/sort_dialog.h"
#include "ide/tree_panel.h"
#include "ide/verify_dialog.h"
#include "player/about_adventure.h"
#include "qt/help_book.h"
#include "qt/icons.h"
#include "qt/strings.h"

namespace fabula::ide {

using authoring::Command;
using authoring::Menu;

namespace {

constexpr QSize kDefaultSize(1080, 700);
constexpr QSize kSmallestSize(320, 240);
constexpr int kSmallestIcon = 22;
constexpr int kTreeWidth = 250;
constexpr int kEntryGroup = 1;  ///< of the menu Edit: the commands on records

// Where the window's look is kept. The theme is the one of the player's window too.
constexpr const char* kGeometry = "Desk/Geometry";
constexpr const char* kSplitter = "Desk/Splitter";
constexpr const char* kTheme = "Startup/Theme";

}  // namespace

MainWindow::MainWindow(const Services& services, Places places)
    : services_(services),
      places_(std::move(places)),
      ide_({services.dialogs, services.settings, services.clock, services.events}, places_.desk),
      help_(places_.help, services.dialogs),
      pages_(new QStackedWidget),
      empty_(new EmptyPage({.create = [this] { Do(Command::New); },
                            .open = [this] { Do(Command::Open); },
                            .import = [this] { Do(Command::Import); },
                            .openExample = [this](const Example& example) { OpenExample(example); },
                            .openRecent = [this](const auto& file) { Open(file); }})),
      desk_(new QSplitter),
      tree_(new TreePanel([this](int sort) {
          ide_.ShowNode(sort);
          ShowChanges();
      })),
      records_(new RecordPanel(
          ide_.Grid(), services.timers,
          {.rowChosen =
               [this](int row) {
                   ide_.SelectRow(row);
                   ShowRow();
               },
           .opened = [this] { Do(Command::Edit); },
           .columnClicked =
               [this](int column) {
                   ide_.ClickColumn(column);
                   ShowChanges();
               },
           .columnResized = [this](int column, int width) { ide_.ResizeColumn(column, width); },
           .filtered =
               [this](const std::string& text) {
                   ide_.SetFilter(text);
                   ShowChanges();
               },
           .menuAsked = [this](const QPoint& place) { AskEntryMenu(place); }})),
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
      actions_(new CommandActions(this, [this](Command command) { Do(command); })),
      message_(new QLabel),
      tableStatus_(new QLabel),
      adventureStatus_(new QLabel) {
    setObjectName("frmVelIDEMain");
    setMinimumSize(kSmallestSize);
    setAcceptDrops(true);
    setProperty(qt::kHelpPage, kMainWindowPage);
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
    column->addWidget(records_, 1);
    column->addWidget(find_);
    find_->hide();
    desk_->setChildrenCollapsible(false);
    desk_->setHandleWidth(1);
    desk_->addWidget(tree_);
    desk_->addWidget(right);
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
    tables_ = view->addMenu(tr("&Tables"));
    tables_->setObjectName("Tables");
    view->addSeparator();
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
        label.setAccessibleName(spoken);
        label.setTextFormat(Qt::PlainText);
        label.setContentsMargins(6, 0, 6, 0);
    };
    add(*message_, "txtStatus", tr("What just happened"));
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
    const auto add = [this](QKeySequence key, int direction) {
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
    if (std::filesystem::is_regular_file(file)) {
        const auto remembered = std::filesystem::absolute(file).string();
        services_.settings.Set(authoring::startup::kSection, authoring::startup::kFile, remembered);
    }
    ide_.Form_Load();
    ShowChanges();
}

// --- What the window shows -------------------------------------------------------------------------------

void MainWindow::ShowChanges() {
    const bool open = ide_.GetState() != authoring::frmVelIDEMain::State::NoAdventure;
    const bool changedPage = (pages_->currentWidget() == desk_) != open;
    setWindowTitle(qt::ToQt(ide_.Title()));
    pages_->setCurrentWidget(open ? static_cast<QWidget*>(desk_) : empty_);
    const authoring::TreeNode* node = ide_.CurrentNode();
    tree_->Show(ide_.Tree(), node ? node->sort : -1);
    const auto file = open ? ide_.CurrentSession().document.File() : std::filesystem::path();
    const bool sameTable = open && file == shownFile_ && shownView_ == ide_.Grid().View();
    if (sameTable) {
        records_->ShowRecords();
    } else {
        shownView_ = ide_.Grid().View();
        records_->ShowTable(qt::ToQt(ide_.Caption()));
        find_->ShowFields(ide_.Finder());
        tree_->setProperty(qt::kHelpPage, HelpPageOf(shownView_));
    }
    shownFile_ = file;
    records_->ChooseRow(ide_.CurrentRow());
    if (changedPage) open ? records_->Grid().setFocus() : empty_->setFocus();
    ShowTables();
    ShowRecent();
    ShowRow();
    if (ide_.MustExit()) close();
}

void MainWindow::ShowRow() {
    qt::HelpTopic topic = HelpTopicOf(ide_.Grid(), ide_.CurrentRow());
    // A file may name a page that the help does not have.
    if (qt::HelpBook(places_.help).FileOf(topic.page).empty()) topic.page = HelpPageOf(ide_.Grid().View());
    records_->setProperty(qt::kHelpPage, topic.page);
    records_->setProperty(qt::kHelpAnchor, topic.anchors.value(0));
    ShowActions();
}

void MainWindow::ShowActions() {
    actions_->Refresh([this](Command command) { return ide_.StateOf(command); });
    ShowStatus();
}

void MainWindow::ShowStatus() {
    message_->setText(qt::ToQt(ide_.Message()));
    message_->setToolTip(qt::ToQt(ide_.Message()).toHtmlEscaped());
    tableStatus_->setText(qt::ToQt(ide_.TableStatus()));
    tableStatus_->setVisible(!tableStatus_->text().isEmpty());
    adventureStatus_->setText(qt::ToQt(ide_.AdventureStatus()));
    adventureStatus_->setVisible(!adventureStatus_->text().isEmpty());
}

void MainWindow::ShowTables() {
    tables_->clear();
    tables_->setEnabled(!ide_.Tree().empty());
    const authoring::TreeNode* current = ide_.CurrentNode();
    for (const authoring::TreeNode& node : ide_.Tree()) {
        if (node.group) continue;
        QAction* action = tables_->addAction(qt::IconOf(node.icon), qt::ToQt(node.name).replace('&', "&&"),
                                             this, [this, sort = node.sort] {
                                                 ide_.ShowNode(sort);
                                                 ShowChanges();
                                             });
        action->setCheckable(true);
        action->setChecked(current && current->sort == node.sort);
    }
}

void MainWindow::ShowRecent() {
    QMenu* file = menuBar()->findChild<QMenu*>("File");
    for (QAction* action : recent_->actions())
        delete action;
    int number = 0;
    for (const std::filesystem::path& each : ide_.RecentFiles()) {
        const QString name = qt::PathToQt(each.stem()).replace('&', "&&");
        QAction* action =
            file->addAction(QString("&%1  %2").arg(++number).arg(name), this, [this, each] { Open(each); });
        action->setToolTip(qt::PathToQt(each).toHtmlEscaped());
        action->setStatusTip(qt::PathToQt(each));
        recent_->addAction(action);
    }
    empty_->ShowRecent(ide_.RecentFiles());
}

void MainWindow::NextPane(int direction) {
    const std::vector<QWidget*> panes = {tree_, &records_->FilterLine(), &records_->Grid(), find_};
    const int count = static_cast<int>(panes.size());
    int at = 0;
    while (at < count && !panes[static_cast<std::size_t>(at)]->isAncestorOf(QApplication::focusWidget()) &&
           panes[static_cast<std::size_t>(at)] != QApplication::focusWidget())
        ++at;
    for (int step = 1; step <= count; ++step) {
        QWidget* pane = panes[static_cast<std::size_t>((at + step * direction + 2 * count) % count)];
        if (!pane->isVisible()) continue;
        if (pane == find_) return find_->Ask();
        return pane->setFocus(Qt::TabFocusReason);
    }
}

void MainWindow::AskEntryMenu(const QPoint& place) {
    QMenu menu(this);
    menu.setToolTipsVisible(true);
    actions_->FillGroup(menu, Menu::Edit, kEntryGroup);
    menu.addSeparator();
    menu.addAction(actions_->Of(Command::Sort));
    menu.exec(place);
}

void MainWindow::ChooseTheme(qt::Theme theme) {
    services_.store.setValue(kTheme, QString::fromUtf8(qt::NameOf(theme)));
    qt::ApplyTheme(theme);
}

// --- Commands --------------------------------------------------------------------------------------------

void MainWindow::Do(Command command) {
    if (!ide_.StateOf(command).enabled) return;
    switch (command) {
        case Command::New:
            return New();
        case Command::Exit:
            return void(close());
        case Command::Run:
            return StartTest();
        case Command::Import:
            return ImportOrExport(authoring::JobMode::Import);
        case Command::Export:
            return ImportOrExport(authoring::JobMode::Export);
        case Command::Sort:
            return Sort();
        case Command::Verify:
            return Verify();
        case Command::Filter:
            return records_->FilterLine().setFocus();
        case Command::Find:
        case Command::FindNext:
            return FindOrAsk(command);
        case Command::Help:
            return help_.Show(qt::TopicOf(QApplication::focusWidget()));
        case Command::HelpContents:
            return help_.Show({});
        case Command::AboutAdventure:
            return AboutAdventure();
        case Command::About:
            return About();
        default:
            return DoInLogic(command);
    }
}

void MainWindow::DoInLogic(Command command) {
    const auto request = ide_.Run(command);
    if (request) {
        try {
            if (!OpenScreen(*request, ide_.CurrentSession(), this))
                services_.dialogs.Tell("This version has no screen for the settings yet.", "Error");
        } catch (const Error& error) {
            services_.dialogs.Tell(error.what(), "Error");
        }
        ide_.ScreenClosed(*request);
    }
    ShowChanges();
}

void MainWindow::FindOrAsk(Command command) {
    if (command == Command::Find || !find_->isVisible() || ide_.Finder().text.empty()) return find_->Ask();
    DoInLogic(Command::Find);
}

void MainWindow::New() {
    const auto file = ide_.AskNewFile();
    if (!file) return;
    store::frmSetup setup;
    SetupDialog dialog(setup, this);
    if (dialog.exec() != QDialog::Accepted) return;
    ide_.NewAdventure(*file, setup, dialog.Starter());
    ShowChanges();
}

void MainWindow::Open(const std::filesystem::path& file) {
    ide_.OpenFile(file);
    ShowChanges();
}

void MainWindow::OpenExample(const Example& example) {
    try {
        Open(TakeExample(example, places_.ownGames));
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

void MainWindow::Sort() {
    authoring::SortScreen screen = ide_.mnuEditSort();
    SortDialog dialog(screen, services_.dialogs, this);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.exec();
    ide_.SortClosed();
    ShowChanges();
}

void MainWindow::Verify() {
    JobEvents events;
    authoring::frmVerify verify(ide_.CurrentSession().document.Adventure(), authoring::VerifyTarget::Play,
                                events);
    VerifyDialog dialog(verify, services_.dialogs, this);
    dialog.goTo = [this](const authoring::frmVerify::Entry& entry) { GoTo(entry); };
    dialog.exec();
    ide_.Refresh();
    ide_.Say(verify.Passed() ? "The adventure has passed." : "The adventure has not passed.");
    ShowChanges();
}

void MainWindow::GoTo(const authoring::frmVerify::Entry& entry) {
    ide_.Show({store::TableNum::ProcessTables, std::min(entry.estype, authoring::kOtherProcesses)});
    if (const auto row = ide_.Grid().RowOf(entry.canum)) ide_.SelectRow(*row);
}

void MainWindow::ImportOrExport(authoring::JobMode mode) {
    const bool open = ide_.GetState() != authoring::frmVelIDEMain::State::NoAdventure;
    JobEvents events;
    authoring::frmSrcImport screen(
        mode, open ? &ide_.CurrentSession().document.Adventure() : nullptr,
        {services_.dialogs, services_.clock, events, services_.settings, places_.desk.defaultData});
    ImportDialog dialog(screen, services_.dialogs, this);
    dialog.exec();
    if (screen.NewFile()) ide_.OpenFile(*screen.NewFile());
    if (mode == authoring::JobMode::Export && screen.Done())
        ide_.Say("Exported to " + std::filesystem::path(screen.txtSource).filename().string() + ".");
    ShowChanges();
}

void MainWindow::StartTest() {
    const auto run = ide_.BeginRunTest();
    if (!run) return ShowChanges();
    try {
        test_ = std::make_unique<GameTest>(
            *run,
            player::WindowServices{.timers = services_.timers,
                                   .dialogs = services_.dialogs,
                                   .sound = services_.sound,
                                   .random = services_.random,
                                   .settings = services_.store,
                                   .dataFolder = places_.playersData,
                                   .help = [this](const qt::HelpTopic& topic) { help_.Show(topic); }},
            services_.clock.Now(), [this] { EndTest(); });
        hide();
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
        EndTest();
    }
}

void MainWindow::EndTest() {
    test_.reset();
    ide_.EndRunTest();
    show();
    activateWindow();
    ShowChanges();
    records_->Grid().setFocus();
}

void MainWindow::AboutAdventure() {
    const bool open = ide_.GetState() != authoring::frmVelIDEMain::State::NoAdventure;
    store::Adventure* const adventure = open ? &ide_.CurrentSession().document.Adventure() : nullptr;
    player::ShowAbout(player::frmAboutAdventure::Of(adventure), this);
}

void MainWindow::About() {
    services_.dialogs.Tell("Fabula IDE " + qt::FromQt(QApplication::applicationVersion()),
                           "About Fabula IDE");
}

// --- Events ----------------------------------------------------------------------------------------------

void MainWindow::closeEvent(QCloseEvent* event) {
    services_.store.setValue(kGeometry, saveGeometry());
    services_.store.setValue(kSplitter, desk_->saveState());
    ide_.Form_Unload();
    help_.Close();
    event->accept();
    QApplication::quit();
}

void MainWindow::changeEvent(QEvent* event) {
    // Icons are drawn in the theme's colours, but buttons keep what they have drawn.
    if (event->type() == QEvent::PaletteChange) update();
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
