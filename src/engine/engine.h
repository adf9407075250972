#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "engine/cycle/process_loop.h"
#include "engine/game_window.h"
#include "engine/output/trace_sink.h"
#include "engine/sound_player.h"
#include "platform/random_source.h"
#include "platform/teller.h"
#include "store/adventure.h"

namespace fabula::engine {

class Game;
struct Sitting;

/// What a running game asks of its host. All of it must outlive the engine.
struct Host {
    GameWindow& window;
    platform::Teller& teller;  ///< boxes: refused files, run-time failures
    platform::RandomSource& random;
    SoundPlayer& sound;
    TraceSink* trace = nullptr;  ///< nullptr: nothing is traced
    WindowParts parts = {};
};

/// How the engine runs a game.
struct Options {
    bool traceFile = false;       ///< flag 1004 starts at 255: everything is traced from the start
    bool traceRequested = false;  ///< flag 1005 starts at 255
    /// How many condacts may run without returning to the player before the game is taken for a runaway.
    std::int64_t condactLimit = 10'000'000;
    /// How many condacts may run until the engine returns in the midst of a turn (Waiting::Turn), so that a
    /// window answers whatever a game does; also after kSliceText bytes of text. 0: a turn runs to its end.
    std::int64_t slice = 0;
};

/// What the game needs next.
enum class Waiting {
    Sentence,  ///< a line: Key or EnterLine
    Answer,    ///< a line that answers a question: Key or EnterLine
    AnyKey,    ///< one key: Key (or EnterLine with whatever text)
    File,      ///< the name of a file: GiveFile, in answer to FileAsked
    Pause,     ///< nothing of the player: WaitTick, when the time that StartWait told has passed
    Turn,      ///< nothing: the turn is long; GoOn, as soon as the host has had its say (Options::slice)
    Nothing,   ///< no game is running: not started, or ended
};

/// One game being played.
///
/// The engine runs until the game needs something, then returns; it never blocks. Whoever owns it waits for
/// what WaitingFor tells and calls the member that brings it:
///
///     Engine engine(adventure, host);
///     engine.Initialize();
///     while (engine.WaitingFor() != Waiting::Nothing) {
///         if (engine.WaitingFor() == Waiting::Pause) engine.WaitTick();
///         else if (engine.WaitingFor() == Waiting::File) engine.GiveFile(std::nullopt);
///         else engine.EnterLine(ReadLine());
///     }
///
/// A game that goes wrong (a number out of its range, a text that does not exist, a loop without an end)
/// ends with a box that names the process, the entry and the condact; nothing is thrown for it. The
/// adventure is not changed, and it is locked for reading while the game runs. An engine belongs to one
/// thread.
class Engine {
  public:
    Engine(store::Adventure& adventure, const Host& host, const Options& options = {});
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    ~Engine();

    /// Loads the game and starts it; also from the beginning again. An adventure that can't be played (a
    /// flag table too small, a damaged record) is told in a box, and the game has then ended.
    void Initialize();

    Waiting WaitingFor() const { return waiting_; }
    /// Whether the latest game ended because it went wrong, or could not be played.
    bool HasFailed() const { return failed_; }

    /// One key of the player, as a code point: kEnter, kBackspace or a character. Ignored while the game
    /// does not wait for the player.
    void Key(char32_t key);
    /// Several keys, one after the other. The line that is typed is shown once, behind the last of them.
    void Keys(std::u32string_view keys);

    /// A whole line, as if typed and ended by Enter; it may be empty. Ignored as Key is.
    void EnterLine(std::string_view line);

    /// What file the game wants. Only while it waits for one.
    const FileRequest& FileAsked() const;
    /// The file that the player named, or nullopt when the player gives up: SAVE, LOAD and SCRIPT then do
    /// nothing. Ignored unless the game waits for a file.
    void GiveFile(const std::optional<std::filesystem::path>& file);

    /// The time-out that GameTimers::StartTimeOut started has run out.
    void TimeOutTick();

    /// The time that GameTimers::StartWait told has passed. Ignored unless the game pauses.
    void WaitTick();

    /// The turn goes on. Ignored unless the game waits for it (Waiting::Turn).
    void GoOn();

    /// Gives up the turn that stands in a pause or is long, and goes back to `state` (SavedState), without
    /// a description; the player is asked for the next line. A state that is not of this game ends it.
    /// Ignored unless the game waits in a turn.
    void StopTurn(std::string_view state);

    /// "Next": plays the script that SCRIPT opened, up to the next question of the game, pause or end of
    /// the file.
    void DoNextScript();
    /// Whether "Next" goes on when the pause or the question for a file is over.
    bool PlaysScript() const { return scriptPlaying_; }

    /// The sound switch of the sitting. Tells the new state to the status.
    void ToggleSound();
    bool SoundOn() const;

    /// The state as SAVE writes it into a file; "" while no game runs.
    std::string SavedState();
    /// Goes back to a state and describes the place. False, with nothing changed, when it is none of this
    /// game.
    bool TakeState(std::string_view state);

    /// Writes the state to a file of the form of SAVE, atomically. Throws fabula::Error. Only while a game
    /// runs.
    void SaveTo(const std::filesystem::path& file);
    /// Goes back to a saved state and describes the place, as LOAD does. False when the file is no save of
    /// this adventure; nothing has then changed. Throws fabula::Error when it can't be read.
    bool LoadFrom(const std::filesystem::path& file);

    /// The name of a font by its number (TextStyle::font), "" when there is none.
    std::string FontName(int number) const;

    /// The running game's state, for diagnostics and tests; nullptr while no game runs.
    Game* Running() { return game_.get(); }

    static constexpr char32_t kEnter = 13;
    static constexpr char32_t kBackspace = 8;

  private:
    template <class Step>
    void Guard(Step step);
    void Start();
    void RunLoop(ProcessLoop::Outcome (ProcessLoop::*entrance)());
    void GoOnBehindWait();
    void Finish(ProcessLoop::Outcome outcome);
    bool TakesInput() const;
    void PlayerIsBack();
    void PressEnter();
    void ProcessInput(bool played);
    void FinishTick();
    void PlayScript();
    bool PlayScriptLine();
    void EndGame();
    void Fail(const std::string& what);
    void TellScriptFailure();
    void ShowStatus();

    store::Adventure& adventure_;
    std::unique_ptr<Sitting> sitting_;
    std::unique_ptr<Game> game_;
    Waiting waiting_ = Waiting::Nothing;
    bool failed_ = false;
    bool tickPending_ = false;    ///< the turn of a time-out has not ended yet
    bool scriptPlaying_ = false;  ///< "Next" goes on behind a wait that is none for the player
    int restarts_ = 0;            ///< since the player was last asked
    std::int64_t pauses_ = 0;     ///< since the player was last asked
};

}  // namespace fabula::engine
