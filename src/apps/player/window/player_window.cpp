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
#include <algorithm>

#include "player/panes/character_pane.h"
#include "player/panes/game_screen.h"
#include "player/panes/status_pane.h"
#include "player/panes/text_access.h"
#include "player/panes/text_pane.h"
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
      screen_(new GameScreen(services.timers,
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
      logic_({.timers = services.timers,
              .dialogs = services.dialogs,
              .sound = sound_,
              .random = services.random,
              .recent = settings_.recent,
              .dataFolder = services.dataFolder,
              .isTrial = services.isTrial,
              .trace = services.trace,
              .options = services.options},
             {.window = *screen_,
              .parts = screen_->PartsWithPanes(),
              .attach = [this](PlayedGame* game) { Attach(game); },
              .say = [this](const std::string& sentence) { Tell(sentence); }}),
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
    MakePages();
    setStatusBar(status_);
    status_->Show(engine::StatusField::Script, "Script Off");
    ApplySettings();
    ShowRecent();
    Follow();
    PlaceWindow();
    welcome_->setFocus();
}

PlayerWindow::~PlayerWindow() {
    logic_.End();
}

constexpr std::array<PlayerWindow::Routine, kCommandCount> PlayerWindow::kRoutines{{
    {Command::Open, [](PlayerWindow& window) { window.AskForGame(); }},
    {Command::Save, [](PlayerWindow& window) { window.logic_.Save(); }},
    {Command::Restore, [](PlayerWindow& window) { window.Step(&PlayerScreen::Restore); }},
    {Command::Exit, [](PlayerWindow& window) { window.close(); }},
    {Command::Undo, [](PlayerWindow& window) { window.Undo(); }},
    {Command::Stop, [](PlayerWindow& window) { window.screen_->StopTurn(); }},
    {Command::StartAgain, [](PlayerWindow& window) { window.Step(&PlayerScreen::StartAgain); }},
    {Command::Next, [](PlayerWindow& window) { window.Step(&PlayerScreen::Next); }},
    {Command::Sound, [](PlayerWindow& window) { window.ToggleSound(); }},
    {Command::Transcript, [](PlayerWindow& window) { window.ToggleTranscript(); }},
    {Command::Debug, [](PlayerWindow& window) { window.ShowDiagnostics(); }},
    {Command::Find, [](PlayerWindow& window) { window.findBar_->Ask(); }},
    {Command::FindNext, [](PlayerWindow& window) { window.findBar_->Find(false); }},
    {Command::FindBefore, [](PlayerWindow& window) { window.findBar_->Find(true); }},
    {Command::ZoomIn, [](PlayerWindow& window) { window.Zoom(1); }},
    {Command::ZoomOut, [](PlayerWindow& window) { window.Zoom(-1); }},
    {Command::ZoomNormal, [](PlayerWindow& window) { window.Zoom(0); }},
    {Command::FullScreen, [](PlayerWindow& window) { window.ToggleFullScreen(); }},
    {Command::ThemeSystem, [](PlayerWindow& window) { window.ChooseTheme(qt::Theme::System); }},
    {Command::ThemeLight, [](PlayerWindow& window) { window.ChooseTheme(qt::Theme::Light); }},
    {Command::ThemeDark, [](PlayerWindow& window) { window.ChooseTheme(qt::Theme::Dark); }},
    {Command::Flashing, [](PlayerWindow& window) { window.ChooseFlashing(); }},
    {Command::PlainText, [](PlayerWindow& window) { window.ChoosePlainText(); }},
    {Command::Settings, [](PlayerWindow& window) { window.ChangeSettings(); }},
    {Command::Help,
     [](PlayerWindow& window) { window.services_.help(qt::TopicOf(QApplication::focusWidget())); }},
    {Command::HelpContents, [](PlayerWindow& window) { window.services_.help({}); }},
    {Command::About, [](PlayerWindow& window) { window.About(); }},
}};

void PlayerWindow::Do(Command command) {
    static_assert(std::ranges::all_of(kRoutines,
                                      [](const Routine& each) {
                                          return static_cast<std::size_t>(each.command) ==
                                                 static_cast<std::size_t>(&each - kRoutines.data());
                                      }),
                  "each command has its routine, in the order of the commands");
    kRoutines[static_cast<std::size_t>(command)].run(*this);
}

/// A step of the game that a command takes.
void PlayerWindow::Step(bool (PlayerScreen::*step)()) {
    if (!(logic_.*step)()) return;
    endBar_->setVisible(!logic_.IsRunning());
    screen_->ShowStep();
    if (logic_.IsRunning()) screen_->FocusInput();
}

void PlayerWindow::Undo() {
    if (PlayedGame* const game = logic_.Playing(); game == nullptr || !game->CanUndo()) return;
    screen_->BeginTurn();
    Step(&PlayerScreen::Undo);
}

/// Shows what can be done now, and what the game waits for.
void PlayerWindow::Follow() {
    if (debugWindow_) debugWindow_->Follow();
    actions_.Follow({.game = logic_.Playing(),
                     .scriptLoaded = scriptLoaded_,
                     .isTrial = services_.isTrial,
                     .characters = logic_.Playing() && screen_->ShowsCharacters()});
    ShowSwitches();
    logic_.FollowWait();
}

void PlayerWindow::ShowSwitches() {
    actions_.Of(Command::Sound).setChecked(logic_.SoundOn());
    actions_.Of(Command::Transcript).setChecked(logic_.WritesTranscript());
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
    auto* load = new QPushButton(tr("Load..."));
    load->setAccessibleName(tr("Load a Game"));
    ending_ = new QLabel;
    ending_->setObjectName("Ending");
    QObject::connect(again, &QPushButton::clicked, this, [this] { Step(&PlayerScreen::StartAgain); });
    QObject::connect(back, &QPushButton::clicked, this, [this] { Undo(); });
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

void PlayerWindow::MakePages() {
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
    ShowLoaded(logic_.Open());
}

void PlayerWindow::Load(const std::filesystem::path& file) {
    ShowLoaded(logic_.Load(file));
}

void PlayerWindow::Attach(PlayedGame* game) {
    debugWindow_.reset();
    screen_->Attach(game);
    scriptLoaded_ = false;
    if (game != nullptr) pages_->setCurrentIndex(1);
}

void PlayerWindow::ShowLoaded(bool loaded) {
    ShowRecent();
    if (loaded) screen_->ShowStep();
    if (logic_.Playing() == nullptr) pages_->setCurrentIndex(0);
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
            if (logic_.SoundOn()) ToggleSound();
        },
        Qt::QueuedConnection);
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
    if (services_.isTrial) return closing_.Start(std::chrono::milliseconds(0));
    const bool failed = logic_.Playing() && logic_.Playing()->HasFailed();
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

void PlayerWindow::ChooseFlashing() {
    settings_.flashing = actions_.Of(Command::Flashing).isChecked();
    ApplySettings();
}

void PlayerWindow::ChoosePlainText() {
    settings_.plainText = actions_.Of(Command::PlainText).isChecked();
    ApplySettings();
}

void PlayerWindow::ToggleSound() {
    logic_.ToggleSound();
    ShowSwitches();
}

void PlayerWindow::ToggleTranscript() {
    logic_.WriteTranscript(actions_.Of(Command::Transcript).isChecked());
    ShowSwitches();
}

void PlayerWindow::About() {
    PlayedGame* const game = logic_.Playing();
    ShowAbout(AboutAdventure::Of(game ? &game->Adventure() : nullptr), this);
}

void PlayerWindow::ShowDiagnostics() {
    if (logic_.Playing() == nullptr) return;
    const auto help = [this] { services_.help(qt::TopicOf(debugWindow_.get())); };
    if (!debugWindow_)
        debugWindow_ = std::make_unique<DiagnosticsWindow>(logic_.Playing()->Engine(), help, this);
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
    if (!logic_.Close()) return event->ignore();
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
