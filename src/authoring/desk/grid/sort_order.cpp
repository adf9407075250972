#include "authoring/desk/grid/sort_order.h"

#include "store/query/selection.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::SortOrders;
using store::TableNum;

/// Where a table's order is kept: in the context, and in the settings record.
struct StoredIn {
    TableNum table;
    std::string SortOrders::*order;
    std::string_view field;
};

constexpr StoredIn kSortFields[] = {
    {TableNum::Objects, &SortOrders::objects, "sortobjects"},
    {TableNum::Vocabulary, &SortOrders::vocabulary, "sortvocabulary"},
    {TableNum::CondActs, &SortOrders::condacts, "sortcondacts"},
    {TableNum::Tables, &SortOrders::tables, "sorttables"},
    {TableNum::Commands, &SortOrders::commands, "sortcommands"},
};

const StoredIn* FieldFor(TableNum table) {
    for (const StoredIn& field : kSortFields) {
        if (field.table == table) return &field;
    }
    return nullptr;
}

}  // namespace

std::optional<std::string> StoredSort(const store::Adventure& adventure, TableNum table) {
    const StoredIn* const field = FieldFor(table);
    if (!field) return std::nullopt;
    return adventure.Sorts().*field->order;
}

std::string PlainSort(TableNum table) {
    const StoredIn* const field = FieldFor(table);
    return field ? SortOrders().*field->order : std::string();
}

std::string FaultOfSort(const store::Adventure& adventure, TableNum table, std::string_view order) {
    const store::TableSchema& schema = adventure.Schema(table);
    const std::string name = schema.name;
    if (text::StrEdit(order, "trim").empty()) return "An order names at least one field.";
    if (text::Length(order) > static_cast<std::size_t>(store::kDefaultTextSize))
        return "An order is at most " + std::to_string(store::kDefaultTextSize) + " characters long.";
    if (!store::IsOrderOf(schema, order))
        return "'" + std::string(order) + "' is no order of the fields of " + name + ".";
    return "";
}

void StoreSort(Document& document, TableNum table, std::string_view order) {
    const StoredIn* const field = FieldFor(table);
    store::Adventure& adventure = document.Adventure();
    if (!field || adventure.Sorts().*field->order == order) return;
    Change change(document, "sort " + adventure.Schema(table).name + " by " + std::string(order));
    store::Cursor& settings = adventure.OpenTable(TableNum::Adventure, field->field);
    if (settings.Eof()) return;
    settings.SetField(field->field, std::string(order));
    settings.Update();
    change.Commit();
    adventure.ReadSettings();
}

void ReadInPlainOrder(store::Adventure& adventure) {
    adventure.Sorts() = SortOrders();
    for (const StoredIn& field : kSortFields)
        adventure.OpenTable(field.table, "def");
}

}  // namespace fabula::authoring
