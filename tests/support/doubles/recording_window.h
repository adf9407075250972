#pragma once

#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/game_window.h"
#include "engine/output/origin.h"

namespace fabula::engine {

/// A window for tests: keeps what the game shows, answers what it was told to answer, and lets no time pass
/// by itself.
class RecordingWindow final : public WholeWindow, public OriginSink {
  public:
    struct Run {
        std::string text;
        TextStyle style;
        TextRole role = TextRole::Game;
        Origin origin;  ///< where the window's Parts were given to the engine
    };
    WindowParts Parts() { return {this, this, this, this, this, this, &measures}; }

    /// What the game said since the last call: line ends as "\n", lines not wrapped, without prompts and
    /// typed lines.
    std::string TakeText();
    /// The whole of it.
    const std::string& Text() const { return text_; }
    /// The pane since it was last cleared: wrapped, with prompts and typed lines.
    const std::string& Screen() const { return screen_; }
    const std::vector<Run>& Runs() const { return runs_; }
    /// The style of the latest run that holds `text`; throws std::logic_error when none does.
    const TextStyle& StyleOf(std::string_view text) const { return LatestRun(text).style; }

    /// Where the latest run that holds `text` came from; throws as StyleOf does.
    const Origin& OriginOf(std::string_view text) const { return LatestRun(text).origin; }

    /// Of the panes. No line breaks at first.
    PaneMeasures measures{.characterAdvance = 8};

    GameLook look;
    int starts = 0;
    int ends = 0;
    int clears = 0;
    std::string typed;    ///< as the last ShowInput showed it
    int inputsShown = 0;  ///< by ShowInput
    std::string cursor;
    bool nextEnabled = false;
    std::map<StatusField, std::string> status;
    std::vector<std::optional<Picture>> pictures;      ///< shown in turn; nullopt for none
    std::optional<std::chrono::milliseconds> timeOut;  ///< of the running time-out
    int timeOutStarts = 0;
    std::vector<std::chrono::milliseconds> waits;  ///< all pauses so far

    /// Queues the file for the next question; nullopt: the player gives up. A question without an answer
    /// throws std::logic_error: a test must expect its questions.
    void AnswerFile(std::optional<std::filesystem::path> file) { files_.push_back(std::move(file)); }
    /// True: the player gives up every question that has no answer queued.
    bool givesUp = false;
    /// The titles of the questions so far.
    std::vector<std::string> fileQuestions;

    void StartGame(const GameLook& gameLook) override;
    void EndGame() override;
    void Write(std::string_view text, const TextStyle& style, TextRole role) override;
    void Printing(std::string_view, const Origin& origin) override { origin_ = origin; }
    void EndLine(LineEnd kind) override;
    void Clear(int paper, int ink) override;
    void ShowInput(std::string_view line, std::string_view cursorText) override;
    void EndInput(std::string_view line) override;
    void ShowPicture(const Picture& picture) override { pictures.emplace_back(picture); }
    void HidePicture() override { pictures.emplace_back(std::nullopt); }
    void ShowStatus(StatusField field, std::string_view text) override { status[field] = text; }
    void EnableNext(bool enabled) override { nextEnabled = enabled; }
    void StartTimeOut(std::chrono::milliseconds length) override;
    void StopTimeOut() override { timeOut.reset(); }
    void StartWait(std::chrono::milliseconds length) override { waits.push_back(length); }

    /// The answer to a question for a file.
    std::optional<std::filesystem::path> FileFor(const FileRequest& request);

  private:
    const Run& LatestRun(std::string_view text) const;

    std::string text_;
    std::size_t taken_ = 0;
    std::string screen_;
    std::vector<Run> runs_;
    Origin origin_;
    std::deque<std::optional<std::filesystem::path>> files_;
};

}  // namespace fabula::engine
