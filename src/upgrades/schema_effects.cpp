#include "upgrades/schema_effects.h"

#include <algorithm>
#include <map>
#include <set>

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "platform/error.h"
#include "store/comments.h"
#include "store/file/file_forms.h"
#include "store/ifid.h"
#include "store/new_flag.h"
#include "store/schema/schema_change.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::upgrades {
namespace {

using store::Adventure;
using store::Cursor;
using store::Record;
using store::TableNum;

const store::Field& DeclaredField(Work& work, TableNum table, std::string_view name) {
    const store::TableSchema& schema = work.defaults.Schema(table);
    const auto field = schema.Find(name);
    if (!field)
        throw Error("The default data gives " + schema.name + " no field " + std::string(name) + ".");
    return schema.fields[*field];
}

/// The row of `Tables` that tells of a field, with the next free key.
void AddFieldRecord(Work& work, TableNum table, std::string_view name) {
    const Record* known = work.defaults.FieldRecord(table, name);
    if (!known) throw Error("The default data does not tell of the field " + std::string(name) + ".");
    Record record = *known;
    if (work.Has(TableNum::Tables, {"tablekey"})) {
        store::PreparedQuery highest =
            work.adventure.Prepare(TableNum::Tables, "tablekey", "tablekey>=0", "tablekey desc");
        record["tablekey"] = highest.First({}) ? highest.Number(0) + 1 : 0;
    }
    work.AddRecord(TableNum::Tables, record);
}

/// What a field holds that nobody has filled in yet.
text::Value InitialValue(const store::Field& field, std::string_view text) {
    switch (store::ClassOf(field.type)) {
        case store::FieldClass::Text:
            return std::string(text);
        case store::FieldClass::Binary:
            return text::Blob{};
        case store::FieldClass::Number:
        case store::FieldClass::Truth:
            return std::int64_t{0};
    }
    return {};
}

/// Adds one field, the row that tells of it, and its value in every record, unless that is null.
void AddField(Work& work, TableNum table, std::string_view name, std::optional<std::string_view> text) {
    const store::Field field = DeclaredField(work, table, name);
    store::SchemaChange(work.adventure).AddField(table, field);
    if (text) work.FillNulls(table, field.name, InitialValue(field, *text));
    AddFieldRecord(work, table, name);
    work.Forget();
}

/// Adds those fields of a step that the file has not yet; which they were.
std::map<TableNum, std::vector<std::string_view>> AddFields(Work& work, const Step& step,
                                                            std::optional<std::string_view> text) {
    std::map<TableNum, std::vector<std::string_view>> added;
    for (const store::LaterField& later : store::LaterFields()) {
        if (later.step != step.number || work.Has(later.table, {later.name})) continue;
        AddField(work, later.table, later.name, text);
        added[later.table].push_back(later.name);
    }
    return added;
}

/// Makes the tables of a step, without records.
std::vector<TableNum> MakeTables(Work& work, const Step& step) {
    std::vector<TableNum> made;
    for (const store::LaterTable& later : store::LaterTables()) {
        if (later.step != step.number || work.HasTable(later.table)) continue;
        const store::TableSchema& declared = work.defaults.Schema(later.table);
        store::TableSchema schema{declared.name, {}};
        for (const store::Field& field : declared.fields) {
            const store::LaterField* by = store::FindLaterField(later.table, field.name);
            if (later.whole || (by && by->step == step.number)) schema.fields.push_back(field);
        }
        store::SchemaChange(work.adventure).AddTable(later.table, schema);
        for (const store::Field& field : schema.fields)
            AddFieldRecord(work, later.table, field.name);
        made.push_back(later.table);
    }
    work.Forget();
    return made;
}

std::vector<Record> FirstRecords(Work& work, TableNum table) {
    if (table == TableNum::Templates) return work.defaults.Templates();
    if (!store::FindTable(table)->hasData) return {};
    std::vector<Record> records = work.defaults.Records(table);
    if (table == TableNum::Header && records.empty())
        records.push_back({{"hdrkey", std::string("Dummy record")}, {"hdrmess", std::string()}});
    return records;
}

/// Calls `use` with each entry that has conditions or actions and no numbers, and with the numbers that
/// they have.
template <typename Use>
void ForEachUncompiled(Work& work, Use use) {
    Cursor& entries = work.adventure.OpenTable(TableNum::ProcessTables, "condacts, numericcondacts",
                                               "numericcondacts='' and condacts<>''", std::string_view());
    if (entries.Eof()) return;
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(work.adventure);
    const condacts::WordIndex words = condacts::LoadWords(work.adventure);
    for (; !entries.Eof(); entries.MoveNext()) {
        const std::string line = condacts::LocationWordsToNumbers(entries.Text("condacts"), catalogue);
        const std::string numbers = condacts::CondActsToNumeric(line, catalogue, words).line;
        if (!numbers.empty()) use(entries, numbers);
    }
}

text::Value FontNumber(const store::Field& was, text::Value value) {
    if (!text::EqualsNoCase(was.name, "Font")) return value;
    return text::WholeNumber(text::ToText(value)).value_or(0);
}

}  // namespace

