#include "engine/output/printer.h"

#include <algorithm>
#include <optional>

#include "condacts/limits.h"
#include "engine/cycle/condact_runner.h"
#include "engine/output/script.h"
#include "engine/output/shown_text.h"
#include "engine/run_failure.h"
#include "text/colours.h"
#include "text/encoding/utf8.h"
#include "text/markup.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::engine {

namespace {

constexpr std::size_t kLongestRun = 64 * 1024;

enum TagCode {
    kPaperTag = 0,
    kInkTag = 1,
    kTabTag = 2,
    kOverOn = 3,
    kOverOff = 4,
    kFlashOn = 5,
    kFlashOff = 6,
    kBrightOn = 7,
    kBrightOff = 8,
    kCharSetTag = 9,
    kFontSizeTag = 10,
    kInverseOn = 11,
    kInverseOff = 12,
    kCharacterTag = 13,
    kCentreTag = 14,
    kTabStopTag = 15,
    kLineEndTag = 16,
    kReturnTag = 17,
    kBlinkOn = 18,
    kBlinkOff = 19,
};

}  // namespace

Printer::Printer(GameWindow& window, const PaneMeasures& measures, const TextSettings& settings,
                 Script& script)
    : window_(window),
      measures_(measures),
      settings_(settings),
      script_(script),
      sizeCode_(settings.fontSize) {
    CharSet(settings.font);
    FontSize(settings.fontSize);
    ResetColours();
}

void Printer::TellOrigins(OriginSink* sink, const CondActRunner& runner) {
    origins_ = sink;
    runner_ = &runner;
}

void Printer::PrintText(std::string_view text, bool freshStart, bool restoreAttributes, TextRole role,
                        TextRecord record) {
    role_ = role;
    record_ = record;
    width_ = CharacterPane() ? measures_.characterWidth : measures_.textWidth;
    advance_ = CharacterPane() ? std::max(1, measures_.characterAdvance) : 1;
    if (freshStart) {
        if (column_ > 0) EndLine(LineEnd::Hard);
        ResetColours();
    }
    noted_ = style_;
    notedSizeCode_ = sizeCode_;
    for (bool more = true; more;) {
        const LineSplit split = SplitAtLineEnd(text);
        PrintLine(split.line);
        more = split.ended;
        if (more) EndLine(LineEnd::Hard);
        text = split.rest;
    }
    if (restoreAttributes && style_ != noted_) {
        Flush();
        style_.bright = noted_.bright;
        style_.font = noted_.font;
        style_.fontSize = noted_.fontSize;
        style_.ink = noted_.ink;
        sizeCode_ = notedSizeCode_;
    }
    Flush();
    role_ = TextRole::Game;
    record_ = {};
}

void Printer::PrintLine(std::string_view line) {
    for (;;) {
        const std::size_t blank = line.find(' ');
        PrintWord(line.substr(0, blank));
        if (blank == std::string_view::npos) return;
        SendBlanks(1);
        line.remove_prefix(blank + 1);
    }
}

void Printer::PrintWord(std::string_view word) {
    for (std::size_t open = word.find('<'); open != std::string_view::npos; open = word.find('<')) {
        if (open > 0) {
            SendPiece(word.substr(0, open));
            word.remove_prefix(open);
            continue;
        }
        const std::size_t close = word.find('>');
        if (close == std::string_view::npos) break;
        RunTag(word.substr(1, close - 1), word.substr(close + 1));
        word.remove_prefix(close + 1);
    }
    if (!word.empty()) SendPiece(word);
}

void Printer::RunTag(std::string_view tag, std::string_view rest) {
    const std::size_t equals = tag.find('=');
    const std::string name = text::LowerCase(tag.substr(0, equals));
    const auto found = std::find_if(settings_.tags.begin(), settings_.tags.end(),
                                    [&](const Tag& known) { return known.name == name; });
    if (found == settings_.tags.end()) return;
    switch (found->code) {
        case kTabTag:
            if (TextColumn() < text::kTabColumn) return SendBlanks(text::kTabColumn - TextColumn());
            return EndLine();
        case kOverOn:
            return Over(true);
        case kOverOff:
            return Over(false);
        case kFlashOn:
        case kBlinkOn:
            return Flash(true);
        case kFlashOff:
        case kBlinkOff:
            return Flash(false);
        case kBrightOn:
            return Bright(true);
        case kBrightOff:
            return Bright(false);
        case kInverseOn:
            return Inverse(true);
        case kInverseOff:
            return Inverse(false);
        case kCentreTag:
            return Centre(rest);
        case kTabStopTag:
            return SendBlanks(8 - (TextColumn() & 7));
        case kLineEndTag:
        case kReturnTag:
            return EndLine();
        default:
            break;
    }
    RunValueTag(found->code, equals == std::string_view::npos ? "" : tag.substr(equals + 1));
}

void Printer::RunValueTag(int code, std::string_view value) {
    const std::optional<int> number = text::SmallNumber(value);
    if (!value.empty() && !number) return;
    switch (code) {
        case kPaperTag:
            if (number.value_or(0) >= 0 && number.value_or(0) <= condacts::limit::kHighestColour)
                Paper(number.value_or(noted_.paper));
            break;
        case kInkTag:
            if (number.value_or(0) >= 0 && number.value_or(0) <= condacts::limit::kHighestColour)
                Ink(number.value_or(noted_.ink));
            break;
        case kCharSetTag:
            CharSet(number.value_or(noted_.font));
            break;
        case kFontSizeTag:
            FontSize(number.value_or(notedSizeCode_));
            break;
        case kCharacterTag:
            if (number) SendCharacter(*number);
            break;
        default:
            break;
    }
}

