#include "engine/engine.h"

#include "engine/actions/location_actions.h"
#include "engine/actions/state_actions.h"
#include "engine/cycle/parser.h"
#include "engine/cycle/prompt.h"
#include "engine/game.h"
#include "engine/saved_game.h"
#include "platform/error.h"
#include "store/filter/filter.h"
#include "text/encoding/utf8.h"

namespace fabula::engine {

namespace {

/// Without the player having had a turn in between.
constexpr int kMostRestarts = 10;
constexpr std::int64_t kMostPauses = 100'000;

constexpr std::string_view kFailureTitle = "Run-time failure";

/// Keys are taken in upper case; control characters are no keys.
void AppendKey(std::string& line, char32_t key) {
    if (key < 32 || line.size() >= kLongestTypedLine) return;
    text::AppendCodePoint(line, key >= U'a' && key <= U'z' ? key - 32 : key);
}

std::string AsTyped(std::string_view line) {
    std::string typed;
    for (std::size_t at = 0; at < line.size();) {
        const text::CodePoint point = text::DecodeAt(line, at);
        AppendKey(typed, point.value == U'\t' ? U' ' : point.value);
        at += point.size;
    }
    return typed;
}

void RemoveLast(std::string& line) {
    if (line.empty()) return;
    line.erase(text::OffsetOf(line, text::Length(line) - 1));
}

}  // namespace

Engine::Engine(store::Adventure& adventure, const Host& host, const Options& options)
    : adventure_(adventure), sitting_(std::make_unique<Sitting>(host, options)) {}

Engine::~Engine() = default;

/// Runs a step of the game; one that goes wrong ends the game, with a box that says where.
template <class Step>
void Engine::Guard(Step step) {
    try {
        step();
    } catch (const RunFailure& failure) {
        Fail(failure.what());
    } catch (const Error& error) {
        sitting_->host.teller.Tell(error.what(), kFailureTitle);
        failed_ = true;
        EndGame();
    }
}

void Engine::Fail(const std::string& what) {
    const std::string where = game_ ? TextOf(game_->runner.Place()) : "";
    sitting_->host.teller.Tell(
        "The game has gone wrong and ends. " + (where.empty() ? "" : where + ": ") + what + ".",
        kFailureTitle);
    failed_ = true;
    EndGame();
}

void Engine::EndGame() {
    if (game_ && game_->timeOutRunning) sitting_->parts.timers.StopTimeOut();
    waiting_ = Waiting::Nothing;
    tickPending_ = false;
    scriptPlaying_ = false;
    game_.reset();
    sitting_->parts.events.EndGame();
}

void Engine::Initialize() {
    restarts_ = 0;
    Start();
}

void Engine::Start() {
    if (game_ && game_->timeOutRunning) sitting_->parts.timers.StopTimeOut();
    tickPending_ = false;
    failed_ = false;
    game_.reset();
    waiting_ = Waiting::Nothing;
    Guard([this] {
        if (restarts_ > kMostRestarts)
            throw RunFailure("the game starts again and again without asking the player");
        game_ = std::make_unique<Game>(adventure_, *sitting_);
        if (!sitting_->begun) sitting_->soundOn = game_->data.sound;
        sitting_->begun = true;
        sitting_->host.sound.Configure(game_->data.soundSettings);
        ShowStatus();
    });
    if (game_) RunLoop(&ProcessLoop::Start);
}

void Engine::ShowStatus() {
    StatusLine& status = sitting_->parts.status;
    status.ShowStatus(StatusField::Script, sitting_->script.StatusText());
    status.ShowStatus(StatusField::Sound, sitting_->soundOn ? "Sound ON" : "Sound OFF");
    status.EnableNext(sitting_->script.Loaded());
}

/// Enters the turn cycle and deals with what it came to.
void Engine::RunLoop(ProcessLoop::Outcome (ProcessLoop::*entrance)()) {
    game_->inputReady = false;
    game_->printer.ResetBudget();
    game_->runner.ResetBudget();
    Guard([&] { Finish((game_->loop.*entrance)()); });
}

void Engine::Finish(ProcessLoop::Outcome outcome) {
    TellScriptFailure();
    switch (outcome) {
        case ProcessLoop::Outcome::Pauses:
            waiting_ = Waiting::Pause;
            return;
        case ProcessLoop::Outcome::AsksForFile:
            waiting_ = Waiting::File;
            return;
        case ProcessLoop::Outcome::Rests:
            waiting_ = Waiting::Turn;
            return;
        case ProcessLoop::Outcome::Ended:
            return EndGame();
        case ProcessLoop::Outcome::Restarts:
            ++restarts_;
            return Start();
        case ProcessLoop::Outcome::WaitsForPlayer:
            break;
    }
    PlayerIsBack();
}

void Engine::PlayerIsBack() {
    pauses_ = 0;
    restarts_ = 0;
    waiting_ = Waiting::Sentence;
    if (game_->Flag(flag::kAsking) != 0) waiting_ = Waiting::Answer;
    if (game_->Flag(flag::kAnyKey) != 0) waiting_ = Waiting::AnyKey;
    if (tickPending_) FinishTick();
}

void Engine::TellScriptFailure() {
    const std::string failure = sitting_->script.TakeFailure();
    if (failure.empty()) return;
    sitting_->host.teller.Tell(failure, "Error");
    if (game_) game_->SetFlag(flag::kScript, sitting_->script.State());
    ShowStatus();
}

/// Between two lines of a script the input is ready too, but not for the player.
bool Engine::TakesInput() const {
    return game_ && game_->inputReady && waiting_ != Waiting::Turn;
}

void Engine::Key(char32_t key) {
    Keys({&key, 1});
}

void Engine::Keys(std::u32string_view keys) {
    bool typed = false;
    for (const char32_t key : keys) {
        if (!TakesInput()) return;
        Game& game = *game_;
        if (game.timeOutRunning && !typed) StartTimeOut(game);
        typed = key != kEnter && game.Flag(flag::kAnyKey) == 0;
        if (!typed) {
            PressEnter();
        } else if (key == kBackspace) {
            RemoveLast(game.command);
            RemoveLast(game.answer);
        } else {
            AppendKey(game.Flag(flag::kAsking) != 0 ? game.answer : game.command, key);
        }
    }
    if (typed) Guard([&] { ShowTyped(*game_); });
}

void Engine::EnterLine(std::string_view line) {
    if (!TakesInput()) return;
    (game_->Flag(flag::kAsking) != 0 ? game_->answer : game_->command) = AsTyped(line);
    PressEnter();
}

void Engine::PressEnter() {
    Game& game = *game_;
    const bool asking = game.Flag(flag::kAsking) != 0;
    sitting_->parts.input.EndInput(asking ? game.answer : game.command);
    game.printer.AtLineStart();
    ProcessInput(false);
}

/// `ProcessInput`: the answer or the line that stands in the game's input goes to the turn cycle. An empty
/// line that is no answer does nothing.
void Engine::ProcessInput(bool played) {
    Game& game = *game_;
    Script& script = sitting_->script;
    const bool asking = game.Flag(flag::kAsking) != 0;
    const std::string line = asking ? game.answer : game.command;
    if (!asking && line.empty()) return Guard([&] { ShowTyped(game); });
    StopTimeOut(game);
    played ? script.WritePlayed(line) : script.WriteInput(line);
    if (game.trace.On()) game.trace.Tell(LineEntered{line, asking});
    if (asking) return RunLoop(&ProcessLoop::Resume);
    game.answer.clear();
    game.command = SplitSentences(line, game.data.conjunctions);
    RunLoop(&ProcessLoop::Enter);
}

void Engine::TimeOutTick() {
    if (!TakesInput() || !game_->timeOutRunning) return;
    Game& game = *game_;
    const bool asking = game.Flag(flag::kAsking) != 0;
    game.timeOutRunning = false;
    sitting_->parts.timers.StopTimeOut();
    if (!game.state.FlagBitSet(flag::kTimeOutOptions, 7)) {
        game.SetFlag(flag::kTimeOutOptions, game.Flag(flag::kTimeOutOptions) + 128);
    }
    if (game.trace.On()) game.trace.Tell(TimeRanOut{});
    sitting_->parts.input.EndInput(asking ? game.answer : game.command);
    game.printer.AtLineStart();
    game.command.clear();
    tickPending_ = true;
    if (!asking) return RunLoop(&ProcessLoop::Enter);
    // The question stands: it is asked for again.
    Guard([&] {
        AskForInput(game);
        FinishTick();
    });
}

void Engine::FinishTick() {
    tickPending_ = false;
    ClearTimeOutMark(*game_);
    if (TimeOutIsArmed(*game_)) StartTimeOut(*game_);
}

const FileRequest& Engine::FileAsked() const {
    return *game_->runner.FileAsked();
}

void Engine::GiveFile(const std::optional<std::filesystem::path>& file) {
    if (waiting_ != Waiting::File) return;
    game_->runner.GiveFile(file);
    GoOnBehindWait();
}

/// The turn goes on behind the action that waited, within its limits.
void Engine::GoOnBehindWait() {
    Guard([this] { Finish(game_->loop.Continue()); });
    if (scriptPlaying_) PlayScript();
}

void Engine::WaitTick() {
    if (waiting_ != Waiting::Pause) return;
    if (++pauses_ > kMostPauses) {
        return Fail("the game paused more than " + std::to_string(kMostPauses) +
                    " times without waiting for the player");
    }
    game_->printer.ResetBudget();
    game_->runner.ResetBudget();
    GoOnBehindWait();
}

void Engine::GoOn() {
    if (waiting_ != Waiting::Turn) return;
    if (!game_->inputReady) return GoOnBehindWait();
    // It stood between two lines of a script.
    waiting_ = Waiting::Sentence;
    PlayScript();
}

void Engine::StopTurn(std::string_view state) {
    if (waiting_ != Waiting::Turn && waiting_ != Waiting::Pause) return;
    scriptPlaying_ = false;
    tickPending_ = false;
    Game& game = *game_;
    if (game.inputReady) {
        waiting_ = Waiting::Sentence;
        return;
    }
    if (!RestoreFrom(game, state)) return EndGame();
    game.command.clear();
    game.tones.clear();
    Guard([&] {
        game.printer.EndLine();
        Finish(game.loop.Stop());
    });
}

void Engine::DoNextScript() {
    if (!TakesInput() || !sitting_->script.Loaded()) return;
    if (PlayScriptLine()) PlayScript();
}

/// Plays on until the game asks a question or ends, or the script does.
void Engine::PlayScript() {
    constexpr int kLinesOfASlice = 20;
    scriptPlaying_ = true;
    int lines = 0;
    while (waiting_ == Waiting::Sentence && sitting_->script.Loaded() && PlayScriptLine()) {
        if (sitting_->options.slice == 0 || ++lines < kLinesOfASlice) continue;
        if (waiting_ == Waiting::Sentence) waiting_ = Waiting::Turn;
    }
    if (waiting_ != Waiting::Pause && waiting_ != Waiting::File && waiting_ != Waiting::Turn)
        scriptPlaying_ = false;
}

/// False at the end of the script.
bool Engine::PlayScriptLine() {
    const std::optional<std::string> line = sitting_->script.NextInput();
    if (!line) {
        sitting_->script.CloseInput();
        sitting_->host.teller.Tell("End-of-file reached.", "Script");
        game_->SetFlag(flag::kScript, sitting_->script.State());
        ShowStatus();
        return false;
    }
    const bool asking = game_->Flag(flag::kAsking) != 0;
    std::string& input = asking ? game_->answer : game_->command;
    input = AsTyped(*line);
    sitting_->parts.input.EndInput(input);
    game_->printer.AtLineStart();
    ProcessInput(true);
    return true;
}

void Engine::ToggleSound() {
    sitting_->soundOn = !sitting_->soundOn;
    ShowStatus();
}

bool Engine::SoundOn() const {
    return sitting_->soundOn;
}

void Engine::SaveTo(const std::filesystem::path& file) {
    if (game_) WriteSavedGame(file, SavedState());
}

std::string Engine::SavedState() {
    return game_ ? SavedGameText(game_->data, game_->state) : "";
}

bool Engine::LoadFrom(const std::filesystem::path& file) {
    return game_ && TakeState(ReadSavedGame(file, game_->state));
}

bool Engine::TakeState(std::string_view state) {
    if (!game_ || !RestoreFrom(*game_, state)) return false;
    // What still runs is of the game before, whose flags have gone with it.
    if (game_->timeOutRunning) sitting_->parts.timers.StopTimeOut();
    game_->timeOutRunning = false;
    game_->timeOutInterval = 0;
    if (TimeOutIsArmed(*game_)) ClearTimeOutMark(*game_);
    scriptPlaying_ = false;
    tickPending_ = false;
    game_->tones.clear();
    game_->printer.EndLine();
    game_->command.clear();
    game_->SetFlag(flag::kDescribe, kSet);
    RunLoop(&ProcessLoop::Start);
    return true;
}

std::string Engine::FontName(int number) const {
    if (!game_) return {};
    const auto name = game_->data.fontNames.find(number);
    return name == game_->data.fontNames.end() ? "" : name->second;
}

}  // namespace fabula::engine
