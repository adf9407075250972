#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "engine/game_window.h"
#include "platform/teller.h"
#include "terminal/player_files.h"
#include "terminal/screen.h"

namespace fabula::terminal {

/// The window of a game on a screen of text, and its boxes. Pictures and status are not shown. Lines break
/// at the screen's width, not at the game's.
class TerminalWindow final : public engine::WholeWindow, public platform::Teller {
  public:
    TerminalWindow(Screen& screen, const PlayerFiles& files) : screen_(screen), files_(files) {}

    /// What the engine asked for, until it is done.
    std::optional<std::chrono::milliseconds> TimeOut() const { return timeOut_; }
    void TimeOutPassed() { timeOut_.reset(); }
    std::chrono::milliseconds Wait() const { return wait_; }
    /// The input ended in a question of the engine.
    bool InputEnded() const { return inputEnded_; }
    bool NextEnabled() const { return nextEnabled_; }
    /// The lines that the engine enters come from a script of the game, not from the screen.
    void SetPlaying(bool playing) { playing_ = playing; }

    /// Throws fabula::Error when a line could not be read while the engine ran, or Screen::Check.
    void Check() const;

    void StartGame(const engine::GameLook& look) override;
    void EndGame() override;
    void Write(std::string_view text, const engine::TextStyle& style, engine::TextRole role) override;
    void EndLine(engine::LineEnd kind) override;
    void Clear(int paper, int ink) override;
    void ShowInput(std::string_view, std::string_view) override {}
    void EndInput(std::string_view typed) override;
    void ShowPicture(const engine::Picture&) override {}
    void HidePicture() override {}
    void ShowStatus(engine::StatusField, std::string_view) override {}
    void EnableNext(bool enabled) override;
    void StartTimeOut(std::chrono::milliseconds length) override { timeOut_ = length; }
    void StopTimeOut() override { timeOut_.reset(); }
    void StartWait(std::chrono::milliseconds length) override { wait_ = length; }

    /// The file that the player names; nullopt when he gives up.
    std::optional<std::filesystem::path> AskForFile(const engine::FileRequest& request);

    void Tell(std::string_view text, std::string_view title) override;

  private:
    bool Confirm(const std::string& question);
    std::optional<std::string> Ask(std::string_view question);

    Screen& screen_;
    const PlayerFiles& files_;
    engine::TextStyle atStart_;
    bool characterSets_ = false;
    bool playing_ = false;
    bool nextEnabled_ = false;
    bool inputEnded_ = false;
    std::optional<std::chrono::milliseconds> timeOut_;
    std::chrono::milliseconds wait_{0};
    std::string failure_;
};

}  // namespace fabula::terminal
