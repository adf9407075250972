#include "text/encoding/safe_text.h"

#include <algorithm>

#include <utf8proc.h>

#include "text/character_numbers.h"
#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

constexpr char32_t kUnshowable = U'\uFFFD';
constexpr char32_t kLineSeparator = U'\u2028';
constexpr char32_t kParagraphSeparator = U'\u2029';

constexpr char32_t kFirstEmbedding = U'\u202A';
constexpr char32_t kLastOverride = U'\u202E';
constexpr char32_t kFirstIsolate = U'\u2066';
constexpr char32_t kLastIsolate = U'\u2069';

/// By number less that of the first.
constexpr std::u32string_view kBlocks = U" ▝▘▀▗▐▚▜▖▞▌▛▄▟▙█";
static_assert(kBlocks.size() == kSolidCharacter - kFirstBlock + 1);

bool IsPlain(char c) {
    return c >= ' ' && c < '\x7F';
}

bool TurnsDirection(char32_t point) {
    return (point >= kFirstEmbedding && point <= kLastOverride) ||
           (point >= kFirstIsolate && point <= kLastIsolate);
}

char32_t Safe(char32_t point) {
    if (point == '\t') return ' ';
    return IsObeyed(point) ? kUnshowable : point;
}

char32_t OfCharacterSet(char32_t code) {
    if (code == kPoundSign) return U'£';
    if (code == kCopyrightSign) return U'©';
    if (code >= kFirstBlock && code <= kSolidCharacter) return kBlocks[code - kFirstBlock];
    if (code >= kFirstUserGraphic && code <= kLastCharacter) return kPlaceholder;
    return Safe(code);
}

template <typename Change>
void AppendEach(std::string_view text, std::string& shown, Change change) {
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = DecodeAt(text, at);
        AppendCodePoint(shown, change(point.value));
        at += point.size;
    }
}

}  // namespace

void AppendSafe(std::string_view text, std::string& shown) {
    if (std::all_of(text.begin(), text.end(), IsPlain)) {
        shown += text;
    } else {
        AppendEach(text, shown, Safe);
    }
}

std::string SafeLines(std::string_view text) {
    std::string shown;
    for (;;) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        AppendSafe(text.substr(0, end), shown);
        if (end == text.size()) return shown;
        shown += '\n';
        text.remove_prefix(end + 1);
    }
}

bool IsObeyed(char32_t point) {
    const bool control = point < 0x20 || (point >= 0x7F && point < 0xA0);
    const bool separator = point == kLineSeparator || point == kParagraphSeparator;
    return control || separator || TurnsDirection(point) || point >= kBadByte;
}

void AppendCharacters(std::string_view codes, std::string& shown) {
    AppendEach(codes, shown, OfCharacterSet);
}

int DisplayWidth(char32_t character) {
    if (character >= ' ' && character < 0x7F) return 1;
    return utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
}

}  // namespace fabula::text
