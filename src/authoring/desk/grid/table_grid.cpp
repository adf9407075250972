#include "authoring/desk/grid/table_grid.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <variant>

#include "authoring/desk/grid/field_titles.h"
#include "authoring/fields/cond_act_help.h"
#include "store/filter/filter.h"
#include "store/schema/record_fields.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

/// The values of `see` that make a field a column, by what the author wants to see.
constexpr int kSeenAlways = 0;
constexpr int kSeenInMaintenance = 2;
constexpr int kSeenWithComments = 3;

constexpr std::string_view kLineEndSign = "\u21B5";
constexpr std::string_view kHardSpaceSign = "\u2423";
constexpr std::string_view kCondActsField = "condacts";
constexpr std::string_view kVerbField = "w1";
constexpr std::string_view kNounField = "w2";
constexpr std::string_view kCutSign = "\u2026";
constexpr int kWidestColumn = 32767;
constexpr std::string_view kUsesTitle = "Uses";
/// The title of a column is no longer, in characters.
constexpr std::size_t kLongestTitle = 60;

/// What a Marlo adventure has no use for.
constexpr std::string_view kNotInMarlo[] = {"objweight", "objadject", "objattr"};

/// The number of the table says nothing where one table is in view.
bool IsSameInAll(const std::string& field, const TableView& view) {
    return view.table == TableNum::ProcessTables && view.process < kOtherProcesses &&
           text::EqualsNoCase(field, kProcessField);
}

bool IsHidden(const std::string& field, const store::Adventure& adventure) {
    if (adventure.Kind() != store::AdventureKind::Marlo) return false;
    return std::ranges::any_of(kNotInMarlo,
                               [&](std::string_view each) { return text::EqualsNoCase(each, field); });
}

std::string WhereTable(TableNum table) {
    return "tablenum=" + std::to_string(static_cast<int>(table));
}

text::Value Shown(const store::Cursor& records, std::size_t column) {
    const bool isTruth = store::ClassOf(records.Fields()[column].type) == store::FieldClass::Truth;
    if (!isTruth) return records.Field(column);
    return std::string(records.Number(column) != 0 ? "Yes" : "No");
}

/// The text with each line end and each hard space replaced.
std::string Replace(std::string_view text, std::string_view lineEnd, std::string_view hardSpace) {
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        const text::CodePoint point = text::DecodeAt(text, at);
        const std::string_view bytes = text.substr(at, point.size);
        at += point.size;
        if (bytes == text::kLineEndMarker || bytes == "\n") {
            shown += lineEnd;
        } else if (bytes == text::kHardSpace) {
            shown += hardSpace;
        } else if (point.value >= U' ') {
            shown += bytes;
        }
    }
    return shown;
}

bool LessValue(const text::Value& left, const text::Value& right) {
    const auto* const leftText = std::get_if<std::string>(&left);
    const auto* const rightText = std::get_if<std::string>(&right);
    if (leftText && rightText) return text::CompareNoCase(*leftText, *rightText) < 0;
    return left < right;
}

}  // namespace

void TableGrid::SetupGrid(store::Adventure& adventure, TableView view, bool maintenance, bool comments,
                          UseCounter uses) {
    TableGrid grid;
    grid.view_ = view;
    grid.uses_ = std::move(uses);
    grid.ReadColumns(adventure, maintenance, comments);
    grid.ReadRecords(adventure);
    *this = std::move(grid);
}

void TableGrid::Refresh(store::Adventure& adventure) {
    ReadRecords(adventure);
}

void TableGrid::Clear() {
    *this = TableGrid();
}

void TableGrid::ReadColumns(store::Adventure& adventure, bool maintenance, bool comments) {
    const store::TableSchema& schema = adventure.Schema(view_.table);
    std::vector<std::string> others;
    store::Cursor& rows =
        adventure.OpenTable(TableNum::TablesWalk, "fieldname,altname,see,search,expand,gridwidth",
                            WhereTable(view_.table), "tablekey");
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string field(rows.Text("fieldname"));
        const auto place = schema.Find(field);
        if (!place || IsHidden(field, adventure)) continue;
        const auto see = rows.Number("see");
        const bool shown = see == kSeenAlways && (maintenance || !IsSameInAll(field, view_));
        if (shown || (maintenance && see == kSeenInMaintenance) || (comments && see == kSeenWithComments)) {
            const std::string title = FieldTitle(view_.table, field, rows.Text("altname"));
            columns_.push_back({field, std::string(text::Left(title, kLongestTitle)),
                                static_cast<int>(rows.Number("gridwidth")), rows.Text("expand") == "Y",
                                store::IsNumber(schema.fields[*place].type)});
        } else if (rows.Text("search") == "Y" || text::EqualsNoCase(field, kProcessField) ||
                   text::EqualsNoCase(field, kHelpPageField)) {
            others.push_back(field);
        }
    }
    if (uses_ && !columns_.empty()) {
        // The last column takes the room that is left.
        usesField_ = columns_.size() - 1;
        columns_.insert(columns_.end() - 1, {.field = std::string(kUsesTitle),
                                             .title = std::string(kUsesTitle),
                                             .number = true,
                                             .uses = true});
    }
    for (const GridColumn& column : columns_)
        fields_.push_back(column.field);
    fields_.insert(fields_.end(), others.begin(), others.end());
}

