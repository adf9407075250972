#include "upgrades/work.h"

#include <algorithm>
#include <map>

#include "text/encoding/utf8.h"

namespace fabula::upgrades {
namespace {

using store::Cursor;
using store::Record;
using store::TableNum;

constexpr unsigned kControls = 32;

struct KeyRow {
    TableNum table;
    std::vector<std::string_view> fields;
};

/// What tells the records of a table apart where the default data is compared with a file.
const std::vector<std::string_view>& KeysOf(TableNum table) {
    static const KeyRow kRows[] = {
        {TableNum::Adventure, {}},
        {TableNum::Tables, {"tablenum", "fieldname"}},
        {TableNum::DataBases, {"dbnum", "dbtreename"}},
        {TableNum::Flags, {"flgnum"}},
        {TableNum::CondActs, {"canum"}},
        {TableNum::Codes, {"codenum"}},
        {TableNum::Commands, {"conum"}},
    };
    for (const KeyRow& row : kRows) {
        if (row.table == table) return row.fields;
    }
    throw std::logic_error("a table has no records to compare");
}

/// A record's key as one text; names are compared without regard to case.
template <typename Source>
std::string KeyText(TableNum table, Source valueOf) {
    std::string key;
    for (const std::string_view field : KeysOf(table))
        key += text::LowerCase(text::ToText(valueOf(field))) + '\n';
    return key;
}

const std::vector<Record>& RecordsOf(Defaults& defaults, TableNum table, std::vector<Record>& own) {
    if (table != TableNum::Tables) return defaults.Records(table);
    for (const store::TableEntry& entry : store::AllTables()) {
        const auto& fields = defaults.FieldRecords(entry.number);
        own.insert(own.end(), fields.begin(), fields.end());
    }
    return own;
}

std::uint32_t ControlsOf(std::string_view text) {
    std::uint32_t controls = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        controls |= std::uint32_t{byte < kControls} << byte % kControls;
    }
    return controls;
}

bool Differs(const Cursor& cursor, std::string_view field, const text::Value& value) {
    return cursor.Field(field) != value;
}

}  // namespace

const std::vector<Work::FieldRow>& Work::FieldRows() {
    if (fieldRows_) return *fieldRows_;
    fieldRows_.emplace();
    store::PreparedQuery rows = adventure.Prepare(
        TableNum::Tables, "tablenum, fieldname, fieldtype, fieldsize", "", std::string_view());
    for (bool found = rows.First({}); found; found = rows.Next()) {
        fieldRows_->push_back({static_cast<int>(rows.Number(0)), std::string(rows.Text(1)),
                               std::string(rows.Text(2)), static_cast<int>(rows.Number(3))});
    }
    return *fieldRows_;
}

void Work::Forget() {
    fieldRows_.reset();
    controls_.clear();
}

std::uint32_t Work::ControlsIn(TableNum table, std::string_view field) {
    const auto [known, isNew] = controls_.try_emplace({table, std::string(field)}, 0);
    if (!isNew || !Has(table, {field})) return known->second;
    store::PreparedQuery texts = adventure.Prepare(table, field, "", std::string_view());
    for (bool found = texts.First({}); found; found = texts.Next())
        known->second |= ControlsOf(texts.Text(0));
    return known->second;
}

bool Work::Has(TableNum table, std::initializer_list<std::string_view> fields) const {
    const store::TableSchema& schema = adventure.Schema(table);
    return std::ranges::all_of(fields,
                               [&](std::string_view field) { return schema.Find(field).has_value(); });
}

void Work::AddRecord(TableNum table, const Record& record) {
    const store::TableSchema& schema = adventure.Schema(table);
    const std::string& field = schema.fields.front().name;
    Cursor& records = adventure.OpenTable(TableNum::Free25, "* from " + schema.name, field + "<>" + field);
    records.AddNew();
    for (const auto& [name, value] : record) {
        if (schema.Find(name)) records.SetField(name, value);
    }
    records.Update();
}

void Work::FillField(TableNum table, std::string_view field, const text::Value& value) {
    for (Cursor& records = adventure.OpenTable(table, field, {}, std::string_view()); !records.Eof();
         records.MoveNext()) {
        records.SetField(field, value);
        records.Update();
    }
}

void Work::FillNulls(TableNum table, std::string_view field, const text::Value& value) {
    for (Cursor& records = adventure.OpenTable(table, field, {}, std::string_view()); !records.Eof();
         records.MoveNext()) {
        if (!records.IsNull(field)) continue;
        records.SetField(field, value);
        records.Update();
    }
}

void FillFromDefaults(Work& work, TableNum table, const std::vector<std::string_view>& fields) {
    std::vector<Record> own;
    std::map<std::string, const Record*> defaults;
    for (const Record& record : RecordsOf(work.defaults, table, own)) {
        const auto valueOf = [&](std::string_view field) {
            const text::Value* value = FindValue(record, field);
            return value ? *value : text::Value();
        };
        defaults.try_emplace(KeyText(table, valueOf), &record);
    }
    for (Cursor& records = work.adventure.OpenTable(table, "*", {}, std::string_view()); !records.Eof();
         records.MoveNext()) {
        const auto known =
            defaults.find(KeyText(table, [&](std::string_view field) { return records.Field(field); }));
        if (known == defaults.end()) continue;
        for (const std::string_view field : fields) {
            const text::Value* value = FindValue(*known->second, field);
            if (value && work.Has(table, {field}) && Differs(records, field, *value))
                records.SetField(field, *value);
        }
        records.Update();
    }
}

bool Finds(Work& work, TableNum table, std::string_view filter) {
    try {
        if (!work.HasTable(table)) return false;
        const std::string& anyField = work.adventure.Schema(table).fields.front().name;
        return work.adventure.Prepare(table, anyField, filter, std::string_view()).First({});
    } catch (const store::FilterError&) {
        return false;
    }
}

}  // namespace fabula::upgrades
