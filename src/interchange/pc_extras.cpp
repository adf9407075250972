#include "interchange/pc_extras.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

#include "interchange/export_fields.h"
#include "interchange/source_file.h"
#include "platform/error.h"
#include "store/record_check.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

constexpr char kMark = '!';

/// A table with fields that the sections of a source have no place for.
struct ExtraTable {
    TableNum table;
    std::string_view keyField;             ///< "" for the settings
    std::string_view where;                ///< which records are written
    bool isOnlyForGraphics;                ///< written only when the game draws or has character sets
    bool mayBeAdded;                       ///< reading may add a record
    std::vector<std::string_view> fields;  ///< none: all that travel
};

/// Settings that the sources tell otherwise, that the import itself decides, or that only arrange the
/// tables of the authoring tool.
constexpr std::string_view kOtherwiseKnown[] = {
    "advname",    "savename",     "adventype",    "source",         "sortobjects",
    "sorttables", "sortcondacts", "sortcommands", "sortvocabulary", "graphicsadded"};

const std::vector<ExtraTable>& ExtraTables() {
    static const std::vector<ExtraTable> tables = {
        {TableNum::Adventure, "", "", false, false, {}},
        {TableNum::Locations, "locnum", "", false, false, {"locshortdesc", "picloc", "pickey"}},
        {TableNum::ProcDesc, "pmsgnum", "", false, false, {"pmsgmsg"}},
        {TableNum::Flags, "flgnum", "flgmod>0 and flgtype='User'", false, false, {"flguse", "flgdesc"}},
        {TableNum::Characters, "charkey", "", true, true, {}},
        {TableNum::Pictures, "locnum", "", false, true, {}},
    };
    return tables;
}

bool Holds(const std::vector<std::string_view>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(),
                       [name](std::string_view other) { return text::EqualsNoCase(other, name); });
}

/// The fields of a table that such lines may name.
std::vector<ExportField> FieldsOf(Adventure& adventure, const ExtraTable& table) {
    std::vector<ExportField> fields = ExportFields(adventure, static_cast<int>(table.table));
    const std::vector<std::string_view> known(std::begin(kOtherwiseKnown), std::end(kOtherwiseKnown));
    std::erase_if(fields, [&](const ExportField& field) {
        const bool travels = field.use == ExportUse::Plain || field.use == ExportUse::LongText;
        const bool isExtra =
            table.fields.empty() ? !Holds(known, field.name) : Holds(table.fields, field.name);
        return !travels || !isExtra;
    });
    return fields;
}

bool SaysNothing(std::string_view value) {
    return text::TrimBlanks(value).empty() || value == "Unknown";
}

/// The writing of the extras of one adventure.
class ExtrasWriter {
  public:
    ExtrasWriter(Adventure& adventure,
                 const std::function<void(const std::string&, const std::string&)>& writeLine)
        : adventure_(adventure), writeLine_(writeLine) {}

    void Write(const ExtraTable& table) {
        const std::vector<ExportField> fields = FieldsOf(adventure_, table);
        const store::TableSchema& schema = adventure_.Schema(table.table);
        Cursor& records = adventure_.OpenTable(table.table, "def", table.where);
        for (; !records.Eof(); records.MoveNext()) {
            std::string record(store::FindTable(table.table)->name);
            if (!table.keyField.empty()) record += " " + std::to_string(records.Number(table.keyField));
            for (const ExportField& field : fields) {
                const auto index = schema.Find(field.name);
                if (!index) continue;
                WriteField(record, field,
                           RenderExportValue(schema.fields[*index].type, records.Field(field.name)));
            }
        }
    }

    const std::map<std::string, int>& Counts() const { return counts_; }

  private:
    void WriteField(const std::string& record, const ExportField& field, const std::string& value) {
        if (SaysNothing(value)) return;
        const std::string line = text::NormalizeLineEnds(
            text::ReplaceAll(value, text::kLineEndMarker, kLineEndTag), kLineEndTag);
        writeLine_(record, std::string(1, kMark) + " " + record + " " + field.name + " " + line);
        ++counts_[record.substr(0, record.find(' ')) + ", " + field.name];
    }

    Adventure& adventure_;
    const std::function<void(const std::string&, const std::string&)>& writeLine_;
    std::map<std::string, int> counts_;  ///< by table and field
};

/// Takes a word and the blank behind it off the front.
std::string_view TakeWord(std::string_view& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

const ExtraTable* FindExtraTable(std::string_view name) {
    for (const ExtraTable& table : ExtraTables()) {
        if (text::EqualsNoCase(store::FindTable(table.table)->name, name)) return &table;
    }
    return nullptr;
}

/// The record of a line, ready to be edited; nullptr when there is none.
Cursor* OpenRecord(Adventure& adventure, const ExtraTable& table, std::optional<std::int64_t> key) {
    if (table.keyField.empty()) return &adventure.OpenTable(table.table, "def");
    if (!key || *key < 0) return nullptr;
    Cursor& record =
        adventure.OpenTable(table.table, "def", std::string(table.keyField) + "=" + std::to_string(*key));
    if (!record.Eof()) return &record;
    if (!table.mayBeAdded) return nullptr;
    record.AddNew();
    record.SetField(table.keyField, *key);
    return &record;
}

}  // namespace

bool IsExtra(std::string_view line, char comment) {
    return line.size() > 1 && line[0] == comment && line[1] == kMark;
}

void WriteExtras(Adventure& adventure, JobStatus& status,
                 const std::function<void(const std::string&, const std::string&)>& writeLine) {
    store::PreparedQuery settings = adventure.Prepare(TableNum::Adventure, "graphics, charsets", "");
    const bool draws = settings.First({}) && (settings.Number(0) != 0 || settings.Number(1) != 0);
    settings.Reset();
    ExtrasWriter writer(adventure, writeLine);
    for (const ExtraTable& table : ExtraTables()) {
        if (draws || !table.isOnlyForGraphics) writer.Write(table);
    }
    if (writer.Counts().empty()) return;
    status.AddToStatusCR(
        "The source form has no place for these; they stand in comments that only Fabula reads:");
    for (const auto& [what, count] : writer.Counts())
        status.AddToStatusCR("    " + what + (count > 1 ? ": " + std::to_string(count) : ""));
}

std::string ApplyExtra(Adventure& adventure, std::string_view line) {
    constexpr const char* kNotUnderstood = "ERROR: This line can't be understood.";
    line.remove_prefix(std::min(line.find_first_not_of("! "), line.size()));
    const ExtraTable* table = FindExtraTable(TakeWord(line));
    if (table == nullptr) return kNotUnderstood;
    std::optional<std::int64_t> key;
    if (!table->keyField.empty()) key = text::WholeNumber(TakeWord(line));
    const std::string_view name = TakeWord(line);
    for (const ExportField& field : FieldsOf(adventure, *table)) {
        if (!text::EqualsNoCase(field.name, name)) continue;
        const store::TableSchema& schema = adventure.Schema(table->table);
        const auto index = schema.Find(field.name);
        const auto value =
            index ? ParseExportValue(schema.fields[*index].type, field.use, line) : std::nullopt;
        if (!value) return "The value is not of the type of its field.";
        try {
            store::CheckValue(schema, schema.fields[*index], *value);
        } catch (const Error& error) {
            return error.what();
        }
        Cursor* record = OpenRecord(adventure, *table, key);
        if (record == nullptr) return "There is no such record.";
        record->SetField(field.name, *value);
        record->Update();
        return "";
    }
    return kNotUnderstood;
}

}  // namespace fabula::interchange
