#include "pictures/drawstring.h"

#include <algorithm>
#include <cstdint>

#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::pictures {

std::vector<std::string> DrawstringWords(std::string_view drawstring) {
    return SplitAtBlanks(text::TrimBlanks(text::CompressText(drawstring)));
}

std::vector<std::string> SplitAtBlanks(std::string_view text) {
    if (text.empty()) return {};
    const std::vector<std::string_view> pieces = text::Split(text, " ");
    return {pieces.begin(), pieces.end()};
}

std::string JoinWords(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

std::optional<int> ParameterValue(std::string_view word) {
    const std::optional<std::int64_t> value = text::WholeNumber(word);
    if (!value) return std::nullopt;
    return static_cast<int>(std::clamp<std::int64_t>(*value, -kLargestNumber, kLargestNumber));
}

}  // namespace fabula::pictures
