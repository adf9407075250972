#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/engine.h"
#include "platform/timers.h"
#include "player/play/game_folder.h"
#include "player/play/transcript_file.h"
#include "store/adventure.h"

namespace fabula::player {

/// Whether the state is written to the autosave after every turn.
enum class Autosave { On, Off };

/// One adventure being played: the open file, its engine, and the state that is kept by itself.
///
/// Boxes that the engine shows run an event loop of their own, in which keys and timers still arrive; they
/// must not break into a turn. Calls that come while the engine runs are therefore ignored, and false.
///
/// With an autosave the state is written after every turn, shortly later, so that nobody waits for it. It
/// goes when the game ends, and stays when the program does, or when the game goes wrong: it is then the
/// state before the turn that did.
///
/// A long turn is played in slices, so that the window stays awake: while the game is in the midst of one
/// (Waiting::Turn) GoOn is due.
class PlayedGame {
  public:
    /// Opens the file. Throws store::OpenError when it is refused, and fabula::Error when it can't be read.
    PlayedGame(const std::filesystem::path& file, const std::filesystem::path& dataFolder,
               const engine::Host& host, platform::Timers& timers, Autosave autosave = Autosave::On,
               const engine::Options& options = {});
    PlayedGame(const PlayedGame&) = delete;
    PlayedGame& operator=(const PlayedGame&) = delete;
    ~PlayedGame();

    const std::filesystem::path& File() const { return adventure_->CurrentFile(); }
    const std::filesystem::path& SaveFolder() const { return folder_.folder; }
    store::Adventure& Adventure() { return *adventure_; }

    /// Who asks the player for the name of a file; nullopt when the player gives up. Without one the player
    /// always does.
    using FileAsker = std::function<std::optional<std::filesystem::path>(const engine::FileRequest&)>;
    void AskForFilesBy(FileAsker asker) { askForFile_ = std::move(asker); }

    /// Starts the game. The states before stay for Undo.
    bool Start();
    /// Whether there is a state of an earlier time to go on from.
    bool CanResume() const;
    /// Starts the game and goes on from it, and Undo never goes back before it. The opening is not shown.
    /// False when that is not possible: the game is to be started. The person was told, unless the opening
    /// ends the game, which is then to be seen. True where the opening goes wrong, since that was told.
    bool Resume();

    /// The game goes on with a long turn.
    bool GoOn();
    /// A long turn, or a pause, can be given up: the game is then as it was before the turn.
    bool CanStop() const;
    bool StopTurn();

    /// A state can be saved, or another one taken.
    bool CanSave() const { return WaitingFor() == engine::Waiting::Sentence; }
    bool CanRestore() const;
    /// Writes the state as SAVE does. Throws fabula::Error.
    void SaveTo(const std::filesystem::path& file);
    /// Goes back to a saved game as LOAD does. False when it is none of this adventure. Throws
    /// fabula::Error when it can't be read.
    bool RestoreFrom(const std::filesystem::path& file);
    /// Goes back by one line that the player entered, also when the game has ended or gone wrong since.
    bool CanUndo() const;
    bool Undo();
    /// Whether a new start would leave something that was played, in this session or in the one before it.
    bool HasProgress() const { return resumed_ || CanUndo(); }
    static constexpr std::size_t kMostStates = 100;

    bool Key(char32_t key);
    /// Several keys in one step, as Engine::Keys; at most one line, its Enter last.
    bool Keys(std::u32string_view keys);
    bool EnterLine(std::string_view line);
    bool TimeOutTick();
    bool WaitTick();
    bool Next();
    bool ToggleSound();

    engine::Waiting WaitingFor() const { return engine_.WaitingFor(); }
    /// A line is being typed.
    bool TakesLine() const;
    /// The latest game went wrong.
    bool HasFailed() const { return engine_.HasFailed(); }
    bool SoundOn() const { return engine_.SoundOn(); }
    std::string FontName(int number) const { return engine_.FontName(number); }
    bool IsBusy() const { return busy_; }
    /// A game is being begun for a state that it is to go on from: the opening that it plays is not for the
    /// player, and what was shown of a game before it stays.
    bool PlaysUnseen() const { return unseen_; }

    /// What the player has written of this game.
    TranscriptFile& Transcript() { return transcript_; }

    /// For the diagnostics window; a game is played by the members above.
    engine::Engine& Engine() { return engine_; }

    /// A failure to write the autosave, told once; "" when there is none to tell.
    std::string TakeFailure();

  private:
    template <typename Step>
    bool Run(Step step);
    void GiveFiles();
    void AfterTurn();
    void Remember();
    void WriteAutosave();

    std::unique_ptr<store::Adventure> adventure_;
    GameFolder folder_;
    engine::Engine engine_;
    platform::Teller& teller_;
    FileAsker askForFile_;
    TranscriptFile transcript_;
    bool keeps_;
    platform::Alarm autosave_;
    /// What the game was when it waited for a line, the latest at the end.
    std::vector<std::string> states_;
    bool busy_ = false;
    bool unseen_ = false;
    bool resumed_ = false;  ///< it goes on from an earlier session
    bool failureTold_ = false;
    std::string failure_;
};

}  // namespace fabula::player
