#include "player/window/player_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QWheelEvent>

#include "platform/error.h"
#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/status_pane.h"
#include "player/panes/text_access.h"
#include "player/panes/text_pane.h"
#include "player/play/session.h"
#include "player/window/about_adventure.h"
#include "player/window/diagnostics_window.h"
#include "player/window/find_bar.h"
#include "player/window/settings_dialog.h"
#include "player/window/welcome_page.h"
#include "qt/strings.h"

namespace fabula::player {

namespace {

constexpr QSize kDefaultSize(880, 780);
constexpr QSize kSmallestSize(320, 240);
/// How soon a window that can't close yet tries again.
constexpr std::chrono::milliseconds kClosingDelay{50};

}  // namespace

PlayerWindow::PlayerWindow(const WindowServices& services)
    : services_(services),
      settings_(PlayerSettings::Load(services.settings)),
      kept_(settings_),
      sound_(services.sound),
      actions_(*this, [this](Command command) { Do(command); }),
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
                                      scriptLoaded_ = enabled;
                                      Follow();
                                  },
                              .stepped = [this] { Follow(); },
                              .notice = [this](const std::string& sentence) { Tell(sentence); }})),
      findBar_(new FindBar(
          {.find = [this](const QString& text, bool up) { return screen_->Text().FindText(text, up); },
           .closed = [this] { screen_->FocusInput(); }})),
      status_(new StatusPane) {
    DescribeTextPanes();
    setObjectName("playerWindow");
    setProperty(qt::kHelpPage, "frmvelengmain.html");
    setWindowTitle("Fabula");
    setMinimumSize(kSmallestSize);
    setAcceptDrops(true);
    MakeRecentMenu();
    MakeEndBar();
    auto* game = new QWidget;
    auto* column = new QVBoxLayout(game);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(screen_, 1);
    column->addWidget(findBar_);
    column->addWidget(endBar_);
    pages_->addWidget(welcome_);
    pages_->addWidget(game);
    setCentralWidget(pages_);
    setStatusBar(status_);
    status_->Show(engine::StatusField::Script, "Script Off");
    ApplySettings();
    ShowRecent();
    Follow();
    PlaceWindow();
    welcome_->setFocus();
}

PlayerWindow::~PlayerWindow() {
    EndSession();
}

void PlayerWindow::Do(Command command) {
    switch (command) {
        case Command::Open:
            return AskForGame();
        case Command::Save:
            return SaveGame();
        case Command::Restore:
            return RestoreGame();
        case Command::Exit:
            close();
            return;
        case Command::Undo:
            return Step(&Session::Undo);
        case Command::Stop:
            return screen_->StopTurn();
        case Command::StartAgain:
            return StartAgain();
        case Command::Next:
            return Step(&Session::Next);
        case Command::Sound:
            return ToggleSound();
        case Command::Transcript:
            return ToggleTranscript(actions_.Of(command).isChecked());
        case Command::Debug:
            return ShowDiagnostics();
        case Command::Find:
            return findBar_->Open();
        case Command::FindNext:
            return findBar_->Find(false);
        case Command::FindBefore:
            return findBar_->Find(true);
        case Command::ZoomIn:
            return Zoom(1);
        case Command::ZoomOut:
            return Zoom(-1);
        case Command::ZoomNormal:
            return Zoom(0);
        case Command::FullScreen:
            return ToggleFullScreen();
        case Command::ThemeSystem:
            return ChooseTheme(qt::Theme::System);
        case Command::ThemeLight:
            return ChooseTheme(qt::Theme::Light);
        case Command::ThemeDark:
            return ChooseTheme(qt::Theme::Dark);
        case Command::Flashing:
            settings_.flashing = actions_.Of(command).isChecked();
            return ApplySettings();
        case Command::PlainText:
            settings_.plainText = actions_.Of(command).isChecked();
            return ApplySettings();
        case Command::Settings:
            return ChangeSettings();
        case Command::Help:
            return services_.help(qt::TopicOf(QApplication::focusWidget()));
        case Command::HelpContents:
            return services_.help({});
        case Command::About:
            return About();
    }
}

