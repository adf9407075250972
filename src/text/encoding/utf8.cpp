#include "text/encoding/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <utf8proc.h>

namespace fabula::text {
namespace {

bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Whether the byte goes on with a character.
bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

char AsciiLower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

char AsciiUpper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - ('a' - 'A')) : letter;
}

char32_t Lower(char32_t value) {
    if (value >= kBadByte) return value;
    return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(value)));
}

char32_t Upper(char32_t value) {
    if (value >= kBadByte) return value;
    return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(value)));
}

/// The number of ASCII bytes from `offset` to the first other byte. Reads 8 bytes at a time where it can.
std::size_t AsciiRun(std::string_view text, std::size_t offset) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080u;
    std::size_t at = offset;
    std::uint64_t block = 0;
    while (at + sizeof block <= text.size()) {
        std::memcpy(&block, text.data() + at, sizeof block);
        if ((block & kHighBits) != 0) break;
        at += sizeof block;
    }
    while (at < text.size() && IsAscii(text[at]))
        ++at;
    return at - offset;
}

template <class AsciiMap, class Map>
std::string MapEach(std::string_view text, AsciiMap mapAscii, Map map) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (IsAscii(text[at])) {
            result += mapAscii(text[at++]);
            continue;
        }
        const CodePoint point = DecodeAt(text, at);
        AppendCodePoint(result, map(point.value));
        at += point.size;
    }
    return result;
}

/// CompareNoCase from byte `at` on, where both texts are at the start of a code point.
int CompareDecoded(std::string_view left, std::string_view right, std::size_t at) {
    std::size_t leftAt = at;
    std::size_t rightAt = at;
    while (leftAt < left.size() && rightAt < right.size()) {
        const CodePoint leftPoint = DecodeAt(left, leftAt);
        const CodePoint rightPoint = DecodeAt(right, rightAt);
        const char32_t leftLower = Lower(leftPoint.value);
        const char32_t rightLower = Lower(rightPoint.value);
        if (leftLower != rightLower) return leftLower < rightLower ? -1 : 1;
        leftAt += leftPoint.size;
        rightAt += rightPoint.size;
    }
    return static_cast<int>(leftAt < left.size()) - static_cast<int>(rightAt < right.size());
}

}  // namespace

CodePoint DecodeAt(std::string_view text, std::size_t offset) {
    const auto first = static_cast<unsigned char>(text[offset]);
    if (first < 0x80) return {first, 1};
    constexpr std::size_t kLongest = 4;
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data() + offset);
    const auto left = static_cast<utf8proc_ssize_t>(std::min(text.size() - offset, kLongest));
    utf8proc_int32_t value = 0;
    const utf8proc_ssize_t size = utf8proc_iterate(bytes, left, &value);
    if (size < 1) return {kBadByte + first, 1};
    return {static_cast<char32_t>(value), static_cast<std::size_t>(size)};
}

void AppendCodePoint(std::string& text, char32_t value) {
    if (value >= kBadByte) {
        text += static_cast<char>(static_cast<unsigned char>(value - kBadByte));
        return;
    }
    utf8proc_uint8_t bytes[4];
    const utf8proc_ssize_t size = utf8proc_encode_char(static_cast<utf8proc_int32_t>(value), bytes);
    text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
}

std::u32string Decode(std::string_view text) {
    std::u32string points;
    points.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = DecodeAt(text, at);
        points += point.value;
        at += point.size;
    }
    return points;
}

std::string Encode(std::u32string_view points) {
    std::string text;
    text.reserve(points.size());
    for (const char32_t value : points)
        AppendCodePoint(text, value);
    return text;
}

bool IsValidUtf8(std::string_view text) {
    std::size_t at = AsciiRun(text, 0);
    while (at < text.size()) {
        const CodePoint point = DecodeAt(text, at);
        if (point.value >= kBadByte) return false;
        at += point.size;
        at += AsciiRun(text, at);
    }
    return true;
}

std::size_t SequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte >= 0xF0 && byte <= 0xF4) return 4;
    if (byte >= 0xE0 && byte <= 0xEF) return 3;
    if (byte >= 0xC2 && byte <= 0xDF) return 2;
    return 1;
}

std::size_t CharacterStart(std::string_view text, std::size_t at) {
    while (at > 0 && at < text.size() && IsContinuation(text[at]))
        --at;
    return at;
}

std::size_t NextCharacterStart(std::string_view text, std::size_t at) {
    while (at < text.size() && IsContinuation(text[at]))
        ++at;
    return at;
}

std::size_t Length(std::string_view text) {
    std::size_t length = 0;
    for (std::size_t at = 0; at < text.size(); ++length) {
        const std::size_t run = AsciiRun(text, at);
        length += run;
        at += run;
        if (at == text.size()) break;
        at += DecodeAt(text, at).size;
    }
    return length;
}

std::size_t OffsetOf(std::string_view text, std::size_t index) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < index && at < text.size(); ++i)
        at += IsAscii(text[at]) ? 1 : DecodeAt(text, at).size;
    return at;
}

std::string_view Left(std::string_view text, std::size_t count) {
    return text.substr(0, OffsetOf(text, count));
}

std::string_view Right(std::string_view text, std::size_t count) {
    const std::size_t length = Length(text);
    if (count >= length) return text;
    return text.substr(OffsetOf(text, length - count));
}

std::string PadRight(std::string_view text, std::size_t width) {
    std::string padded(text);
    const std::size_t length = Length(text);
    if (length < width) padded.append(width - length, ' ');
    return padded;
}

std::string LowerCase(std::string_view text) {
    return MapEach(text, AsciiLower, Lower);
}

std::string UpperCase(std::string_view text) {
    return MapEach(text, AsciiUpper, Upper);
}

int CompareNoCase(std::string_view left, std::string_view right) {
    const std::size_t shorter = std::min(left.size(), right.size());
    for (std::size_t at = 0; at < shorter; ++at) {
        if (!IsAscii(left[at]) || !IsAscii(right[at])) return CompareDecoded(left, right, at);
        const char leftLower = AsciiLower(left[at]);
        const char rightLower = AsciiLower(right[at]);
        if (leftLower != rightLower) return leftLower < rightLower ? -1 : 1;
    }
    return static_cast<int>(left.size() > shorter) - static_cast<int>(right.size() > shorter);
}

bool EqualsNoCase(std::string_view left, std::string_view right) {
    return CompareNoCase(left, right) == 0;
}

}  // namespace fabula::text
