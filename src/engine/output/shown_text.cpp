#include "engine/output/shown_text.h"

#include "text/character_numbers.h"
#include "text/encoding/utf8.h"
#include "text/encoding/windows1252.h"
#include "text/line_ends.h"
#include "text/markup.h"

namespace fabula::engine {

namespace {

constexpr char kMarkerLead = text::kLineEndMarker[0];

bool IsMarker(std::string_view text, std::size_t at) {
    return text.substr(at, text::kLineEndMarker.size()) == text::kLineEndMarker;
}

}  // namespace

LineSplit SplitAtLineEnd(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        std::size_t length = 0;
        if (c == '\r') length = text.substr(at, 2) == "\r\n" ? 2 : 1;
        if (c == '\n') length = 1;
        if (c == kMarkerLead && IsMarker(text, at)) length = text::kLineEndMarker.size();
        if (length > 0) return {text.substr(0, at), text.substr(at + length), true};
    }
    return {text, {}, false};
}

void AppendShown(std::string_view text, bool characterPane, std::string& shown) {
    const std::size_t begin = shown.size();
    if (text.find('&') == std::string_view::npos) {
        shown += text;
    } else {
        shown += text::ReplaceEntities(text);
    }
    if (characterPane) return;
    for (std::size_t at = begin; at < shown.size(); ++at) {
        if (shown[at] == text::kHardSpace[0]) shown[at] = ' ';
    }
}

void AppendCharacter(int number, bool characterPane, std::string& shown) {
    if (number < text::kFirstCharacter || number > 255) return;
    if (characterPane) return text::AppendCodePoint(shown, static_cast<char32_t>(number));
    if (number == text::kPoundSign) return text::AppendCodePoint(shown, U'\u00A3');
    if (number == text::kCopyrightSign) return text::AppendCodePoint(shown, U'\u00A9');
    shown += text::FromWindows1252(std::string(1, static_cast<char>(number)));
}

std::string StripTags(std::string_view text) {
    std::string tags;
    return text::StripTags(text, tags);
}

}  // namespace fabula::engine
