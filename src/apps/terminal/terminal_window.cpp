#include "terminal/terminal_window.h"

#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::terminal {

void TerminalWindow::StartGame(const engine::GameLook& look) {
    atStart_ = look.style;
    characterSets_ = look.characterSets;
    timeOut_.reset();
}

void TerminalWindow::EndGame() {
    timeOut_.reset();
}

void TerminalWindow::Write(std::string_view text, const engine::TextStyle& style, engine::TextRole role) {
    const Attributes look = AttributesOf(style, atStart_);
    if (role == engine::TextRole::Prompt) {
        screen_.WritePrompt(text, look);
    } else if (characterSets_) {
        screen_.WriteCharacters(text, look);
    } else {
        screen_.Write(text, look);
    }
}

void TerminalWindow::EndLine(engine::LineEnd kind) {
    if (kind == engine::LineEnd::Hard) screen_.EndLine();
}

void TerminalWindow::Clear(int, int) {
    screen_.Clear();
}

void TerminalWindow::EndInput(std::string_view typed) {
    if (playing_) screen_.Played(typed);
}

void TerminalWindow::EnableNext(bool enabled) {
    if (enabled && !nextEnabled_) screen_.Say("An empty line plays the script, up to the next question.");
    nextEnabled_ = enabled;
}

std::optional<std::filesystem::path> TerminalWindow::AskForFile(const engine::FileRequest& request) {
    const std::optional<std::string> line = Ask(request.title);
    if (!line || line->empty()) return std::nullopt;
    std::filesystem::path name = *line;
    if (!name.has_extension()) name += request.extension;
    const std::filesystem::path file = files_.Place(name, request.forWriting);
    std::error_code ignored;
    const bool exists = std::filesystem::exists(file, ignored);
    if (!request.forWriting && !exists) {
        screen_.Say("There is no file " + name.string() + ".");
        return std::nullopt;
    }
    if (!request.forWriting || !exists || !screen_.IsInteractive()) return file;
    if (!Confirm(name.string() + " exists already. Replace it?")) return std::nullopt;
    return file;
}

/// A line of the player; nullopt when there are no more.
std::optional<std::string> TerminalWindow::Ask(std::string_view question) {
    try {
        screen_.Say(question);
        screen_.WritePrompt(">", {});
        const TypedLine line = screen_.ReadLine(Screen::Prompt::Own, false, std::nullopt);
        if (line.kind == TypedLine::Kind::Line) return line.text;
        inputEnded_ = true;
    } catch (const Error& error) {
        failure_ = error.what();
    }
    return std::nullopt;
}

void TerminalWindow::Tell(std::string_view text, std::string_view) {
    screen_.Say(text);
}

bool TerminalWindow::Confirm(const std::string& question) {
    const std::string answer = Ask(question + " (Y/N)").value_or("");
    return text::UpperCase(text::Left(answer, 1)) == "Y";
}

void TerminalWindow::Check() const {
    if (!failure_.empty()) throw Error(failure_);
    screen_.Check();
}

}  // namespace fabula::terminal