/// A step of the game that a command takes.
void PlayerWindow::Step(bool (Session::*step)()) {
    if (!session_ || !(session_.get()->*step)()) return;
    ShowCommandedStep();
}

void PlayerWindow::ShowCommandedStep() {
    const bool over = session_->WaitingFor() == engine::Waiting::Nothing;
    endBar_->setVisible(over);
    screen_->ShowStep();
    if (!over) screen_->FocusInput();
}

/// Shows what can be done now, and what the game waits for.
void PlayerWindow::Follow() {
    if (debugWindow_) debugWindow_->Follow();
    actions_.Follow({.session = session_.get(),
                     .scriptLoaded = scriptLoaded_,
                     .testRun = services_.testRun,
                     .characters = session_ && screen_->ShowsCharacters()});
    TellWait();
}

void PlayerWindow::TellWait() {
    constexpr int kLongTurn = 20;
    const auto waiting = session_ ? session_->WaitingFor() : engine::Waiting::Nothing;
    slices_ = waiting == engine::Waiting::Turn ? slices_ + 1 : 0;
    std::string sentence;
    if (waiting == engine::Waiting::AnyKey) sentence = "The game waits for a key.";
    if (slices_ >= kLongTurn) sentence = "The game is busy. Esc stops the turn.";
    if (!sentence.empty() || waitTold_) status_->Tell(sentence);
    waitTold_ = !sentence.empty();
}

void PlayerWindow::MakeRecentMenu() {
    QMenu& file = actions_.MenuOf(Menu::File);
    recentMenu_ = new QMenu(tr("Re&cent Games"), this);
    file.insertMenu(file.actions().at(1), recentMenu_);
    auto* themes = new QActionGroup(this);
    for (const Command theme : {Command::ThemeSystem, Command::ThemeLight, Command::ThemeDark})
        themes->addAction(&actions_.Of(theme));
}

