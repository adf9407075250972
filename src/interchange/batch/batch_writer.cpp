#include "interchange/batch/batch_writer.h"

#include "platform/error.h"
#include "store/record_limits.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

void AddLine(std::string& file, std::string_view line) {
    file.append(line).append("\n");
}

void FbbExportRecord(const Cursor& record, const std::vector<BatchField>& fields, std::string& file) {
    for (const BatchField& field : fields) {
        const text::Value stored = record.Field(field.field);
        if (!IsWritten(field, stored)) continue;
        const std::string value = BatchValue(field, stored);
        file.append(field.name).append("=");
        if (field.form == BatchForm::Line) {
            AddLine(file, value);
            continue;
        }
        AddLine(file, "");
        if (!value.empty()) {
            for (const std::string_view line : text::Split(value, "\n"))
                AddLine(file, EscapeBatchLine(line, field.form));
        }
        AddLine(file, EndMarkerOf(field.form));
    }
    AddLine(file, kBatchRecordEnd);
}

/// One pass over a table: a section.
void AddSection(store::Adventure& adventure, const BatchTable& table, const std::string& filter,
                const BatchSelection& selection, std::string& file) {
    const std::vector<BatchField> fields = BatchFields(adventure, table.number);
    Cursor& records = filter.empty() ? adventure.OpenTable(table.number, "def")
                                     : adventure.OpenTable(table.number, "def", std::string_view(filter));
    const std::string_view key = store::FindTable(table.number)->key;
    AddLine(file, table.marker);
    for (; !records.Eof(); records.MoveNext()) {
        if (selection.keys && !selection.keys->contains(static_cast<int>(records.Number(key)))) continue;
        FbbExportRecord(records, fields, file);
    }
    AddLine(file, kBatchSectionEnd);
}

std::vector<int> ProcessesWithEntries(store::Adventure& adventure,
                                      const std::optional<std::set<int>>& keys) {
    std::set<int> found;
    store::PreparedQuery rows = adventure.Prepare(TableNum::ProcessTables, "estype, canum", "");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        if (!keys || keys->contains(static_cast<int>(rows.Number(1))))
            found.insert(static_cast<int>(rows.Number(0)));
    }
    return {found.begin(), found.end()};
}

std::optional<int> ProcessNumber(std::string_view typed) {
    const auto number = text::WholeNumber(text::TrimBlanks(typed));
    if (!number || *number < 0 || *number > store::kHighestRecord) return std::nullopt;
    return static_cast<int>(*number);
}

void AddProcesses(store::Adventure& adventure, const BatchTable& table, const BatchSelection& selection,
                  std::string& file) {
    const auto listed = ParseProcessList(adventure, selection.processes);
    if (!listed) throw Error("The list of processes is no list of numbers: " + selection.processes + ".");
    const std::vector<int> processes =
        selection.keys ? ProcessesWithEntries(adventure, selection.keys) : *listed;
    for (const int process : processes)
        AddSection(adventure, table, "estype=" + std::to_string(process), selection, file);
}

}  // namespace

std::optional<std::vector<int>> ParseProcessList(store::Adventure& adventure, std::string_view list) {
    if (text::EqualsNoCase(text::TrimBlanks(list), "ALL"))
        return ProcessesWithEntries(adventure, std::nullopt);
    std::vector<int> processes;
    std::set<int> taken;
    for (const std::string_view piece : text::Split(list, ",")) {
        const std::size_t dash = piece.find('-');
        const auto first = ProcessNumber(piece.substr(0, dash));
        const auto last = dash == std::string_view::npos ? first : ProcessNumber(piece.substr(dash + 1));
        if (!first || !last || *last < *first) return std::nullopt;
        for (int process = *first; process <= *last; ++process) {
            if (taken.insert(process).second) processes.push_back(process);
        }
    }
    return processes;
}

std::string ExportTable(store::Adventure& adventure, const BatchSelection& selection) {
    if (selection.table && FindBatchTable(*selection.table) == nullptr) {
        const store::TableEntry* entry = store::FindTable(*selection.table);
        throw Error("The table " + std::string(entry ? entry->name : "") +
                    " does not go into batch files.");
    }
    std::string file;
    for (const BatchTable& table : BatchTables()) {
        if (selection.table && *selection.table != table.number) continue;
        if (table.number == TableNum::ProcessTables) {
            AddProcesses(adventure, table, selection, file);
        } else {
            AddSection(adventure, table, table.filter ? table.filter() : std::string(), selection, file);
        }
    }
    return file;
}

}  // namespace fabula::interchange
