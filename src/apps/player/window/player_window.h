#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "engine/engine.h"
#include "platform/dialogs.h"
#include "platform/random_source.h"
#include "platform/timers.h"
#include "player/play/player_screen.h"
#include "player/play/preferred_sound.h"
#include "player/window/player_actions.h"
#include "player/window/player_settings.h"
#include "qt/help/help_request.h"

class QLabel;
class QSettings;
class QStackedWidget;

namespace fabula::player {

class DiagnosticsWindow;
class FindBar;
class GameScreen;
class StatusPane;
class WelcomePage;

/// What the window asks of its program. All of it outlives the window.
struct WindowServices {
    platform::Timers& timers;
    platform::Dialogs& dialogs;
    engine::SoundPlayer& sound;
    platform::RandomSource& random;
    QSettings& settings;
    std::filesystem::path dataFolder;  ///< where folders of saved games are made
    /// The window is shown by the authoring tool: "Debug" is allowed, the window closes when the game ends,
    /// and nothing of the run is kept.
    bool isTrial = false;
    engine::TraceSink* trace = nullptr;  ///< where the steps of the game go; nullptr: nowhere
    engine::Options options{};
    /// The names of the devices that sounds can come from.
    std::function<std::vector<std::string>()> soundDevices = [] { return std::vector<std::string>{}; };
    /// Shows the help on a topic.
    std::function<void(const qt::HelpTopic& topic)> help = [](const qt::HelpTopic&) {};
};

/// The engine's window: menus, tool bar, panes and status line around `PlayerScreen`, which decides
/// everything about the game and its files. The window only shows what that tells and hands on what the
/// player does.
class PlayerWindow final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    explicit PlayerWindow(const WindowServices& services);
    ~PlayerWindow() override;

    /// Shows the window at once and loads the file when it is on the screen.
    void OpenAtStart(const std::filesystem::path& file);

    /// Asks for a file and loads it.
    void AskForGame();
    /// Loads a file; a file that is refused is told, and the game that was there goes on.
    void Load(const std::filesystem::path& file);

    /// Shows a sentence in the status line.
    void Tell(const std::string& sentence);

    /// What plays the tones can't be opened: tells the sentence and turns the sound off.
    void SoundFailed(const std::string& sentence);

    /// The game being played, or nullptr.
    PlayedGame* Playing() { return logic_.Playing(); }
    GameScreen& Screen() { return *screen_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void Do(Command command);
    /// What a command does.
    struct Routine {
        Command command;
        void (*run)(PlayerWindow& window);
    };
    static const std::array<Routine, kCommandCount> kRoutines;

    void Attach(PlayedGame* game);
    void ShowLoaded(bool loaded);
    void Step(bool (PlayerScreen::*step)());
    void Undo();
    void Follow();
    void ShowSwitches();
    void MakeRecentMenu();
    void MakeEndBar();
    void MakePages();
    void PlaceWindow();

    void GameStarted(const engine::GameLook& look);
    void GameEnded();
    void CloseAfterGame();
    void GrowForCharacters();
    void ToggleFullScreen();
    void ChangeSettings();
    void ChooseTheme(qt::Theme theme);
    void ChooseFlashing();
    void ChoosePlainText();
    void ToggleSound();
    void ToggleTranscript();
    void About();
    void ShowDiagnostics();
    void Zoom(int direction);
    void ApplySettings();
    void ShowRecent();

    WindowServices services_;
    PlayerSettings settings_;
    PlayerSettings kept_;  ///< as they were read or written the last time
    PreferredSound sound_;
    PlayerActions actions_;
    platform::Alarm opening_;
    platform::Alarm closing_;
    std::filesystem::path openAtStart_;
    std::unique_ptr<DiagnosticsWindow> debugWindow_;

    QStackedWidget* pages_;
    WelcomePage* welcome_;
    GameScreen* screen_;
    PlayerScreen logic_;
    FindBar* findBar_;
    QWidget* endBar_;
    QLabel* ending_;
    StatusPane* status_;
    QMenu* recentMenu_;
    bool scriptLoaded_ = false;
};

}  // namespace fabula::player
