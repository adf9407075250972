#include "text/fields.h"

#include <stdexcept>

#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

std::size_t FindDelimiter(std::string_view text, std::string_view delimiter, std::size_t from) {
    if (delimiter.empty()) return std::string_view::npos;
    return text.find(delimiter, from);
}

/// The byte at which position `start`, counting from 1, begins.
std::size_t OffsetOfStart(std::string_view text, int start) {
    if (start < 1) throw std::invalid_argument("a position in a text counts from 1");
    return OffsetOf(text, static_cast<std::size_t>(start - 1));
}

}  // namespace

std::string GetField(int index, std::string_view delimiter, std::string_view text) {
    if (index < 0) throw std::invalid_argument("GetField: the index is negative");
    std::size_t begin = 0;
    std::size_t end = FindDelimiter(text, delimiter, begin);
    for (int i = 0; i < index; ++i) {
        if (end == std::string_view::npos) {
            const bool isNul = delimiter == std::string_view("\0", 1);
            return isNul ? std::string() : std::string(delimiter);
        }
        begin = end + delimiter.size();
        end = FindDelimiter(text, delimiter, begin);
    }
    return std::string(text.substr(begin, end - begin));
}

std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter) {
    std::vector<std::string_view> pieces;
    std::size_t begin = 0;
    std::size_t end = FindDelimiter(text, delimiter, begin);
    while (end != std::string_view::npos) {
        pieces.push_back(text.substr(begin, end - begin));
        begin = end + delimiter.size();
        end = FindDelimiter(text, delimiter, begin);
    }
    pieces.push_back(text.substr(begin));
    return pieces;
}

int CountOccurrences(std::string_view text, std::string_view delimiter) {
    int count = 0;
    std::size_t at = FindDelimiter(text, delimiter, 0);
    while (at != std::string_view::npos) {
        ++count;
        at = FindDelimiter(text, delimiter, at + 1);
    }
    return count;
}

int FieldIndex(std::string_view word, std::string_view delimiter, std::string_view list) {
    int index = 0;
    for (const std::string_view piece : Split(list, delimiter)) {
        if (piece == word) return index;
        ++index;
    }
    return -1;
}

std::string MidText(std::string_view text, int start, int length) {
    const std::string_view rest = text.substr(OffsetOfStart(text, start));
    if (length < 0) return std::string(rest);
    return std::string(Left(rest, static_cast<std::size_t>(length)));
}

int FindText(std::string_view needle, std::string_view text, int start) {
    const std::size_t match = text.find(needle, OffsetOfStart(text, start));
    return static_cast<int>(Length(text.substr(0, match)));
}

bool ContainsText(std::string_view needle, std::string_view text, int start) {
    return text.find(needle, OffsetOfStart(text, start)) < text.size();
}

}  // namespace fabula::text
