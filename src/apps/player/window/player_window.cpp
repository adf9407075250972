#include "player/window/player_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QToolBar>
#include <QWheelEvent>

#include "platform/error.h"
#include "player/panes/game_screen.h"
#include "player/panes/status_pane.h"
#include "player/panes/text_pane.h"
#include "player/play/session.h"
#include "player/window/about_adventure.h"
#include "player/window/diagnostics_window.h"
#include "player/window/welcome_page.h"
#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr QSize kDefaultSize(880, 780);
constexpr QSize kSmallestSize(320, 240);
/// How soon a window that can't close yet tries again.
constexpr std::chrono::milliseconds kBusyDelay{50};

}  // namespace

PlayerWindow::PlayerWindow(const WindowServices& services)
    : services_(services),
      settings_(PlayerSettings::Load(services.settings)),
      opening_(services.timers, [this] { Load(openAtStart_); }),
      closing_(services.timers, [this] { CloseAfterGame(); }),
      pages_(new QStackedWidget),
      welcome_(new WelcomePage([this] { AskForGame(); }, [this](const auto& file) { Load(file); })),
      screen_(new GameScreen(services.timers, services.dialogs,
                             {.started = [this](const engine::GameLook& look) { GameStarted(look); },
                              .ended = [this] { GameEnded(); },
                              .status = [this](engine::StatusField field,
                                               const std::string& text) { status_->Show(field, text); },
                              .nextEnabled =
                                  [this](bool enabled) {
                                      next_->setEnabled(enabled);
                                      next_->setVisible(enabled);
                                  },
                              .stepped =
                                  [this] {
                                      if (debugWindow_) debugWindow_->Follow();
                                  },
                              .notice = [this](const std::string& sentence) { Tell(sentence); }})),
      status_(new StatusPane) {
    setObjectName("playerWindow");
    setProperty(qt::kHelpPage, "frmvelengmain.html");
    setWindowTitle("Fabula");
    setMinimumSize(kSmallestSize);
    setAcceptDrops(true);
    MakeActions();
    MakeMenus();
    MakeToolBar();
    MakeEndBar();
    auto* game = new QWidget;
    auto* column = new QVBoxLayout(game);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(screen_, 1);
    column->addWidget(endBar_);
    pages_->addWidget(welcome_);
    pages_->addWidget(game);
    setCentralWidget(pages_);
    setStatusBar(status_);
    status_->Show(engine::StatusField::Script, "Script Off");
    ApplySettings();
    ShowRecent();
    PlaceWindow();
    welcome_->setFocus();
}

PlayerWindow::~PlayerWindow() {
    EndSession();
}

QAction* PlayerWindow::AddAction(const char* name, const QString& text, const QString& iconText,
                                 std::function<void()> act) {
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setIconText(iconText);
    QObject::connect(action, &QAction::triggered, this, std::move(act));
    addAction(action);
    return action;
}

void PlayerWindow::MakeActions() {
    load_ = AddAction("LoadAdv", tr("&Load Adventure…"), tr("Load"), [this] { AskForGame(); });
    load_->setShortcut(QKeySequence::Open);
    exit_ = AddAction("Exit", tr("E&xit"), tr("Exit"), [this] { close(); });
    exit_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    next_ = AddAction("Next", tr("&Next Line of the Script"), tr("Next"), [this] {
        if (session_ && session_->Next()) screen_->ShowStep();
    });
    next_->setShortcut(Qt::Key_F8);
    next_->setEnabled(false);
    next_->setVisible(false);
    sound_ = AddAction("Sound", tr("&Sound"), tr("Sound"), [this] { ToggleSound(); });
    sound_->setCheckable(true);
    sound_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
    startAgain_ = AddAction("StartAgain", tr("Start &Again"), tr("Start Again"), [this] { StartAgain(); });
    transcript_ = AddAction("Transcript", tr("&Transcript…"), tr("Transcript"),
                            [this] { ToggleTranscript(transcript_->isChecked()); });
    transcript_->setCheckable(true);
    help_ = AddAction("Help", tr("&Help"), tr("Help"),
                      [this] { services_.help(qt::TopicOf(QApplication::focusWidget())); });
    help_->setShortcut(Qt::Key_F1);
    helpContents_ =
        AddAction("HelpContents", tr("&Contents"), tr("Contents"), [this] { services_.help({}); });
    about_ = AddAction("About", tr("About this &Adventure"), tr("About"), [this] { About(); });
    debug_ = AddAction("Debug", tr("&Debug"), tr("Debug"), [this] { ShowDiagnostics(); });
    debug_->setEnabled(services_.testRun);
    debug_->setVisible(services_.testRun);
    zoomIn_ = AddAction("ZoomIn", tr("Zoom &In"), tr("Zoom In"), [this] { Zoom(1); });
    zoomIn_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    zoomOut_ = AddAction("ZoomOut", tr("Zoom &Out"), tr("Zoom Out"), [this] { Zoom(-1); });
    zoomOut_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    zoomNormal_ = AddAction("ZoomNormal", tr("&Normal Size"), tr("Normal Size"), [this] { Zoom(0); });
    zoomNormal_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    flashing_ = AddAction("Flashing", tr("&Flashing Text"), tr("Flashing"), [this] {
        settings_.flashing = flashing_->isChecked();
        ApplySettings();
    });
    flashing_->setCheckable(true);
    plainText_ = AddAction("PlainText", tr("Character Games as &Plain Text"), tr("Plain Text"), [this] {
        settings_.plainText = plainText_->isChecked();
        ApplySettings();
    });
    plainText_->setCheckable(true);
}