void TableGrid::ReadRecords(store::Adventure& adventure) {
    const std::string key = store::KeyField(view_.table);
    const store::TableSchema& schema = adventure.Schema(view_.table);
    const bool countsRecords =
        store::ClassOf(schema.fields[schema.Find(key).value()].type) == store::FieldClass::Text;
    std::string list = key;
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        if (field != usesField_ && !text::EqualsNoCase(fields_[field], key)) list += "," + fields_[field];
    }
    const std::string filter = FilterOf(view_);
    store::Cursor& records = adventure.OpenTable(
        view_.table, list, filter.empty() ? std::nullopt : std::optional<std::string_view>(filter));
    std::vector<std::optional<std::size_t>> columns;
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        if (field == usesField_) {
            columns.emplace_back();
        } else {
            columns.emplace_back(records.Column(fields_[field]));
        }
    }

    keys_.clear();
    values_.clear();
    values_.reserve(static_cast<std::size_t>(records.RecordCount()) * fields_.size());
    for (; !records.Eof(); records.MoveNext()) {
        keys_.push_back(countsRecords ? static_cast<int>(keys_.size()) + 1
                                      : static_cast<int>(records.Number(std::size_t{0})));
        for (const auto& column : columns)
            values_.push_back(column ? Shown(records, *column) : text::Value());
    }
    CountUses();
    NoteGroups();
    Arrange();
}

void TableGrid::CountUses() {
    if (!usesField_) return;
    const std::vector<int> counts = uses_(view_.table, keys_);
    for (std::size_t record = 0; record < keys_.size(); ++record)
        values_[record * fields_.size() + *usesField_] = std::int64_t{counts.at(record)};
}

int TableGrid::KeyOf(int row) const {
    return keys_.at(RecordOf(row));
}

std::optional<int> TableGrid::RowOf(int key, int near) const {
    std::optional<int> found;
    for (int row = 0; row < RowCount(); ++row) {
        if (KeyOf(row) != key) continue;
        if (!found || std::abs(row - near) < std::abs(*found - near)) found = row;
    }
    return found;
}

std::optional<int> TableGrid::FirstChange(const TableGrid& before) const {
    std::multimap<int, std::size_t> known;  // the records before, by key
    for (std::size_t record = 0; record < before.keys_.size(); ++record)
        known.emplace(before.keys_[record], record);
    const auto sameValues = [&](std::size_t record, std::size_t earlier) {
        for (std::size_t field = 0; field < fields_.size(); ++field) {
            if (field != usesField_ && At(record, field) != before.At(earlier, field)) return false;
        }
        return true;
    };
    for (int row = 0; row < RowCount(); ++row) {
        const std::size_t record = RecordOf(row);
        const auto [first, last] = known.equal_range(keys_[record]);
        const auto same = std::find_if(
            first, last, [&](const auto& earlier) { return sameValues(record, earlier.second); });
        if (same == last) return row;
        known.erase(same);
    }
    if (known.empty() || order_.empty()) return std::nullopt;
    for (int row = 0; row < before.RowCount(); ++row) {
        if (known.contains(before.KeyOf(row))) return std::min(row, RowCount() - 1);
    }
    return std::nullopt;
}

std::string TableGrid::CellText(int row, int column) const {
    const text::Value& value = At(RecordOf(row), static_cast<std::size_t>(column));
    const auto* const text = std::get_if<std::string>(&value);
    if (!text) return text::ToText(value);
    const CondActHelp* const names = NamesFor(static_cast<std::size_t>(column));
    const std::string whole = names ? names->WithNames(*text) : *text;
    const std::string_view begin = text::Left(whole, kLongestCell);
    std::string shown = Replace(begin, kLineEndSign, kHardSpaceSign);
    if (begin.size() < whole.size()) shown += kCutSign;
    return shown;
}

std::string TableGrid::FullText(int row, int column) const {
    const std::string stored = text::ToText(At(RecordOf(row), static_cast<std::size_t>(column)));
    const CondActHelp* const names = NamesFor(static_cast<std::size_t>(column));
    const std::string text = names ? names->WithNames(stored) : stored;
    const std::string_view begin = text::Left(text, kLongestTip);
    std::string shown = Replace(begin, "\n", " ");
    if (begin.size() < text.size()) shown += kCutSign;
    return shown;
}

