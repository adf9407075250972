#include "upgrades/catalogue_corrections.h"

#include <set>

#include "text/encoding/utf8.h"
#include "text/format.h"

namespace fabula::upgrades {
namespace {

using store::Cursor;
using store::Record;
using store::TableNum;

/// One number of a condition or action that has to be that of the default data.
struct CondActValue {
    std::string_view name;
    std::string_view field;
};

constexpr CondActValue kPuto{"PUTO", "caparam1"};
constexpr CondActValue kCharSet{"CHARSET", "camaxval1"};
constexpr CondActValue kPaper{"PAPER", "camaxval1"};

std::string Named(std::string_view name) {
    return "caname=" + store::QuoteText(name);
}

bool IsWrong(Work& work, const CondActValue& value) {
    if (!work.Has(TableNum::CondActs, {"caname", value.field})) return false;
    store::PreparedQuery row = work.adventure.Prepare(TableNum::CondActs, value.field, Named(value.name));
    return row.First({}) && row.Number(0) != NumberOf(work.defaults.CondAct(value.name), value.field);
}

void Correct(Work& work, const CondActValue& value) {
    Cursor& row = work.adventure.OpenTable(TableNum::CondActs, value.field, Named(value.name));
    row.SetField(value.field, NumberOf(work.defaults.CondAct(value.name), value.field));
    row.Update();
}

bool Lacks(Work& work, std::string_view condAct) {
    return !Finds(work, TableNum::CondActs, Named(condAct));
}

/// Adds those that the catalogue lacks, under the numbers of the default data.
void AddCondActs(Work& work, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        if (Lacks(work, name)) work.AddRecord(TableNum::CondActs, work.defaults.CondAct(name));
    }
}

void SetTableName(Work& work, std::string_view where, std::string_view name) {
    for (Cursor& rows = work.adventure.OpenTable(TableNum::Tables, "tablename", where); !rows.Eof();
         rows.MoveNext()) {
        rows.SetField("tablename", std::string(name));
        rows.Update();
    }
}

constexpr std::string_view kWrongPackage = "tablenum=14 and tablename='DataBases'";
constexpr std::string_view kWrongProcDesc = "tablenum=15 and tablename='Messages'";

/// The tables whose keys must be single, with the key of each.
struct KeyedTable {
    TableNum table;
    std::string_view key;
};

constexpr KeyedTable kKeyedTables[] = {
    {TableNum::Locations, "locnum"},       {TableNum::Messages, "msgnum"},
    {TableNum::Objects, "objnum"},         {TableNum::ProcessTables, "canum"},
    {TableNum::SystemMessages, "smsgnum"}, {TableNum::Flags, "flgnum"},
    {TableNum::ProcDesc, "pmsgnum"},       {TableNum::Characters, "charkey"},
    {TableNum::Pictures, "locnum"},
};

/// The keys that several records of a table have, each once.
std::vector<std::int64_t> DoubleKeys(Work& work, const KeyedTable& table) {
    std::vector<std::int64_t> keys;
    if (!work.Has(table.table, {table.key})) return keys;
    store::PreparedQuery rows = work.adventure.Prepare(table.table, table.key, "", table.key);
    std::int64_t before = 0;
    bool isFirst = true;
    for (bool found = rows.First({}); found; found = rows.Next()) {
        const std::int64_t key = rows.Number(0);
        const bool isDouble = !isFirst && key == before;
        if (isDouble && (keys.empty() || keys.back() != key)) keys.push_back(key);
        before = key;
        isFirst = false;
    }
    return keys;
}

/// The later of the entries with this key, as a line of the report.
std::string ProcessLine(Work& work, std::int64_t key) {
    const Cursor& entry =
        work.adventure.OpenTable(TableNum::ProcessTablesWalk, "canum, estype, w1, w2, condacts",
                                 "canum=" + std::to_string(key), "estype");
    std::string line = "Process : Key - " + std::to_string(key);
    work.adventure.Table(TableNum::ProcessTablesWalk).MoveLast();
    line += " " + std::to_string(entry.Number("estype"));
    for (const char* field : {"w1", "w2", "condacts"})
        line += " " + std::string(entry.Text(field));
    return line;
}

bool IsInKeyChange(Work& work, TableNum table) {
    return Finds(
        work, TableNum::Tables,
        "tablenum=" + std::to_string(static_cast<int>(table)) + " and allowkeychg='Y' and export=1");
}

}  // namespace

bool HasWrongPuto(Work& work) {
    return IsWrong(work, kPuto);
}

void CorrectPuto(Work& work, const Step&) {
    Correct(work, kPuto);
}

bool HasWrongCharSet(Work& work) {
    return IsWrong(work, kCharSet);
}

void CorrectCharSet(Work& work, const Step&) {
    Correct(work, kCharSet);
}

bool HasWrongPaper(Work& work) {
    return IsWrong(work, kPaper);
}

void CorrectPaper(Work& work, const Step&) {
    Correct(work, kPaper);
}

bool LacksFntSize(Work& work) {
    return Lacks(work, "FNTSIZE");
}