void PlayerWindow::MakeEndBar() {
    endBar_ = new QWidget;
    endBar_->setObjectName("EndBar");
    auto* rows = new QVBoxLayout(endBar_);
    rows->setContentsMargins(12, 6, 12, 6);
    auto* row = new QHBoxLayout;
    auto* again = new QPushButton(tr("Play Again"));
    auto* back = new QPushButton(tr("Undo"));
    back->setObjectName("GoBack");
    back->setToolTip(tr("Go back to before the latest line"));
    auto* load = new QPushButton(tr("Load…"));
    load->setAccessibleName(tr("Load a Game"));
    ending_ = new QLabel;
    ending_->setObjectName("Ending");
    QObject::connect(again, &QPushButton::clicked, this, [this] { StartAgain(); });
    QObject::connect(back, &QPushButton::clicked, this, [this] { Step(&Session::Undo); });
    QObject::connect(load, &QPushButton::clicked, this, [this] { AskForGame(); });
    ending_->setWordWrap(true);
    rows->addWidget(ending_);
    rows->addLayout(row);
    row->addStretch(1);
    row->addWidget(again);
    row->addWidget(back);
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
            engine::Host{*screen_, services_.dialogs, services_.random, sound_, services_.trace,
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
    actions_.Of(Command::Sound).setChecked(session_->SoundOn());
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
    CloseTranscript();
    screen_->Attach(nullptr);
    session_.reset();
    scriptLoaded_ = false;
}

void PlayerWindow::GameStarted(const engine::GameLook& look) {
    setWindowTitle(qt::ToQt(look.title));
    status_->Tell("");
    endBar_->hide();
    if (look.characterSets && !settings_.plainText) GrowForCharacters();
    screen_->FocusInput();
}

void PlayerWindow::GameEnded() {
    // The engine is still at work: a window that closes lets it finish first.
    if (services_.testRun) return closing_.Start(std::chrono::milliseconds(0));
    const bool failed = session_ && session_->HasFailed();
    ending_->setText(failed ? tr("The game went wrong. Undo goes back to before.") : tr("The end."));
    endBar_->show();
    endBar_->setFocus();
}

/// Characters of two points a side and more can be read: the window takes the room that the screen has.
void PlayerWindow::GrowForCharacters() {
    constexpr int kEdges = 40;
    constexpr int kWanted = CharacterPane::kLeastFactor * CharacterScreen::kWidth + kEdges;
    if (isMaximized() || isFullScreen() || width() >= kWanted) return;
    resize(std::min(kWanted, screen()->availableSize().width()), height());
}

void PlayerWindow::CloseAfterGame() {
    if (!close()) closing_.Start(kClosingDelay);
}

void PlayerWindow::StartAgain() {
    if (!session_ || session_->IsBusy()) return;
    const bool running = session_->WaitingFor() != engine::Waiting::Nothing;
    if (running && session_->HasProgress() &&
        !services_.dialogs.Confirm("Leave the game as it stands and start it from its beginning?",
                                   "Start Again"))
        return;
    Step(&Session::Start);
}

void PlayerWindow::SaveGame() {
    if (!session_ || !session_->CanSave()) return;
    const auto file = screen_->AskForSavedGame(true);
    if (!file) return;
    try {
        session_->SaveTo(*file);
        Tell("Saved as " + file->filename().string() + ".");
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

void PlayerWindow::RestoreGame() {
    if (!session_ || !session_->CanRestore()) return;
    const auto file = screen_->AskForSavedGame(false);
    if (!file) return;
    try {
        if (!session_->RestoreFrom(*file))
            services_.dialogs.Tell("Invalid Save File for this Adventure", "Error");
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    ShowCommandedStep();
}

void PlayerWindow::ToggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
    actions_.Of(Command::FullScreen).setChecked(isFullScreen());
}

void PlayerWindow::ChangeSettings() {
    SettingsDialog dialog(settings_, services_.soundDevices(), services_.timers, this);
    if (dialog.exec() != QDialog::Accepted) return;
    settings_ = dialog.Chosen();
    ApplySettings();
}

void PlayerWindow::ChooseTheme(qt::Theme theme) {
    settings_.theme = theme;
    ApplySettings();
}

void PlayerWindow::ToggleSound() {
    if (session_) session_->ToggleSound();
    actions_.Of(Command::Sound).setChecked(session_ && session_->SoundOn());
}

void PlayerWindow::CloseTranscript() {
    actions_.Of(Command::Transcript).setChecked(false);
    if (const auto failure = screen_->Transcript().Close()) services_.dialogs.Tell(*failure, "Error");
}

void PlayerWindow::ToggleTranscript(bool on) {
    if (!on) return CloseTranscript();
    actions_.Of(Command::Transcript).setChecked(false);
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
        actions_.Of(Command::Transcript).setChecked(true);
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
    settings_.KeepChanges(services_.settings, kept_);
    qt::ApplyTheme(settings_.theme);
    actions_.Of(Command::Flashing).setChecked(settings_.flashing);
    actions_.Of(Command::PlainText).setChecked(settings_.plainText);
    constexpr Command kThemes[] = {Command::ThemeSystem, Command::ThemeLight, Command::ThemeDark};
    actions_.Of(kThemes[static_cast<int>(settings_.theme)]).setChecked(true);
    sound_.SetChoice(settings_.sound);
    screen_->SetLook(settings_.Look());
    Follow();
}

void PlayerWindow::ShowRecent() {
    settings_.KeepChanges(services_.settings, kept_);
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
    CloseTranscript();
    settings_.geometry = saveGeometry();
    settings_.KeepChanges(services_.settings, kept_);
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
