#include "player/play/player_screen.h"

#include <utility>

#include "engine/actions/state_actions.h"
#include "platform/error.h"
#include "platform/file_question.h"
#include "store/extensions.h"

namespace fabula::player {

using engine::Waiting;

PlayerScreen::PlayerScreen(const PlayerHost& host, GameView view) : host_(host), view_(std::move(view)) {}

bool PlayerScreen::IsRunning() const {
    return game_ && game_->WaitingFor() != Waiting::Nothing;
}

bool PlayerScreen::Open() {
    const auto& recent = host_.recent.Files();
    const auto start = recent.empty() ? std::filesystem::current_path() : recent.front().parent_path();
    const auto file = host_.dialogs.ChooseFile(
        platform::QuestionFor("Open VEL Database", "VEL Database", store::extension::kAdventure, start));
    return file && Load(*file);
}

bool PlayerScreen::Load(const std::filesystem::path& file) {
    if (game_ && game_->IsBusy()) return false;
    auto opened = Opened(file);
    if (!opened) return false;
    End();
    game_ = std::move(opened);
    if (!host_.isTrial) host_.recent.AddMRUItem(std::filesystem::absolute(file));
    view_.attach(game_.get());
    if (!WantsToResume() || !game_->Resume()) game_->Start();
    return true;
}

/// nullptr when it is refused.
std::unique_ptr<PlayedGame> PlayerScreen::Opened(const std::filesystem::path& file) {
    try {
        auto opened = std::make_unique<PlayedGame>(
            file, host_.dataFolder,
            engine::Host{view_.window, host_.dialogs, host_.random, host_.sound, host_.trace, view_.parts},
            host_.timers, host_.isTrial ? Autosave::Off : Autosave::On, host_.options);
        opened->AskForFilesBy([this](const engine::FileRequest& request) { return AskForFile(request); });
        return opened;
    } catch (const Error& error) {
        host_.dialogs.Tell(error.what(), "Error");
        host_.recent.Remove(file);
        return nullptr;
    }
}

bool PlayerScreen::WantsToResume() const {
    return game_->CanResume() &&
           host_.dialogs.Confirm("Go on where the last session of this game stopped?", "Resume");
}

bool PlayerScreen::Undo() {
    return game_ && game_->Undo();
}

bool PlayerScreen::Next() {
    return game_ && game_->Next();
}

bool PlayerScreen::StartAgain() {
    if (!game_ || game_->IsBusy()) return false;
    if (IsRunning() && game_->HasProgress() &&
        !host_.dialogs.Confirm("Leave the game as it stands and start it from its beginning?",
                               "Start Again"))
        return false;
    return game_->Start();
}

bool PlayerScreen::Restore() {
    if (!game_ || !game_->CanRestore()) return false;
    const auto file = AskForSavedGame(false);
    if (!file) return false;
    try {
        if (!game_->RestoreFrom(*file)) host_.dialogs.Tell(engine::kInvalidSave, "Error");
    } catch (const Error& error) {
        host_.dialogs.Tell(error.what(), "Error");
    }
    return true;
}

void PlayerScreen::Save() {
    if (!game_ || !game_->CanSave()) return;
    const auto file = AskForSavedGame(true);
    if (!file) return;
    try {
        game_->SaveTo(*file);
        view_.say("Saved as " + file->filename().string() + ".");
    } catch (const Error& error) {
        host_.dialogs.Tell(error.what(), "Error");
    }
}

/// As SAVE and LOAD do, in the folder of the game.
std::optional<std::filesystem::path> PlayerScreen::AskForFile(const engine::FileRequest& request) {
    std::error_code ignored;
    std::filesystem::create_directories(game_->SaveFolder(), ignored);
    platform::FileQuestion question =
        platform::QuestionFor(request.title, request.kind, request.extension, game_->SaveFolder());
    question.forWriting = request.forWriting;
    return host_.dialogs.ChooseFile(question);
}

std::optional<std::filesystem::path> PlayerScreen::AskForSavedGame(bool forWriting) {
    auto file = AskForFile(engine::SavedGameRequest(forWriting));
    if (file && !file->has_extension()) *file += store::extension::kSavedGame;
    return file;
}

bool PlayerScreen::SoundOn() const {
    return game_ && game_->SoundOn();
}

void PlayerScreen::ToggleSound() {
    if (game_) game_->ToggleSound();
}

bool PlayerScreen::WritesTranscript() const {
    return game_ && game_->Transcript().IsOpen();
}

void PlayerScreen::WriteTranscript(bool on) {
    if (!on) return CloseTranscript();
    if (!game_) return;
    const auto folder =
        std::filesystem::is_directory(game_->SaveFolder()) ? game_->SaveFolder() : host_.dataFolder;
    const auto file = host_.dialogs.ChooseFile({.title = "Write a Transcript",
                                                .filter = "Text|*.txt",
                                                .extension = "txt",
                                                .forWriting = true,
                                                .start = folder / "transcript.txt"});
    if (!file) return;
    try {
        game_->Transcript().Open(*file);
    } catch (const Error& error) {
        host_.dialogs.Tell(error.what(), "Error");
    }
}

void PlayerScreen::CloseTranscript() {
    if (!game_) return;
    if (const auto failure = game_->Transcript().Close()) host_.dialogs.Tell(*failure, "Error");
}

void PlayerScreen::FollowWait() {
    constexpr int kLongTurn = 20;
    const auto waiting = game_ ? game_->WaitingFor() : Waiting::Nothing;
    slices_ = waiting == Waiting::Turn ? slices_ + 1 : 0;
    std::string sentence;
    if (waiting == Waiting::AnyKey) sentence = "The game waits for a key.";
    if (slices_ >= kLongTurn) sentence = "The game is busy. Esc stops the turn.";
    if (!sentence.empty() || waitSaid_) view_.say(sentence);
    waitSaid_ = !sentence.empty();
}

bool PlayerScreen::Close() {
    if (game_ && game_->IsBusy()) return false;
    CloseTranscript();
    return true;
}

void PlayerScreen::End() {
    if (!game_) return;
    view_.attach(nullptr);
    CloseTranscript();
    game_.reset();
}

}  // namespace fabula::player