void AddBlankFields(Work& work, const Step& step) {
    AddFields(work, step, " ");
}

void AddEmptyFields(Work& work, const Step& step) {
    AddFields(work, step, "");
}

void AddFieldsOfNulls(Work& work, const Step& step) {
    AddFields(work, step, std::nullopt);
}

void AddKnownFields(Work& work, const Step& step) {
    for (const auto& [table, fields] : AddFields(work, step, " "))
        FillFromDefaults(work, table, fields);
}

void AddFieldSettings(Work& work, const Step& step) {
    for (const auto& [table, fields] : AddFields(work, step, "N"))
        FillFromDefaults(work, table, fields);
}

void AddFieldNames(Work& work, const Step& step) {
    for (const auto& [table, fields] : AddFields(work, step, ""))
        FillFromDefaults(work, table, fields);
}

void AddTables(Work& work, const Step& step) {
    for (const TableNum table : MakeTables(work, step)) {
        for (const Record& record : FirstRecords(work, table))
            work.AddRecord(table, record);
    }
}

void TakeTypes(Work& work, const Step& step) {
    Cursor& rows = work.adventure.OpenTable(
        TableNum::Tables, "fieldname, fieldtype, fieldsize",
        "tablenum=" + std::to_string(static_cast<int>(step.condition.table)), std::string_view());
    const store::TableSchema& declared = work.defaults.Schema(step.condition.table);
    for (; !rows.Eof(); rows.MoveNext()) {
        const auto field = declared.Find(rows.Text("fieldname"));
        const auto type = store::FieldTypeFromTag(rows.Text("fieldtype"));
        if (!field || !type) continue;
        const store::Field& now = declared.fields[*field];
        if (store::ClassOf(*type) != store::ClassOf(now.type)) continue;
        rows.SetField("fieldtype", std::string(store::TagOf(now.type)));
        rows.SetField("fieldsize", now.size);
        rows.Update();
    }
    store::SchemaChange(work.adventure).ReadFields();
}

bool LacksProcDescNode(Work& work) {
    return !Finds(work, TableNum::DataBases, "dbnum=15");
}

bool HasEntryWithoutNumbers(Work& work) {
    if (!work.Has(TableNum::ProcessTables, {"numericcondacts"})) return false;
    bool found = false;
    ForEachUncompiled(work, [&](Cursor&, const std::string&) { found = true; });
    return found;
}

bool LacksComment(Work& work) {
    return std::ranges::any_of(store::LaterFields(), [&](const store::LaterField& later) {
        return later.name == store::kCommentField && work.HasTable(later.table) &&
               !work.Has(later.table, {later.name});
    });
}

void CompileEntries(Work& work, const Step&) {
    ForEachUncompiled(work, [](Cursor& entries, const std::string& numbers) {
        entries.SetField("numericcondacts", numbers);
        entries.Update();
    });
}

void AddProcDesc(Work& work, const Step& step) {
    constexpr int kFirstOther = 3;
    constexpr std::string_view kTexts[kFirstOther] = {"THE PROCESS TABLE", "Done after a DESC",
                                                      "The computer does its thing."};
    MakeTables(work, step);
    std::set<std::int64_t> processes{0, 1, 2};
    for (Cursor& entries = work.adventure.OpenTable(TableNum::ProcessTables, "estype", "estype>2");
         !entries.Eof(); entries.MoveNext()) {
        processes.insert(entries.Number("estype"));
    }
    for (const std::int64_t process : processes) {
        const std::string text(process < kFirstOther ? kTexts[process] : " ");
        work.AddRecord(TableNum::ProcDesc, {{"pmsgnum", process}, {"pmsgmsg", text}});
    }
}

