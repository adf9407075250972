#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "engine/engine.h"
#include "platform/dialogs.h"
#include "platform/random_source.h"
#include "platform/recent_files.h"
#include "platform/timers.h"
#include "player/play/played_game.h"

namespace fabula::player {

/// What the player's screen asks of its program. All of it outlives the screen.
struct PlayerHost {
    platform::Timers& timers;
    platform::Dialogs& dialogs;
    engine::SoundPlayer& sound;
    platform::RandomSource& random;
    platform::RecentFiles& recent;     ///< the games that were played last
    std::filesystem::path dataFolder;  ///< where folders of saved games are made
    bool isTrial = false;              ///< nothing of the run is kept
    engine::TraceSink* trace = nullptr;
    engine::Options options{};
};

/// Where games are shown.
struct GameView {
    engine::GameWindow& window;
    engine::WindowParts parts;
    /// Takes the game that is shown from now on, before it starts; nullptr before the one that is shown
    /// ends.
    std::function<void(PlayedGame* game)> attach = [](PlayedGame*) {};
    /// Shows a sentence beside the game; "" takes the latest away.
    std::function<void(const std::string& sentence)> say = [](const std::string&) {};
};

/// The engine's window without its widgets: the one game that is played, and the commands on it and on its
/// files.
///
/// The window shows what the members below tell, and asks them again after each call. Whatever goes wrong
/// is told in a box and leaves everything as it was; nothing is thrown. While the engine is at work, in
/// whose boxes keys still arrive, commands do nothing.
class PlayerScreen {
  public:
    PlayerScreen(const PlayerHost& host, GameView view);

    /// The game being played, or nullptr.
    PlayedGame* Playing() const { return game_.get(); }
    /// A game is there and has not ended.
    bool IsRunning() const;

    // These start a game; the window then shows the step. False when there is none to show.

    /// Asks for a game and plays it.
    bool Open();
    /// Plays a game: from its beginning, or from where it stood the last time if the player likes. One that
    /// is refused is told and no longer recent, and the game that was there goes on.
    bool Load(const std::filesystem::path& file);

    // These take a step of the game, which the window then shows. False when there is none to show.

    bool Undo();
    bool Next();
    /// Asks first when something would be lost that Undo could have taken back.
    bool StartAgain();
    /// Asks for a saved game and goes on from it.
    bool Restore();

    /// Asks for a file, and writes how the game stands.
    void Save();

    bool SoundOn() const;
    void ToggleSound();

    bool WritesTranscript() const;
    /// On: asks for the file. Off: closes it, and tells when it could not be written whole.
    void WriteTranscript(bool on);

    /// After each step: says what the game waits for when the player can't see it, and takes it back.
    void FollowWait();

    /// Before the window closes; false when it can't yet.
    bool Close();
    /// Ends the game, where there is one. The window calls it before it goes.
    void End();

  private:
    std::unique_ptr<PlayedGame> Opened(const std::filesystem::path& file);
    bool WantsToResume() const;
    std::optional<std::filesystem::path> AskForFile(const engine::FileRequest& request);
    std::optional<std::filesystem::path> AskForSavedGame(bool forWriting);
    void CloseTranscript();

    PlayerHost host_;
    GameView view_;
    std::unique_ptr<PlayedGame> game_;
    bool waitSaid_ = false;
    int slices_ = 0;  ///< of the turn that goes on
};

}  // namespace fabula::player
