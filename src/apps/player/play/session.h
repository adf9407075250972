#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "engine/engine.h"
#include "platform/timers.h"
#include "player/play/game_folder.h"
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
/// goes when the game ends, and stays when the program does.
class Session {
  public:
    /// Opens the file. Throws store::OpenError when it is refused, and fabula::Error when it can't be read.
    Session(const std::filesystem::path& file, const std::filesystem::path& dataFolder,
            const engine::Host& host, platform::Timers& timers, Autosave autosave = Autosave::On,
            const engine::Options& options = {});
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    const std::filesystem::path& File() const { return adventure_->CurrentFile(); }
    const std::filesystem::path& SaveFolder() const { return folder_.folder; }
    store::Adventure& Adventure() { return *adventure_; }

    /// Who asks the player for the name of a file; nullopt when the player gives up. Without one the player
    /// always does.
    using FileAsker = std::function<std::optional<std::filesystem::path>(const engine::FileRequest&)>;
    void AskForFilesBy(FileAsker asker) { askForFile_ = std::move(asker); }

    /// Starts the game.
    bool Start();
    /// Whether there is a state of an earlier session to go on from.
    bool CanResume() const;
    /// Goes on from it. When that is not possible the game goes on as it is, and the operator is told.
    bool Resume();

    bool Key(char32_t key);
    bool EnterLine(std::string_view line);
    bool TimeOutTick();
    bool WaitTick();
    bool Next();
    bool ToggleSound();

    engine::Waiting WaitingFor() const { return engine_.WaitingFor(); }
    /// A line is being typed.
    bool TakesLine() const;
    bool SoundOn() const { return engine_.SoundOn(); }
    std::string FontName(int number) const { return engine_.FontName(number); }
    bool IsBusy() const { return busy_; }

    /// For the diagnostics window; a game is played by the members above.
    engine::Engine& Engine() { return engine_; }

    /// A failure to write the autosave, told once; "" when there is none to tell.
    std::string TakeFailure();

  private:
    template <typename Step>
    bool Run(Step step);
    void GiveFiles();
    void AfterTurn();
    void WriteAutosave();

    std::unique_ptr<store::Adventure> adventure_;
    GameFolder folder_;
    engine::Engine engine_;
    platform::Operator& oper_;
    FileAsker askForFile_;
    bool keeps_;
    platform::Alarm autosave_;
    bool busy_ = false;
    bool failureTold_ = false;
    std::string failure_;
};

}  // namespace fabula::player
