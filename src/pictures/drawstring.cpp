#include "pictures/drawstring.h"

#include <algorithm>

#include "text/str_edit.h"

namespace fabula::pictures {

std::vector<std::string> DrawstringWords(std::string_view drawstring) {
    return SplitAtBlanks(text::TrimBlanks(text::CompressText(drawstring)));
}

std::vector<std::string> SplitAtBlanks(std::string_view text) {
    std::vector<std::string> words;
    if (text.empty()) return words;
    std::size_t start = 0;
    for (std::size_t blank = text.find(' '); blank != std::string_view::npos;
         blank = text.find(' ', start)) {
        words.emplace_back(text.substr(start, blank - start));
        start = blank + 1;
    }
    words.emplace_back(text.substr(start));
    return words;
}

std::string JoinWords(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

std::optional<int> WholeNumber(std::string_view word) {
    const bool negative = word.starts_with('-');
    if (negative || word.starts_with('+')) word.remove_prefix(1);
    if (word.empty()) return std::nullopt;
    int value = 0;
    for (const char digit : word) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = std::min(10 * value + (digit - '0'), kLargestNumber);
    }
    return negative ? -value : value;
}

}  // namespace fabula::pictures
