#include "interchange/pc/pc_source_job.h"

#include <functional>

#include "condacts/language/parser.h"
#include "condacts/limits.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {

std::string PcSourceJob::Word(std::string_view word) const {
    return text::UpperCase(text::Left(word, dialect.letters));
}

SourcePlace PcSourceJob::PlaceOf(std::string_view at) const {
    SourcePlace place = lines.Place();
    const char* begin = line.data();
    const bool isPiece = !at.empty() && std::less_equal<>()(begin, at.data()) &&
                         std::less<>()(at.data(), begin + line.size());
    if (isPiece) {
        const auto before = line.substr(0, static_cast<std::size_t>(at.data() - begin));
        place.column = static_cast<std::int64_t>(text::Length(before)) + 1;
    }
    return place;
}

bool PcSourceJob::IsNullWord(std::string_view word) const {
    return word == nullWord || word == condacts::kNoWord;
}

std::vector<std::string_view> SplitSlashLine(std::string_view line) {
    return SplitWords(line.substr(1));
}

std::optional<std::int64_t> RecordNumber(const std::vector<std::string_view>& words) {
    if (words.empty()) return std::nullopt;
    const std::optional<int> number = condacts::NumberOfToken(words[0]);
    if (!number || *number > condacts::limit::kHighestRecord) return std::nullopt;
    return *number;
}

}  // namespace fabula::interchange
