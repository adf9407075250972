#include "text/tag_catalogue.h"

#include <algorithm>

#include "text/encoding/utf8.h"

namespace fabula::text {

TagCatalogue::TagCatalogue(std::vector<CodeRow> rows, std::optional<std::set<int>> characterSets)
    : rows_(std::move(rows)), characterSets_(std::move(characterSets)) {}

const CodeRow* TagCatalogue::FindTag(std::string_view name) const {
    if (name.empty()) return nullptr;
    const auto isNamed = [name](const CodeRow& row) { return EqualsNoCase(row.fabulaTag, name); };
    const auto found = std::find_if(rows_.begin(), rows_.end(), isNamed);
    return found == rows_.end() ? nullptr : &*found;
}

bool TagCatalogue::HasCharacterSet(std::int64_t number) const {
    const auto isNumber = [number](int set) { return set == number; };
    if (characterSets_) return std::any_of(characterSets_->begin(), characterSets_->end(), isNumber);
    const auto isFont = [number](const CodeRow& row) {
        return row.codenum == number && !row.fontName.empty();
    };
    return std::any_of(rows_.begin(), rows_.end(), isFont);
}

bool TagCatalogue::HasCode(std::int64_t number) const {
    const auto isRow = [number](const CodeRow& row) { return row.codenum == number; };
    return std::any_of(rows_.begin(), rows_.end(), isRow);
}

}  // namespace fabula::text
