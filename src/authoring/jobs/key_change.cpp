#include "authoring/jobs/key_change.h"

#include <algorithm>
#include <set>

#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::Cursor;
using store::TableNum;

constexpr std::string_view kExplanation =
    "The Table Key for Processes is CaNum, which is not shown on Process Table Views. However, CaNum is "
    "the "
    "number which determines in what order the W1, W2 entries are shown. Process duplicate key entries are "
    "looked up using the Process Table number (EsType), W1 and W2. You may then look at the bad key number "
    "shown on the Duplicate Key listing and determine whether the entry is in the wrong place or not. YOU "
    "WILL HAVE TO CHANGE ONE OF THE BAD KEYS OR IT WILL KEEP COMING UP AS AN ERROR!!";

constexpr std::string_view kInstruction =
    "If the Process Table entry for the duplicate key is at the correct place in the Process Table, give "
    "it "
    "a CaNum which will place it in the correct order, using the CaNum entries. You will be told if that "
    "CaNum is already used.";

constexpr int kTriesBeforeList = 3;
/// The most free numbers that are listed; far more than an author reads.
constexpr std::size_t kMostListed = 100000;

/// A table whose records are told by their text; nullptr for any other, which is not repaired.
const store::TableEntry* FindRepairable(std::string_view tableName) {
    const store::TableEntry* const table = store::FindTable(tableName);
    return table && !store::TextField(table->number).empty() ? table : nullptr;
}

std::string Equals(std::string_view field, std::int64_t number) {
    return std::string(field) + "=" + std::to_string(number);
}

}  // namespace

KeySelectScreen::KeySelectScreen(ScreenContext& context) : context_(context) {
    for (Cursor& rows = context_.document.Adventure().OpenTable(TableNum::TablesWalk, "tablename",
                                                                "allowkeychg='Y' and export=1", "tablenum");
         !rows.Eof(); rows.MoveNext()) {
        const std::string name(rows.Text("tablename"));
        if (FindRepairable(name)) tables_.push_back(name);
    }
}

bool KeySelectScreen::TakesWords() const {
    return text::EqualsNoCase(table, "processtables");
}

std::string_view KeySelectScreen::Explanation() const {
    return TakesWords() ? kExplanation : std::string_view();
}

std::optional<std::string> KeySelectScreen::Filter() const {
    const auto number = text::WholeNumber(text::Trimmed(TakesWords() ? process : key));
    if (!number) return std::nullopt;
    if (!TakesWords()) return Equals(FindRepairable(table)->key, *number);
    return Equals("estype", *number) + " and w1 = " + store::QuoteText(text::Trimmed(w1)) +
           " and w2 = " + store::QuoteText(text::Trimmed(w2));
}

std::optional<KeySelection> KeySelectScreen::Select() {
    const store::TableEntry* chosen = FindRepairable(table);
    if (!chosen) {
        Refuse(context_.dialogs, "Must make a Table Selection");
        return std::nullopt;
    }
    const std::string name =
        TakesWords() ? text::Trimmed(process) + " " + text::Trimmed(w1) + " " + text::Trimmed(w2)
                     : text::Trimmed(key);
    const auto filter = Filter();
    const bool found =
        filter && context_.document.Adventure().Prepare(chosen->number, chosen->key, *filter).First({});
    if (!found) {
        Refuse(context_.dialogs, "There are no records with " + name);
        return std::nullopt;
    }
    return KeySelection{chosen, *filter, name};
}

KeyChangeScreen::KeyChangeScreen(ScreenContext& context, const KeySelection& selection)
    : context_(context), table_(*selection.table), filter_(selection.filter) {
    for (Cursor& records = OpenRecords(); !records.Eof(); records.MoveNext()) {
        const std::int64_t key = records.Number(table_.key);
        rows_.push_back({std::to_string(key), std::string(records.Text(store::TextField(table_.number)))});
        records_.push_back({key, records.AbsolutePosition()});
    }
}