void PlayerWindow::MakeMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(load_);
    recentMenu_ = file->addMenu(tr("&Recent Games"));
    file->addSeparator();
    file->addAction(exit_);
    QMenu* game = menuBar()->addMenu(tr("&Game"));
    game->addActions({sound_, transcript_, next_, startAgain_, debug_});
    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addActions({zoomIn_, zoomOut_, zoomNormal_});
    view->addSeparator();
    MakeThemeMenu(*view);
    view->addActions({flashing_, plainText_});
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addActions({help_, helpContents_});
    help->addSeparator();
    help->addAction(about_);
}

void PlayerWindow::MakeThemeMenu(QMenu& view) {
    QMenu* menu = view.addMenu(tr("&Theme"));
    auto* group = new QActionGroup(this);
    const auto add = [&](qt::Theme theme, const char* name, const QString& text) {
        QAction* action = AddAction(name, text, text, [this, theme] {
            settings_.theme = theme;
            ApplySettings();
        });
        action->setCheckable(true);
        action->setChecked(settings_.theme == theme);
        group->addAction(action);
        menu->addAction(action);
    };
    add(qt::Theme::System, "ThemeSystem", tr("&System, with the Game's Own Colours"));
    add(qt::Theme::Light, "ThemeLight", tr("&Light"));
    add(qt::Theme::Dark, "ThemeDark", tr("&Dark"));
}

void PlayerWindow::MakeToolBar() {
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName("Toolbar");
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({load_, next_, sound_, debug_, about_, exit_});
    // Tab goes from the game to the buttons and on.
    for (QAction* action : bar->actions())
        bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
}

void PlayerWindow::MakeEndBar() {
    endBar_ = new QWidget;
    endBar_->setObjectName("EndBar");
    auto* row = new QHBoxLayout(endBar_);
    row->setContentsMargins(12, 6, 12, 6);
    auto* again = new QPushButton(tr("Play Again"));
    auto* load = new QPushButton(tr("Load…"));
    load->setAccessibleName(tr("Load another adventure"));
    QObject::connect(again, &QPushButton::clicked, this, [this] { StartAgain(); });
    QObject::connect(load, &QPushButton::clicked, this, [this] { AskForGame(); });
    // Short, for narrow windows and large text.
    row->addWidget(new QLabel(tr("The end.")), 1);
    row->addWidget(again);
    row->addWidget(load);
    endBar_->setFocusProxy(again);
    endBar_->hide();
}

void PlayerWindow::PlaceWindow() {
    if (!settings_.geometry.isEmpty() && restoreGeometry(settings_.geometry)) return;
    resize(kDefaultSize.boundedTo(screen()->availableSize() * 9 / 10));
}

void PlayerWindow::OpenAtStart(const std::filesystem::path& file) {
    openAtStart_ = file;
    pages_->setCurrentIndex(1);
    screen_->Text().Write("One moment while I Inititlize", player::TextLook().style, {});
    opening_.Start(std::chrono::milliseconds(1));
}

void PlayerWindow::AskForGame() {
    const auto& recent = settings_.recent.Files();
    const auto start = recent.empty() ? std::filesystem::current_path() : recent.front().parent_path();
    const auto file = services_.dialogs.ChooseFile(
        {.title = "Open VEL Database", .filter = "VEL Database|*.fbd", .extension = "fbd", .start = start});
    if (file) Load(*file);
}

void PlayerWindow::Load(const std::filesystem::path& file) {
    if (session_ && session_->IsBusy()) return;
    std::unique_ptr<Session> opened;
    try {
        opened = std::make_unique<Session>(
            file, services_.dataFolder,
            engine::Host{*screen_, services_.dialogs, services_.random, services_.sound, services_.trace,
                         screen_->Parts()},
            services_.timers, services_.testRun ? Autosave::Off : Autosave::On, services_.options);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
        settings_.recent.Remove(file);
        ShowRecent();
        if (!session_) pages_->setCurrentIndex(0);
        return;
    }
    EndSession();
    session_ = std::move(opened);
    screen_->Attach(session_.get());
    if (!services_.testRun) settings_.recent.AddMRUItem(std::filesystem::absolute(file));
    ShowRecent();
    pages_->setCurrentIndex(1);
    const bool resume =
        session_->CanResume() &&
        services_.dialogs.Confirm("Go on where the last session of this game stopped?", "Resume");
    session_->Start();
    if (resume && session_->WaitingFor() != engine::Waiting::Nothing) session_->Resume();
    sound_->setChecked(session_->SoundOn());
    screen_->ShowStep();
}

