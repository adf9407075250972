#include "authoring/fields/named_record.h"

#include <cstdint>

#include "condacts/language/parser.h"
#include "text/str_edit.h"

namespace fabula::authoring {

std::optional<NamedRecord> NamedByNumber(store::TableNum table, std::string_view typed) {
    const std::optional<int> number = condacts::NumberOfToken(text::TrimBlanks(typed));
    if (!number) return std::nullopt;
    return NamedRecord{table, *number};
}

std::optional<NamedRecord> NamedWord(store::Adventure& adventure, std::string_view word,
                                     condacts::WordNumber number) {
    store::PreparedQuery row =
        adventure.Prepare(store::TableNum::Vocabulary, "vocindex", "word=? and vocnum=?", "vocindex");
    if (!row.First({word, std::int64_t{number.value}})) return std::nullopt;
    return NamedRecord{store::TableNum::Vocabulary, static_cast<int>(row.Number(0))};
}

}  // namespace fabula::authoring
