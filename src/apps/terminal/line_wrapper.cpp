#include "terminal/line_wrapper.h"

#include <algorithm>

#include "engine/game_window.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::terminal {
namespace {

/// A character may carry marks that take no column; a line with more than this for each column is full.
constexpr std::size_t kMostPerColumn = 16;

char32_t Shown(char32_t point) {
    static const char32_t noBreakSpace = text::DecodeAt(engine::kNoBreakSpace, 0).value;
    return point == noBreakSpace ? U' ' : point;
}

}  // namespace

void LineWrapper::Write(std::string_view text, const Attributes& look) {
    if (width_ == 0) return Pass(text);
    for (std::size_t at = 0; at < text.size();) {
        const text::CodePoint point = text::DecodeAt(text, at);
        at += point.size;
        Add({point.value, text::DisplayWidth(point.value), attributes_ ? look : Attributes{}});
    }
}

/// A line that is never broken goes straight on.
void LineWrapper::Pass(std::string_view text) {
    passing_ = passing_ || !text.empty();
    Emit();
    SwitchTo({});
    if (text.find(engine::kNoBreakSpace) == std::string_view::npos) {
        text_ += text;
    } else {
        text_ += text::ReplaceAll(text, engine::kNoBreakSpace, " ");
    }
    output_.Write(text_);
    text_.clear();
}

bool LineWrapper::Fits(const Glyph& glyph) const {
    return column_ + glyph.width <= width_ &&
           line_.size() < kMostPerColumn * static_cast<std::size_t>(width_);
}

void LineWrapper::Add(const Glyph& glyph) {
    const bool fits = Fits(glyph);
    if (glyph.point == U' ' && column_ > width_) return;  // one blank beyond the width marks the break
    if (!fits && glyph.point != U' ' && !line_.empty()) Break();
    line_.push_back(glyph);
    column_ += glyph.width;
}

/// Ends the line behind its last blank, or as it is when it has none that could still be taken.
void LineWrapper::Break() {
    std::size_t end = line_.size();
    while (end > shown_ && line_[end - 1].point != U' ')
        --end;
    if (end == 0 || line_[end - 1].point != U' ') end = line_.size();
    std::vector<Glyph> rest(line_.begin() + static_cast<std::ptrdiff_t>(end), line_.end());
    line_.resize(end);
    while (line_.size() > shown_ && line_.back().point == U' ')
        line_.pop_back();
    EndLine();
    line_ = std::move(rest);
    for (const Glyph& glyph : line_)
        column_ += glyph.width;
}

void LineWrapper::EndLine() {
    if (column_ > width_ && line_.size() > shown_ && line_.back().point == U' ') line_.pop_back();
    Emit();
    SwitchTo({});
    text_ += '\n';
    output_.Write(text_);
    text_.clear();
    Forget();
}

void LineWrapper::Show() {
    Emit();
    SwitchTo({});
    output_.Write(text_);
    text_.clear();
}

std::string LineWrapper::TakeLine(char mark) {
    std::string prompt;
    Attributes look;
    for (std::size_t i = 0; i < line_.size(); ++i) {
        const Attributes wanted = i + 1 < line_.size() ? line_[i].look : Attributes{};
        if (wanted != look) {
            prompt += mark;
            AppendAnsi(wanted, prompt);
            prompt += mark;
            look = wanted;
        }
        text::AppendCodePoint(prompt, Shown(line_[i].point));
    }
    Forget();
    return prompt;
}

void LineWrapper::Forget() {
    passing_ = false;
    line_.clear();
    shown_ = 0;
    column_ = 0;
}

void LineWrapper::Emit() {
    for (; shown_ < line_.size(); ++shown_) {
        SwitchTo(line_[shown_].look);
        text::AppendCodePoint(text_, Shown(line_[shown_].point));
    }
}

void LineWrapper::SwitchTo(const Attributes& look) {
    if (look == switched_) return;
    AppendAnsi(look, text_);
    switched_ = look;
}

}  // namespace fabula::terminal
