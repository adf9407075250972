#include "authoring/desk/search/find.h"

#include <algorithm>
#include <cmath>

#include "authoring/desk/grid/field_titles.h"
#include "authoring/document/screen_context.h"
#include "store/comments.h"
#include "store/filter/filter.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kWildCards = "*_%";

/// The number that the text consists of, blanks around it left out.
std::optional<double> NumberIn(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) return std::nullopt;
    const std::size_t end = text.find_last_not_of(' ') + 1;
    const std::optional<double> number = text::RealNumber(text.substr(begin, end - begin));
    return number && std::isfinite(*number) ? number : std::nullopt;
}

/// What a field is compared with: a number, or a text that it has to contain.
struct Criterion {
    std::optional<double> number;
    std::string text;  ///< in lower case
};

bool Matches(const Criterion& criterion, const text::Value& value) {
    if (!criterion.number)
        return text::LowerCase(text::ToText(value)).find(criterion.text) != std::string::npos;
    if (const auto* const whole = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*whole) == *criterion.number;
    const auto* const real = std::get_if<double>(&value);
    return real && *real == *criterion.number;
}

}  // namespace

void FindBox::SetUpFindComboBox(store::Adventure& adventure, TableNum table) {
    const std::string before = chosen_ ? fields_[*chosen_].name : std::string();
    fields_.clear();
    chosen_.reset();
    std::optional<std::size_t> longText;
    const store::TableSchema& schema = adventure.Schema(table);
    const std::string where = "tablenum=" + std::to_string(static_cast<int>(table));
    store::Cursor& rows =
        adventure.OpenTable(TableNum::TablesWalk, "fieldname,altname,search", where, "tablekey");
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string name(rows.Text("fieldname"));
        const bool isProcess = table == TableNum::ProcessTables && text::EqualsNoCase(name, kProcessField);
        const auto column = schema.Find(name);
        if (!column || (rows.Text("search") != "Y" && !isProcess)) continue;
        const store::FieldType type = schema.fields[*column].type;
        const bool isComment = text::EqualsNoCase(name, store::kCommentField);
        if (type == store::FieldType::LongVarWChar && !isComment) longText = fields_.size();
        if (name == before) chosen_ = fields_.size();
        fields_.push_back({name, FieldTitle(table, name, rows.Text("altname")), store::IsNumber(type)});
    }
    if (chosen_ || fields_.empty()) return;
    const auto firstText =
        std::ranges::find_if(fields_, [](const FindField& field) { return !field.number; });
    const bool hasText = firstText != fields_.end();
    chosen_ = longText.value_or(hasText ? static_cast<std::size_t>(firstText - fields_.begin()) : 0);
}

std::optional<int> FindBox::Find(const TableGrid& grid, int row, std::string_view caption,
                                 platform::Person& person) const {
    const auto refuse = [&](const std::string& message) {
        Refuse(person, message);
        return std::nullopt;
    };
    if (text.empty()) return refuse("Nothing to find");
    if (!chosen_) return refuse("No Field to find '" + text + "' in " + std::string(caption));
    const FindField& field = fields_[*chosen_];
    Criterion criterion;
    if (field.number) {
        criterion.number = NumberIn(text);
        if (!criterion.number) return refuse("The value for " + field.name + " is not numeric");
    } else {
        if (text.find_first_of(kWildCards) != std::string::npos)
            return refuse("Wild cards are not necessary in " + field.name);
        criterion.text = text::LowerCase(text);
    }
    for (int step = 1; step <= grid.RowCount(); ++step) {
        const int candidate = (row + step) % grid.RowCount();
        if (Matches(criterion, grid.ValueOf(candidate, field.name))) return candidate;
    }
    return refuse(text + " not found");
}

}  // namespace fabula::authoring
