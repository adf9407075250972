#include "interchange/unmarlo/unmarlo_section.h"

#include "condacts/limits.h"
#include "text/fields.h"

namespace fabula::interchange {

bool HasAddress(std::string_view line) {
    return Cut(line, {kColonColumn, 1}) == ":";
}

bool HasMark(std::string_view line, std::string_view mark) {
    if (line.starts_with(mark)) return true;
    return HasAddress(line) && Cut(line, {kLabelColumn, line.size()}).starts_with(mark);
}

std::optional<int> NumberBehind(std::string_view line, int labelWords) {
    const std::string label = text::GetField(1, ":", line);
    const auto words = SplitWords(label);
    const auto index = static_cast<std::size_t>(labelWords);
    if (index >= words.size()) return std::nullopt;
    return ListedNumber(words[index], condacts::limit::kHighestRecord);
}

}  // namespace fabula::interchange
