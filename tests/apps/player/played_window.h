#pragma once

#include <QSettings>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "player/window/player_window.h"
#include "support/doubles/manual_timers.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/games/game_builder.h"
#include "support/temp_folder.h"

namespace fabula::test {

/// The engine's window on the offscreen screen, with a folder, settings, a clock and boxes of its own. It
/// is shown and given keys as a person would.
class PlayedWindow {
  public:
    /// `isTrial`: as the authoring tool shows it.
    explicit PlayedWindow(bool isTrial = false);
    ~PlayedWindow();

    /// Writes a game into the folder and loads it.
    void Load(const GameBuilder& game);
    /// The same without loading.
    std::filesystem::path Write(const GameBuilder& game);

    /// Closes the window and opens a new one with the same folder and settings.
    void Restart();

    /// Types into the widget that has the keyboard; "\n" is Enter.
    void Type(const QString& text);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Pass(std::chrono::milliseconds time) { timers.Advance(time); }

    /// The whole text of the text pane.
    std::string Text() const;
    /// The text since the last call.
    std::string Said();
    /// The text of a label of the status line, by its name.
    std::string Status(const char* label) const;
    QAction& Action(const char* name) const;

    player::PlayerWindow& Window() const { return *window_; }

    std::optional<qt::HelpTopic> asked;  ///< the topic of the help that was asked for last

    TempFolder folder;
    platform::ManualTimers timers;
    platform::ScriptedDialogs dialogs;
    RecordingSound sound;
    platform::SeededRandom random{1};

  private:
    void Open();

    bool isTrial_;
    QSettings settings_;
    std::unique_ptr<player::PlayerWindow> window_;
    std::size_t told_ = 0;
};

}  // namespace fabula::test
