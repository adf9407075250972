#include "player/play/played_game.h"

#include <utility>

#include "engine/game.h"
#include "engine/saved_game.h"
#include "platform/error.h"
#include "platform/user_folders.h"
#include "upgrades/upgrade.h"

namespace fabula::player {

namespace {

using engine::Waiting;

constexpr std::chrono::milliseconds kAutosaveDelay{150};

/// How many condacts run until the window has its say.
constexpr std::int64_t kSlice = 20'000;

engine::Options InSlices(engine::Options options) {
    options.slice = kSlice;
    return options;
}

std::string SaveNameOf(store::Adventure& adventure) {
    const auto& settings = adventure.OpenTable(store::TableNum::Adventure, "savename");
    return settings.Eof() ? "" : std::string(settings.Text("savename"));
}

/// A game of an older version is upgraded in memory, and the player told so. Where the default data is not
/// installed, only games of the present form can be played.
std::unique_ptr<store::Adventure> OpenGame(const std::filesystem::path& file, platform::Teller& teller) {
    const auto folders =
        platform::ProgramDataFolders(platform::RunningProgram(), platform::Environment::OfTheProgram());
    const auto data = platform::FindFile(folders, "Fabula.ini").value_or(std::filesystem::path());
    return upgrades::OpenForReading(file, data,
                                    [&](std::string_view sentence) { teller.Tell(sentence, "Fabula"); });
}

/// Set while it lives.
class Mark {
  public:
    explicit Mark(bool& mark) : mark_(mark) { mark_ = true; }
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;
    ~Mark() { mark_ = false; }

