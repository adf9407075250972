#include "support/doubles/recording_window.h"

#include <stdexcept>

namespace fabula::engine {

std::string RecordingWindow::TakeText() {
    std::string text = text_.substr(taken_);
    taken_ = text_.size();
    return text;
}

const RecordingWindow::Run& RecordingWindow::LatestRun(std::string_view text) const {
    for (auto run = runs_.rbegin(); run != runs_.rend(); ++run) {
        if (run->text.find(text) != std::string::npos) return *run;
    }
    throw std::logic_error("no run holds \"" + std::string(text) + "\"");
}

void RecordingWindow::StartGame(const GameLook& gameLook) {
    look = gameLook;
    ++starts;
}

void RecordingWindow::EndGame() {
    ++ends;
}

void RecordingWindow::Write(std::string_view text, const TextStyle& style, TextRole role) {
    runs_.push_back({std::string(text), style, role, origin_});
    screen_ += text;
    if (role == TextRole::Game) text_ += text;
}

void RecordingWindow::EndLine(LineEnd kind) {
    screen_ += '\n';
    if (kind == LineEnd::Hard) text_ += '\n';
}

void RecordingWindow::Clear(int, int) {
    ++clears;
    screen_.clear();
}

void RecordingWindow::ShowInput(std::string_view line, std::string_view cursorText) {
    typed = line;
    ++inputsShown;
    cursor = cursorText;
}

void RecordingWindow::EndInput(std::string_view line) {
    screen_ += line;
    screen_ += '\n';
    typed.clear();
    cursor.clear();
}

void RecordingWindow::StartTimeOut(std::chrono::milliseconds length) {
    timeOut = length;
    ++timeOutStarts;
}

std::optional<std::filesystem::path> RecordingWindow::FileFor(const FileRequest& request) {
    fileQuestions.emplace_back(request.title);
    if (files_.empty() && givesUp) return std::nullopt;
    if (files_.empty()) throw std::logic_error("the game asked for a file: " + std::string(request.title));
    std::optional<std::filesystem::path> file = std::move(files_.front());
    files_.pop_front();
    return file;
}

}  // namespace fabula::engine
