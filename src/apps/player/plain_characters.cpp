#include "player/plain_characters.h"

#include "text/utf8.h"

namespace fabula::player {

namespace {

constexpr char32_t kUnshowable = U'\uFFFD';
constexpr char32_t kUserDefined = U'\u25A1';

constexpr char32_t kFirstBlock = 128;
constexpr char32_t kLastBlock = 143;
constexpr char32_t kLastUserDefined = 164;

/// By number less 128.
constexpr std::u32string_view kBlocks = U" ▝▘▀▗▐▚▜▖▞▌▛▄▟▙█";
static_assert(kBlocks.size() == kLastBlock - kFirstBlock + 1);

char32_t Safe(char32_t point) {
    if (point == '\t') return ' ';
    const bool control = point < 0x20 || (point >= 0x7F && point < 0xA0);
    const bool separator = point == 0x2028 || point == 0x2029;
    return control || separator || point >= text::kBadByte ? kUnshowable : point;
}

char32_t OfCharacterSet(char32_t code) {
    if (code == 96) return U'£';
    if (code == 127) return U'©';
    if (code >= kFirstBlock && code <= kLastBlock) return kBlocks[code - kFirstBlock];
    if (code > kLastBlock && code <= kLastUserDefined) return kUserDefined;
    return Safe(code);
}

std::string Change(std::string_view text, char32_t (*change)(char32_t)) {
    std::string changed;
    for (std::size_t at = 0; at < text.size();) {
        const text::CodePoint point = text::DecodeAt(text, at);
        text::AppendCodePoint(changed, change(point.value));
        at += point.size;
    }
    return changed;
}

}  // namespace

std::string PlainText(std::string_view text) {
    return Change(text, Safe);
}

std::string PlainCharacters(std::string_view run) {
    return Change(run, OfCharacterSet);
}

}  // namespace fabula::player