Cursor& KeyChangeScreen::OpenRecords() const {
    const std::string name(table_.name);
    return context_.document.Adventure().OpenTable(TableNum::Free23, "* from " + name, filter_, table_.key);
}

std::string_view KeyChangeScreen::Instruction() const {
    return table_.number == TableNum::ProcessTables ? kInstruction : std::string_view();
}

/// Whether any record of the table has the key; that of a process entry is compared over all processes.
bool KeyChangeScreen::IsUsed(std::int64_t key) const {
    return context_.document.Adventure()
        .Prepare(table_.number, table_.key, Equals(table_.key, key))
        .First({});
}

bool KeyChangeScreen::SetKey(std::size_t row, std::string_view key) {
    const std::string typed = text::Trimmed(key);
    const auto number = text::WholeNumber(typed);
    if (!number)
        return Refuse(context_.dialogs, "The value for " + std::string(table_.key) + " is not numeric");
    const bool isProcess = table_.number == TableNum::ProcessTables;
    if (isProcess && *number != records_[row].key && IsUsed(*number)) {
        Refuse(context_.dialogs, "The value " + typed + " is already used");
        if (++tries_ % kTriesBeforeList == 0) TellFreeKeys();
        return false;
    }
    rows_[row].key = typed;
    return true;
}

void KeyChangeScreen::TellFreeKeys() const {
    std::set<std::int64_t> used;
    for (Cursor& entries = context_.document.Adventure().OpenTable(TableNum::ProcessTablesWalk, "canum",
                                                                   "canum>=0", "canum desc");
         !entries.Eof(); entries.MoveNext()) {
        used.insert(entries.Number("canum"));
    }
    std::string list;
    std::size_t listed = 0;
    for (std::int64_t number = 0; !used.empty() && number < *used.rbegin() && listed < kMostListed;
         ++number) {
        if (used.contains(number)) continue;
        list += (list.empty() ? "" : ", ") + std::to_string(number);
        ++listed;
    }
    context_.dialogs.Report(
        "You have made 3 tries to find an unused CaNum.  Below are a list of UnUsed CaNums.\n"
        "Keep in mind that most duplicate keys are caused by the first key on a view being overwritten. A "
        "record's correct key should be low.\n" +
            list,
        "UnUsed CaNums");
}

bool KeyChangeScreen::CheckChanges(const std::vector<std::size_t>& changed) const {
    std::set<std::string> keys;
    for (const std::size_t row : changed) {
        const std::string& key = rows_[row].key;
        if (IsUsed(*text::WholeNumber(key)))
            return Refuse(context_.dialogs, "Already a record with a key of " + key);
        if (!keys.insert(key).second) return Refuse(context_.dialogs, "More than 1 record in key " + key);
    }
    return true;
}

/// A record's key can't be set in place: a new record takes all its fields, and the old one goes.
void KeyChangeScreen::Copy(const Record& record, std::int64_t key) const {
    Cursor& records = OpenRecords();
    records.SetAbsolutePosition(record.position);
    const std::string name(table_.name);
    Cursor& added = context_.document.Adventure().OpenTable(
        TableNum::Free24, "* from " + name, std::string(table_.key) + "<>" + std::string(table_.key));
    added.AddNew();
    for (const store::Field& field : records.Fields())
        added.SetField(field.name, records.Field(field.name));
    added.SetField(table_.key, key);
    added.Update();
    records.Delete();
}

bool KeyChangeScreen::Finish() {
    std::vector<std::size_t> changed;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (text::WholeNumber(rows_[row].key) != records_[row].key) changed.push_back(row);
    }
    if (changed.empty()) return true;
    if (!CheckChanges(changed)) return false;
    Change change(context_.document, "change key " + std::to_string(records_[changed.front()].key));
    // From the last on, so that the places of the others stay.
    for (auto row = changed.rbegin(); row != changed.rend(); ++row)
        Copy(records_[*row], *text::WholeNumber(rows_[*row].key));
    change.Commit();
    ReadNextKeys(context_);
    return true;
}

}  // namespace fabula::authoring