void AddFntSize(Work& work, const Step&) {
    AddCondActs(work, {"FNTSIZE"});
}

bool LacksBright(Work& work) {
    return Lacks(work, "BRIGHT");
}

void AddBright(Work& work, const Step&) {
    AddCondActs(work, {"BRIGHT"});
}

bool LacksOver(Work& work) {
    return Lacks(work, "OVER");
}

void AddOver(Work& work, const Step&) {
    AddCondActs(work, {"FLASH", "INVERSE", "OVER"});
}

bool LacksAutoInc(Work& work) {
    return Lacks(work, "AUTOINC");
}

void AddAutoInc(Work& work, const Step&) {
    AddCondActs(work, {"AGAIN", "OOPS", "AUTODEC", "AUTOINC"});
}

bool LacksMesF(Work& work) {
    return Lacks(work, "MESF");
}

void AddMesF(Work& work, const Step&) {
    AddCondActs(work, {"MESF", "MESSGF", "SYSMSGF"});
}

bool HasBold(Work& work) {
    return Finds(work, TableNum::CondActs, "caname='BOLD'");
}

void RemoveBold(Work& work, const Step&) {
    work.adventure.DeleteFrom(TableNum::CondActs, "canum>=284 and canum<=287");
    // One that stands elsewhere would bring this step again and again.
    work.adventure.DeleteFrom(TableNum::CondActs, "caname='BOLD'");
}

bool HasDoubleFields(Work& work) {
    std::set<std::pair<int, std::string>> seen;
    for (const Work::FieldRow& row : work.FieldRows()) {
        if (!seen.emplace(row.table, text::LowerCase(row.field)).second) return true;
    }
    return false;
}

void DropDoubleFields(Work& work, const Step&) {
    std::set<std::string> seen;
    for (Cursor& rows = work.adventure.OpenTable(TableNum::Tables, "tablenum, fieldname", {}, "tablekey");
         !rows.Eof(); rows.MoveNext()) {
        const std::string field =
            text::FormatText("%s2!%a", {rows.Number("tablenum"), text::LowerCase(rows.Text("fieldname"))});
        if (!seen.insert(field).second) rows.Delete();
    }
}

bool HasWrongPackageName(Work& work) {
    return Finds(work, TableNum::Tables, kWrongPackage);
}

void CorrectPackageName(Work& work, const Step&) {
    SetTableName(work, kWrongPackage, "Package");
}

bool HasWrongProcDescName(Work& work) {
    return Finds(work, TableNum::Tables, kWrongProcDesc);
}

void CorrectProcDescName(Work& work, const Step&) {
    SetTableName(work, kWrongProcDesc, "ProcDesc");
}

bool LacksCharactersNode(Work& work) {
    return !Finds(work, TableNum::DataBases, "dbname='Characters'");
}

void AddMissingNodes(Work& work, const Step&) {
    for (const Record& node : work.defaults.Records(TableNum::DataBases)) {
        const std::string same = "dbnum=" + std::to_string(NumberOf(node, "dbnum")) +
                                 " and dbtreesort=" + std::to_string(NumberOf(node, "dbtreesort"));
        if (!Finds(work, TableNum::DataBases, same)) work.AddRecord(TableNum::DataBases, node);
    }
}

bool LacksSpecialSizes(Work& work) {
    return work.Has(TableNum::Codes, {"codenum"}) && !Finds(work, TableNum::Codes, "codenum>127");
}

void AddSpecialSizes(Work& work, const Step&) {
    for (const Record& code : work.defaults.Records(TableNum::Codes)) {
        if (NumberOf(code, "codenum") > 127) work.AddRecord(TableNum::Codes, code);
    }
}

bool HasDoubleKeys(Work& work) {
    for (const KeyedTable& table : kKeyedTables) {
        if (!DoubleKeys(work, table).empty()) return true;
    }
    return false;
}

void ListDoubleKeys(Work& work, const Step&) {
    std::string text =
        "Below is a listing of table(s) with Duplicate keys\n"
        "They may be corrected by using the Menu item Tools > Key Change\n";
    bool unsupported = false;
    for (const KeyedTable& table : kKeyedTables) {
        const std::vector<std::int64_t> keys = DoubleKeys(work, table);
        for (const std::int64_t key : keys) {
            const std::string name(store::FindTable(table.table)->name);
            text += table.table == TableNum::ProcessTables ? ProcessLine(work, key)
                                                           : name + ": Key " + std::to_string(key);
            text += "\n";
        }
        if (!keys.empty() && !IsInKeyChange(work, table.table)) unsupported = true;
    }
    if (unsupported)
        text += "At least one of the tables shown above is not currently supported in Key Change.\n";
    text +=
        "YOU WILL HAVE TO CHANGE AT LEAST ONE OF THE DUPLICATE KEYS OR IT WILL KEEP COMING UP AS AN "
        "ERROR!!!";
    work.reports.push_back({Report::Kind::List, "Duplicate Key Errors", text});
}

}  // namespace fabula::upgrades