void PlayerWindow::Tell(const std::string& sentence) {
    status_->Tell(sentence);
}

void PlayerWindow::SoundFailed(const std::string& sentence) {
    Tell(sentence);
    // It is noticed in the midst of a turn, which goes on first.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (session_ && session_->SoundOn()) ToggleSound();
        },
        Qt::QueuedConnection);
}

void PlayerWindow::EndSession() {
    debugWindow_.reset();
    transcript_->setChecked(false);
    screen_->Transcript().Close();
    screen_->Attach(nullptr);
    session_.reset();
}

void PlayerWindow::GameStarted(const engine::GameLook& look) {
    setWindowTitle(qt::ToQt(look.title));
    status_->Tell("");
    endBar_->hide();
    screen_->FocusInput();
}

void PlayerWindow::GameEnded() {
    // The engine is still at work: a window that closes lets it finish first.
    if (services_.testRun) return closing_.Start(std::chrono::milliseconds(0));
    endBar_->show();
    endBar_->setFocus();
}

void PlayerWindow::CloseAfterGame() {
    if (!close()) closing_.Start(kBusyDelay);
}

void PlayerWindow::StartAgain() {
    if (!session_ || session_->IsBusy()) return;
    session_->Start();
    screen_->ShowStep();
}

void PlayerWindow::ToggleSound() {
    if (session_) session_->ToggleSound();
    sound_->setChecked(session_ && session_->SoundOn());
}

void PlayerWindow::ToggleTranscript(bool on) {
    if (!on) return screen_->Transcript().Close();
    transcript_->setChecked(false);
    if (!session_) return;
    const auto start = std::filesystem::is_directory(session_->SaveFolder()) ? session_->SaveFolder()
                                                                             : services_.dataFolder;
    const auto file = services_.dialogs.ChooseFile({.title = "Write a Transcript",
                                                    .filter = "Text|*.txt",
                                                    .extension = "txt",
                                                    .forWriting = true,
                                                    .start = start / "transcript.txt"});
    if (!file) return;
    try {
        screen_->Transcript().Open(*file);
        transcript_->setChecked(true);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

void PlayerWindow::About() {
    ShowAbout(AboutAdventure::Of(session_ ? &session_->Adventure() : nullptr), this);
}

void PlayerWindow::ShowDiagnostics() {
    if (!session_) return;
    const auto help = [this] { services_.help(qt::TopicOf(debugWindow_.get())); };
    if (!debugWindow_) debugWindow_ = std::make_unique<DiagnosticsWindow>(session_->Engine(), help, this);
    debugWindow_->show();
    debugWindow_->activateWindow();
}

void PlayerWindow::Zoom(int direction) {
    if (screen_->ShowsCharacters()) {
        const int steps = direction == 0 ? 0 : settings_.characterZoom + direction;
        settings_.characterZoom = std::clamp(steps, -kMostCharacterZoom, kMostCharacterZoom);
    } else {
        settings_.zoom = direction == 0 ? 100 : NextZoom(settings_.zoom, direction);
    }
    ApplySettings();
}

void PlayerWindow::ApplySettings() {
    qt::ApplyTheme(settings_.theme);
    flashing_->setChecked(settings_.flashing);
    plainText_->setChecked(settings_.plainText);
    screen_->SetLook(settings_.Look());
}

void PlayerWindow::ShowRecent() {
    const auto& files = settings_.recent.Files();
    recentMenu_->clear();
    recentMenu_->setEnabled(!files.empty());
    for (const std::filesystem::path& file : files) {
        QAction* action = recentMenu_->addAction(qt::PathToQt(file.stem()).replace('&', "&&"));
        action->setToolTip(qt::TipOf(qt::PathToQt(file)));
        QObject::connect(action, &QAction::triggered, this, [this, file] { Load(file); });
    }
    welcome_->ShowRecent(files);
}

void PlayerWindow::closeEvent(QCloseEvent* event) {
    if (session_ && session_->IsBusy()) return event->ignore();
    settings_.geometry = saveGeometry();
    settings_.Save(services_.settings);
    event->accept();
}

void PlayerWindow::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0 && event->angleDelta().y() != 0)
        Zoom(event->angleDelta().y() > 0 ? 1 : -1);
}

void PlayerWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().first().isLocalFile())
        event->acceptProposedAction();
}

void PlayerWindow::dropEvent(QDropEvent* event) {
    const std::filesystem::path file = qt::PathFromQt(event->mimeData()->urls().first().toLocalFile());
    // The program that the file is dragged from must not wait for the questions of loading.
    openAtStart_ = file;
    opening_.Start(std::chrono::milliseconds(1));
}

}  // namespace fabula::player