void Printer::SendPiece(std::string_view piece) {
    decoded_.clear();
    AppendShown(piece, CharacterPane(), decoded_);
    const int length = static_cast<int>(std::min<std::size_t>(text::Length(decoded_), kNoWidthLimit));
    if (!CharacterPane() && column_ > 0 && column_ + length > width_) EndLine(LineEnd::Wrapped);
    // Words end at blanks, so that those in a longer piece are the ones that do not break.
    if (length > 1 && measures_.breaksLines && decoded_.find(' ') != std::string::npos) {
        decoded_ = text::ReplaceAll(decoded_, " ", kNoBreakSpace);
    }
    Send(decoded_, length);
}

void Printer::Send(std::string_view text, int length) {
    const int grows = length * advance_;
    if (CharacterPane() && column_ > 0 && column_ + grows > width_) EndLine(LineEnd::Wrapped);
    const bool blank = text == " ";
    if (blank && column_ == 0) {
        blankHeld_ = true;
        column_ = grows;
        return;
    }
    if (blankHeld_ && !blank) {
        blankHeld_ = false;
        Append(text);
        if (CharacterPane()) {
            column_ = grows;
            return;
        }
        Append(" ");
    } else {
        ReleaseBlank();
        Append(text);
    }
    column_ = std::min(column_ + grows, kNoWidthLimit);
}

void Printer::SendBlanks(int count) {
    for (int i = 0; i < count; ++i)
        Send(" ", 1);
}

void Printer::SendCharacter(int number) {
    std::string character;
    AppendCharacter(number, CharacterPane(), character);
    if (character.empty()) return;
    if (!CharacterPane() && column_ > 0 && column_ + 1 > width_) EndLine(LineEnd::Wrapped);
    Send(character, 1);
}

void Printer::Centre(std::string_view word) {
    const int length =
        static_cast<int>(std::min<std::size_t>(text::Length(WithoutMarkup(word)), kNoWidthLimit));
    int width = CharacterPane() ? width_ / advance_ : settings_.printWidth;
    if (width <= 0) width = width_;
    if (width < kNoWidthLimit) SendBlanks((width - length) / 2);
}

void Printer::Append(std::string_view text) {
    run_ += text;
    if (run_.size() > kLongestRun) Flush();
}

void Printer::ReleaseBlank() {
    if (!blankHeld_) return;
    blankHeld_ = false;
    Append(" ");
}

void Printer::NewLine() {
    ResetColours();
    EndLine();
}

void Printer::EndLine(LineEnd kind) {
    ReleaseBlank();
    Flush();
    ++spent_;
    window_.EndLine(kind);
    if (kind == LineEnd::Hard && role_ == TextRole::Game) script_.WriteLineEnd();
    column_ = 0;
}

void Printer::Flush() {
    if (run_.empty()) return;
    spent_ += static_cast<std::int64_t>(run_.size());
    if (spent_ > kPrintLimit) {
        run_.clear();
        throw RunFailure("the game prints more than " + std::to_string(kPrintLimit) +
                         " characters without waiting for the player");
    }
    if (origins_) origins_->Printing(run_, {runner_->Place(), record_});
    window_.Write(run_, style_, role_);
    if (role_ == TextRole::Game && script_.Writing()) {
        script_.WriteText(text::ReplaceAll(run_, kNoBreakSpace, " "));
    }
    run_.clear();
}

void Printer::AtLineStart() {
    blankHeld_ = false;
    column_ = 0;
}

void Printer::Clear() {
    Flush();
    if (CharacterPane()) ResetColours();
    window_.Clear(settings_.backColour, style_.ink);
    AtLineStart();
}

void Printer::Paper(int colour) {
    Flush();
    style_.paper = colour;
}

void Printer::Ink(int colour) {
    Flush();
    style_.ink = colour;
}

void Printer::Bright(bool on) {
    Flush();
    style_.bright = on;
    if (on && style_.ink < text::kFirstBrightColour) style_.ink += text::kFirstBrightColour;
    if (!on && style_.ink >= text::kFirstBrightColour) style_.ink -= text::kFirstBrightColour;
}

void Printer::Flash(bool on) {
    Flush();
    style_.flash = on;
}

void Printer::Inverse(bool on) {
    Flush();
    style_.inverse = on;
}

void Printer::Over(bool on) {
    Flush();
    style_.over = on;
}

void Printer::CharSet(int font) {
    Flush();
    style_.font = font;
}

void Printer::FontSize(int code) {
    Flush();
    const auto size = settings_.fontSizes.find(code);
    if (size == settings_.fontSizes.end()) return;
    sizeCode_ = code;
    style_.fontSize = size->second;
}

void Printer::ResetColours() {
    if (style_.ink == settings_.textColour && style_.paper == settings_.backColour) return;
    Flush();
    style_.ink = settings_.textColour;
    style_.paper = settings_.backColour;
}

std::string Printer::WithoutMarkup(std::string_view text) const {
    std::string shown;
    AppendShown(StripTags(text), CharacterPane(), shown);
    return shown;
}

}  // namespace fabula::engine