void RecreateTree(Work& work, const Step&) {
    const std::vector<Record>& nodes = work.defaults.Records(TableNum::DataBases);
    work.adventure.DeleteFrom(TableNum::DataBases);
    for (const Record& node : nodes)
        work.AddRecord(TableNum::DataBases, node);
}

void AddSearch(Work& work, const Step& step) {
    for (const store::Field& field : store::OldestTablesSchema().fields)
        AddFieldRecord(work, TableNum::Tables, field.name);
    AddFieldSettings(work, step);
}

void AddSystem(Work& work, const Step& step) {
    MakeTables(work, step);
    work.AddRecord(TableNum::System, {{"systemnum", std::int64_t{1}}, {"sysinidate", std::string(" ")}});
}

void AddTableKey(Work& work, const Step&) {
    const store::Field field = DeclaredField(work, TableNum::Tables, "TableKey");
    store::SchemaChange(work.adventure).AddField(TableNum::Tables, field);
    std::int64_t key = 0;
    for (Cursor& rows = work.adventure.OpenTable(TableNum::Tables, "tablekey", {}, std::string_view());
         !rows.Eof(); rows.MoveNext()) {
        rows.SetField("tablekey", ++key);
        rows.Update();
    }
    AddFieldRecord(work, TableNum::Tables, "TableKey");
}

void AddPictureTables(Work& work, const Step& step) {
    AddTables(work, step);
    work.reports.push_back(
        {Report::Kind::Notice, "Critical Changes",
         "Your Database is being updated to Version 4.\n"
         "This version has a Character Editor and Graphics Editor similar to the original VEL.\n"
         "It also has implemented more of the VEL character codes for ink & color, like Inverse & Paper.\n"
         "If you have imported this DataBase using UnMarlo or UnVels, redo the Decompile and Import to get "
         "the new functionality."});
}

void NumberFont(Work& work, const Step&) {
    const std::string name(work.adventure.OpenTable(TableNum::Adventure, "font").Text("font"));
    std::optional<std::int64_t> number = text::WholeNumber(text::TrimBlanks(name));
    if (!number) {
        const Cursor& codes = work.adventure.OpenTable(
            TableNum::Codes, "codenum",
            "fontname=" + store::QuoteText(text::TrimBlanks(name)) + " and fontname<>''");
        number = codes.Eof() ? NumberOf(work.defaults.Records(TableNum::Adventure).front(), "Font")
                             : codes.Number("codenum");
    }
    store::TableSchema schema = work.adventure.Schema(TableNum::Adventure);
    for (store::Field& field : schema.fields) {
        if (text::EqualsNoCase(field.name, "Font"))
            field = DeclaredField(work, TableNum::Adventure, "Font");
    }
    store::SchemaChange(work.adventure).Redefine(TableNum::Adventure, schema, FontNumber);
    work.FillField(TableNum::Adventure, "font", *number);
    Cursor& row = work.adventure.OpenTable(TableNum::Tables, "fieldtype, fieldsize",
                                           "tablenum=5 and fieldname='Font'");
    for (; !row.Eof(); row.MoveNext()) {
        row.SetField("fieldtype", std::string(store::TagOf(store::FieldType::Integer)));
        row.SetField("fieldsize", 0);
        row.Update();
    }
    work.fontTaken = true;
}

void AddType(Work& work, const Step& step) {
    AddFields(work, step, "Unknwn");
}

void AddCharSets(Work& work, const Step& step) {
    AddFields(work, step, "");
    if (!Finds(work, TableNum::Adventure, "adventype='Marlo'")) return;
    work.FillField(TableNum::Adventure, "charsets", std::int64_t{1});
}

void AddSource(Work& work, const Step& step) {
    AddFields(work, step, "Unknown");
}

void AddIfid(Work& work, const Step& step) {
    AddFields(work, step, "");
    work.FillField(TableNum::System, "ifid", store::MarkedIfid(work.newIfid()));
}

void AddFlgChg(Work& work, const Step& step) {
    AddFields(work, step, "");
    work.FillField(TableNum::Flags, "flgchg", std::int64_t{1});
    for (const Record& known : work.defaults.Records(TableNum::Flags)) {
        Cursor& flag = work.adventure.OpenTable(TableNum::Flags, "flgchg",
                                                store::SystemFlag(NumberOf(known, "flgnum")));
        if (flag.Eof() || NumberOf(known, "flgchg") != 0) continue;
        flag.SetField("flgchg", std::int64_t{0});
        flag.Update();
    }
}

}  // namespace fabula::upgrades