  private:
    bool& mark_;
};

}  // namespace

PlayedGame::PlayedGame(const std::filesystem::path& file, const std::filesystem::path& dataFolder,
                       const engine::Host& host, platform::Timers& timers, Autosave autosave,
                       const engine::Options& options)
    : adventure_(OpenGame(file, host.teller)),
      folder_(FolderOfGame(dataFolder, SaveNameOf(*adventure_), file)),
      engine_(*adventure_, host, InSlices(options)),
      teller_(host.teller),
      keeps_(autosave == Autosave::On),
      autosave_(timers, [this] { WriteAutosave(); }) {}

PlayedGame::~PlayedGame() {
    if (autosave_.IsRunning()) WriteAutosave();
}

template <typename Step>
bool PlayedGame::Run(Step step) {
    if (busy_) return false;
    const Mark busy(busy_);
    step();
    GiveFiles();
    return true;
}

/// The question for a file is a box too.
void PlayedGame::GiveFiles() {
    while (WaitingFor() == Waiting::File)
        engine_.GiveFile(askForFile_ ? askForFile_(engine_.FileAsked()) : std::nullopt);
}

bool PlayedGame::Start() {
    if (!Run([this] { engine_.Initialize(); })) return false;
    Remember();
    return true;
}

bool PlayedGame::GoOn() {
    if (!Run([this] { engine_.GoOn(); })) return false;
    AfterTurn();
    return true;
}

bool PlayedGame::CanStop() const {
    return WaitingFor() == Waiting::Turn || WaitingFor() == Waiting::Pause;
}

bool PlayedGame::StopTurn() {
    return CanStop() && Run([this] { engine_.StopTurn(states_.empty() ? "" : states_.back()); });
}

bool PlayedGame::CanRestore() const {
    return !CanStop() && WaitingFor() != Waiting::File;
}

void PlayedGame::SaveTo(const std::filesystem::path& file) {
    if (CanSave()) engine_.SaveTo(file);
}

bool PlayedGame::RestoreFrom(const std::filesystem::path& file) {
    bool taken = false;
    if (!CanRestore()) return false;
    const auto take = [&] {
        if (WaitingFor() == Waiting::Nothing) engine_.Initialize();
        taken = engine_.LoadFrom(file);
    };
    if (!Run(take)) return false;
    AfterTurn();
    return taken;
}

bool PlayedGame::CanUndo() const {
    if (CanSave()) return states_.size() > 1;
    return !CanStop() && !states_.empty();
}

bool PlayedGame::Undo() {
    if (!CanUndo() || busy_) return false;
    // In the midst of a turn the latest state is the one before it.
    if (CanSave()) states_.pop_back();
    bool taken = false;
    Run([&] {
        if (WaitingFor() == Waiting::Nothing) {
            const Mark unseen(unseen_);
            engine_.Initialize();
            GiveFiles();
        }
        taken = engine_.TakeState(states_.back());
    });
    if (keeps_) autosave_.Start(kAutosaveDelay);
    return taken;
}

bool PlayedGame::CanResume() const {
    std::error_code error;
    return keeps_ && std::filesystem::is_regular_file(folder_.autosave, error);
}

bool PlayedGame::Resume() {
    const bool began = Run([this] {
        const Mark unseen(unseen_);
        engine_.Initialize();
        GiveFiles();
    });
    const engine::Game* const game = engine_.Running();
    // What has gone wrong has been told, and would go wrong again.
    if (!began || game == nullptr) return began && engine_.HasFailed();
    bool taken = false;
    Run([&] {
        try {
            std::string state = engine::ReadSavedGame(folder_.autosave, game->state);
            taken = engine_.TakeState(state);
            if (!taken)
                return teller_.Tell("The last session can't be resumed: the adventure has changed since.",
                                    "Error");
            states_.clear();
            states_.push_back(std::move(state));
        } catch (const Error& error) {
            teller_.Tell(error.what(), "Error");
        }
    });
    if (!taken) return false;
    resumed_ = true;
    // In the midst of a turn that file is the state before it; else the game as it stands is the first one.
    if (CanSave()) states_.clear();
    AfterTurn();
    return true;
}

bool PlayedGame::Key(char32_t key) {
    return Keys({&key, 1});
}

bool PlayedGame::Keys(std::u32string_view keys) {
    const bool typing = TakesLine() && keys.find(engine::Engine::kEnter) == keys.npos;
    if (!Run([&] { engine_.Keys(keys); })) return false;
    if (!typing) AfterTurn();
    return true;
}

bool PlayedGame::EnterLine(std::string_view line) {
    if (!Run([&] { engine_.EnterLine(line); })) return false;
    AfterTurn();
    return true;
}

bool PlayedGame::TimeOutTick() {
    if (!Run([this] { engine_.TimeOutTick(); })) return false;
    AfterTurn();
    return true;
}

bool PlayedGame::WaitTick() {
    if (!Run([this] { engine_.WaitTick(); })) return false;
    AfterTurn();
    return true;
}

bool PlayedGame::Next() {
    if (!Run([this] { engine_.DoNextScript(); })) return false;
    AfterTurn();
    return true;
}

bool PlayedGame::ToggleSound() {
    return Run([this] { engine_.ToggleSound(); });
}

bool PlayedGame::TakesLine() const {
    return WaitingFor() == Waiting::Sentence || WaitingFor() == Waiting::Answer;
}

void PlayedGame::AfterTurn() {
    Remember();
    if (!keeps_) return;
    if (WaitingFor() == Waiting::Sentence) autosave_.Start(kAutosaveDelay);
    if (WaitingFor() != Waiting::Nothing) return;
    if (engine_.HasFailed()) return WriteAutosave();
    autosave_.Stop();
    std::error_code ignored;
    std::filesystem::remove(folder_.autosave, ignored);
}

void PlayedGame::Remember() {
    if (!CanSave()) return;
    std::string state = engine_.SavedState();
    if (!states_.empty() && states_.back() == state) return;
    states_.push_back(std::move(state));
    if (states_.size() > kMostStates) states_.erase(states_.begin());
}

void PlayedGame::WriteAutosave() {
    autosave_.Stop();
    if (states_.empty()) return;
    try {
        std::filesystem::create_directories(folder_.folder);
        engine::WriteSavedGame(folder_.autosave, states_.back());
    } catch (const std::exception& error) {
        if (!std::exchange(failureTold_, true)) failure_ = error.what();
    }
}

std::string PlayedGame::TakeFailure() {
    return std::exchange(failure_, {});
}

}  // namespace fabula::player
