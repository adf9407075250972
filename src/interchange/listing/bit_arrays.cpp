#include "interchange/listing/bit_arrays.h"

#include <algorithm>

#include "interchange/listing/listing_numbers.h"
#include "pictures/characters/glyph.h"
#include "store/character_key.h"
#include "text/encoding/utf8.h"
#include "text/format.h"
#include "text/numbers.h"

namespace fabula::interchange {
namespace {

constexpr std::string_view kOpening = "static char ";
constexpr std::string_view kBrackets = "[]";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::size_t kRows = pictures::kGlyphSide;
/// More than the largest array has; what follows is passed over.
constexpr std::size_t kMostRows = kRows * 256;

}  // namespace

std::string_view BitArray::NameIn(std::string_view line) {
    const std::size_t opening = line.find(kOpening);
    if (opening == std::string_view::npos || line.find('{') == std::string_view::npos) return {};
    line.remove_prefix(opening + kOpening.size());
    return line.substr(0, std::min(line.find(kBrackets), line.find(' ')));
}

void BitArray::TakeLine(std::string_view line) {
    const std::size_t end = line.find('}');
    if (end != std::string_view::npos) closed_ = true;
    line = line.substr(0, end);
    for (std::size_t at = line.find("0x"); at != std::string_view::npos; at = line.find("0x", at)) {
        at += 2;
        const std::string_view digits = line.substr(at, 2);
        const auto row = text::HexNumber(digits.substr(0, digits.find_first_not_of(kHexDigits)));
        if (row && rows_.size() < kMostRows) rows_.push_back(ReverseFont(static_cast<std::uint8_t>(*row)));
    }
}

std::vector<std::string> BitArray::Characters(std::size_t most) const {
    std::vector<std::string> characters;
    for (std::size_t first = 0; first + kRows <= rows_.size() && characters.size() < most; first += kRows) {
        std::string values;
        for (std::size_t row = 0; row < kRows; ++row)
            values += (row == 0 ? "" : " ") + std::to_string(rows_[first + row]);
        characters.push_back(values);
    }
    return characters;
}

void ArrayReader::Line(std::string_view line) {
    const std::string_view name = BitArray::NameIn(line);
    if (!name.empty()) {
        Finish();
        name_ = name;
        line.remove_prefix(line.find('{') + 1);
    }
    if (name_.empty()) return;
    array_.TakeLine(line);
    if (array_.Closed()) Finish();
}

void ArrayReader::Finish() {
    if (name_.empty()) return;
    take_(name_, array_);
    name_.clear();
    array_ = {};
}

void ListedCharacters::Store(int set, int first, const std::vector<std::string>& characters,
                             const std::string& setName) {
    const std::string label = text::FormatText("SET !%z4", {std::int64_t{set}});
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const std::int64_t number = first + static_cast<int>(i);
        store::Cursor& record = table_.GoToOrAdd(std::int64_t{set} * store::kCharactersOfASet + number);
        record.SetField("charset", label);
        record.SetField("charsetnum", std::int64_t{set});
        record.SetField("charsetname", std::string(text::Left(setName, pictures::kLongestSetName)));
        record.SetField("charnum", number);
        record.SetField("charvals", characters[i]);
        table_.Update();
    }
}

}  // namespace fabula::interchange