const text::Value& TableGrid::ValueOf(int row, std::string_view field) const {
    static const text::Value kNull;
    const auto place = FieldAt(field);
    return place ? At(RecordOf(row), *place) : kNull;
}

std::optional<std::size_t> TableGrid::FieldAt(std::string_view field) const {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (text::EqualsNoCase(fields_[i], field)) return i;
    }
    return std::nullopt;
}

void TableGrid::ShowNames(std::shared_ptr<const CondActHelp> names) {
    names_ = std::move(names);
    if (!filter_.empty()) Arrange();
}

std::vector<ExplainedCondAct> TableGrid::Explained(int row) const {
    if (!names_ || view_.table != TableNum::ProcessTables) return {};
    return names_->Explain(text::ToText(ValueOf(row, kCondActsField)));
}

void TableGrid::GroupBy(std::shared_ptr<const EntryGroups> groups) {
    if (!groups && !groups_) return;
    groups_ = std::move(groups);
    NoteGroups();
    Arrange();
}

void TableGrid::NoteGroups() {
    groupOf_.clear();
    if (!groups_ || view_.table != TableNum::ProcessTables) return;
    const auto text = [this](std::size_t record, std::string_view field) {
        const auto place = FieldAt(field);
        return place ? text::ToText(At(record, *place)) : std::string();
    };
    for (std::size_t record = 0; record < keys_.size(); ++record)
        groupOf_.push_back(
            groups_->Of(text(record, kVerbField), text(record, kNounField), text(record, kCondActsField)));
}

const CondActHelp* TableGrid::NamesFor(std::size_t column) const {
    if (!names_ || view_.table != TableNum::ProcessTables) return nullptr;
    return text::EqualsNoCase(columns_[column].field, kCondActsField) ? names_.get() : nullptr;
}

void TableGrid::SetFilter(std::string_view text) {
    if (text == filter_) return;
    filter_ = text;
    Arrange();
}

void TableGrid::ClickColumn(int column) {
    if (sortColumn_ != column) {
        sortColumn_ = column;
        sortsDown_ = false;
    } else if (!sortsDown_) {
        sortsDown_ = true;
    } else {
        sortColumn_.reset();
        sortsDown_ = false;
    }
    Arrange();
}

/// `wanted` is in lower case.
bool TableGrid::Contains(std::size_t record, std::string_view wanted) const {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const std::string stored = text::ToText(At(record, column));
        const CondActHelp* const names = NamesFor(column);
        if (column == usesField_) continue;
        if (text::LowerCase(names ? names->WithNames(stored) : stored).find(wanted) != std::string::npos)
            return true;
    }
    return false;
}

/// Which records are shown, and in what order.
void TableGrid::Arrange() {
    const std::string wanted = text::LowerCase(filter_);
    order_.clear();
    for (std::size_t record = 0; record < keys_.size(); ++record) {
        if (wanted.empty() || Contains(record, wanted)) order_.push_back(record);
    }
    if (sortColumn_) {
        const auto column = static_cast<std::size_t>(*sortColumn_);
        std::ranges::stable_sort(order_, [&](std::size_t left, std::size_t right) {
            return sortsDown_ ? LessValue(At(right, column), At(left, column))
                              : LessValue(At(left, column), At(right, column));
        });
    }
    LayLines();
}

/// Rows of a group stand together; in it they keep their order.
void TableGrid::LayLines() {
    std::vector<RowGroup> groups;
    if (!groupOf_.empty()) {
        std::ranges::stable_sort(
            order_, [&](std::size_t left, std::size_t right) { return groupOf_[left] < groupOf_[right]; });
    }
    for (int row = 0; !groupOf_.empty() && row < RowCount(); ++row) {
        const std::string& title = groupOf_[RecordOf(row)].title;
        if (groups.empty() || groups.back().title != title) groups.push_back({title, row, 0});
        ++groups.back().count;
    }
    lines_.Set(RowCount(), std::move(groups));
}

void TableGrid::SortBy(std::string_view field, bool down) {
    const auto place = FieldAt(field);
    sortColumn_.reset();
    if (place && *place < columns_.size()) sortColumn_ = static_cast<int>(*place);
    sortsDown_ = sortColumn_ && down;
    Arrange();
}

void TableGrid::ResizeColumn(store::Adventure& adventure, int column, int width) {
    GridColumn& resized = columns_.at(static_cast<std::size_t>(column));
    if (!resized.expand) return;
    const int kept = std::clamp(width, 0, kWidestColumn);
    store::Cursor& row =
        adventure.OpenTable(TableNum::TablesWalk, "tablekey,expand,gridwidth",
                            WhereTable(view_.table) + " and fieldname=" + store::QuoteText(resized.field));
    if (row.Eof() || row.Text("expand") != "Y") return;
    row.SetField("gridwidth", std::int64_t{kept});
    row.Update();
    resized.width = kept;
}

}  // namespace fabula::authoring
