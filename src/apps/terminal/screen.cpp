#include "terminal/screen.h"

#include <algorithm>

#include "engine/game_window.h"
#include "platform/error.h"
#include "terminal/tty.h"
#include "text/encoding/safe_text.h"
#include "text/str_edit.h"

namespace fabula::terminal {
namespace {

constexpr int kUsualWidth = 80;
constexpr std::string_view kClearScreen = "\x1B[H\x1B[2J";

}  // namespace

Screen::Screen(const ScreenStyle& style, Output& output, LineSource& source, engine::Transcript* transcript)
    : style_(style),
      output_(output),
      source_(source),
      transcript_(transcript),
      wrapper_(output, style.attributes) {
    TakeWidth();
}

void Screen::TakeWidth() {
    int width = style_.width;
    if (width == 0) width = TerminalWidth();
    if (width == 0 && style_.interactive) width = kUsualWidth;
    wrapper_.SetWidth(width);
}

void Screen::Write(std::string_view text, const Attributes& look) {
    safe_.clear();
    text::AppendSafe(text, safe_);
    WriteSafe(look);
}

void Screen::WriteCharacters(std::string_view codes, const Attributes& look) {
    safe_.clear();
    text::AppendCharacters(codes, safe_);
    WriteSafe(look);
}

void Screen::WriteSafe(const Attributes& look) {
    wrapper_.Write(safe_, look);
    if (transcript_) transcript_->Write(text::ReplaceAll(safe_, engine::kNoBreakSpace, " "));
}

void Screen::WritePrompt(std::string_view text, const Attributes& look) {
    if (!style_.interactive) return;
    safe_.clear();
    text::AppendSafe(text, safe_);
    wrapper_.Write(safe_, look);
}

void Screen::EndLine() {
    wrapper_.EndLine();
    if (transcript_) transcript_->EndLine();
}

void Screen::Clear() {
    if (!output_.Used()) return;
    if (style_.interactive && style_.attributes) {
        wrapper_.Forget();
        output_.Write(kClearScreen);
    } else {
        if (!wrapper_.AtLineStart()) wrapper_.EndLine();
        wrapper_.EndLine();
    }
    if (transcript_) transcript_->NewPage();
}

void Screen::Say(std::string_view text) {
    if (!wrapper_.AtLineStart()) wrapper_.EndLine();
    if (transcript_ && !transcript_->AtLineStart()) transcript_->EndLine();
    Write(text, {});
    EndLine();
}

void Screen::Show() {
    wrapper_.Show();
    output_.Flush();
}

TypedLine Screen::ReadLine(Prompt prompt, bool remember, std::optional<std::chrono::milliseconds> timeOut) {
    if (style_.interactive) {
        if (wrapper_.PartlyShown()) output_.Write("\r");
        std::string line = wrapper_.TakeLine(kPromptMark);
        if (prompt == Prompt::Own || !line.empty()) prompt_ = std::move(line);
    } else {
        if (!wrapper_.AtLineStart()) wrapper_.EndLine();
        if (!output_.AtLineStart()) output_.Write("\n");
        output_.Write(">");
    }
    if (!source_.HasLine()) output_.Flush();  // nobody waits for the answer to a line that came with others
    TypedLine line = source_.Read({prompt_, timeOut, remember});
    wrapper_.Forget();
    if (style_.interactive) TakeWidth();  // the window may have another size by now
    if (line.kind != TypedLine::Kind::Line) return line;
    if (style_.interactive && !line.shown) ShowTyped(line.text);
    Record(line.text);
    return line;
}

void Screen::Played(std::string_view line) {
    if (style_.interactive) {
        prompt_ = wrapper_.TakeLine(kPromptMark);
        ShowTyped(line);
    }
    Record(line);
}

void Screen::ShowTyped(std::string_view line) {
    safe_ = prompt_;
    std::erase(safe_, kPromptMark);
    text::AppendSafe(line, safe_);
    safe_ += '\n';
    output_.Write(safe_);
}

void Screen::Record(std::string_view line) {
    if (!transcript_) return;
    safe_.clear();
    text::AppendSafe(line, safe_);
    transcript_->Typed(safe_);
}

void Screen::Finish() {
    if (!wrapper_.AtLineStart()) wrapper_.EndLine();
    if (!style_.interactive && output_.Used() && !output_.AtLineStart()) output_.Write("\n");
    if (transcript_ && !transcript_->AtLineStart()) transcript_->EndLine();
    output_.Flush();
}

void Screen::Check() const {
    output_.Check();
    if (transcript_ && transcript_->Failed()) throw Error("Could not write the transcript.");
}

}  // namespace fabula::terminal
