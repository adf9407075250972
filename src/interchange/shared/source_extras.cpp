#include "interchange/shared/source_extras.h"

#include <algorithm>
#include <map>
#include <utility>

#include "interchange/shared/export_fields.h"
#include "interchange/shared/job_status.h"
#include "interchange/shared/source_file.h"
#include "platform/error.h"
#include "store/comments.h"
#include "store/filter/filter.h"
#include "store/new_flag.h"
#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

constexpr char kMark = '!';
/// What a line of a comment begins with in front of an entry.
constexpr std::string_view kCommentMark = "! comment ";

/// A table with fields that the sections of a source have no place for.
struct ExtraTable {
    TableNum table;
    std::string_view keyField;             ///< "" for the settings
    std::string where;                     ///< which records are written
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
        {TableNum::Flags, "flgnum", store::OfEditableUserFlags(), false, false, {"flguse", "flgdesc"}},
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
    return text::TrimBlanks(value).empty() || value == store::kUnknownFlagUse;
}

/// The tables whose records may have a comment, by the field that numbers them.
constexpr std::pair<TableNum, std::string_view> kCommented[] = {
    {TableNum::Vocabulary, "vocindex"}, {TableNum::SystemMessages, "smsgnum"},
    {TableNum::Messages, "msgnum"},     {TableNum::Objects, "objnum"},
    {TableNum::Locations, "locnum"},    {TableNum::ProcDesc, "pmsgnum"},
    {TableNum::ProcessTables, "canum"}, {TableNum::Flags, "flgnum"},
    {TableNum::Characters, "charkey"},  {TableNum::Pictures, "locnum"},
};

/// What names a word in any game that has it.
std::string WordKey(const Cursor& word, std::size_t letters) {
    return std::string(text::Left(word.Text("word"), letters)) + "/" +
           std::to_string(word.Number("voctypen"));
}

/// The writing of the extras of one adventure.
class ExtrasWriter {
  public:
    ExtrasWriter(Adventure& adventure, std::size_t letters, const WriteExtraLine& writeLine)
        : adventure_(adventure), letters_(letters), writeLine_(writeLine) {
        store::PreparedQuery settings = adventure.Prepare(TableNum::Adventure, "graphics, charsets", "");
        draws_ = settings.First({}) && (settings.Number(0) != 0 || settings.Number(1) != 0);
    }

    void Write(const ExtraTable& table) {
        if (table.isOnlyForGraphics && !draws_) return;
        const std::vector<ExportField> fields = FieldsOf(adventure_, table);
        const store::TableSchema& schema = adventure_.Schema(table.table);
        Cursor& records = adventure_.OpenTable(table.table, "def", table.where);
        for (; !records.Eof(); records.MoveNext()) {
            std::string record(store::FindTable(table.table)->name);
            if (!table.keyField.empty()) record += " " + std::to_string(records.Number(table.keyField));
            for (const ExportField& field : fields) {
                const auto index = schema.Find(field.name);
                if (!index) continue;
                WriteField(record, field.name,
                           RenderExportValue(schema.fields[*index].type, records.Field(field.name)));
            }
        }
    }

    void WriteCommentsOf(TableNum table, std::string_view keyField) {
        const bool isForGraphics = table == TableNum::Characters || table == TableNum::Pictures;
        if (isForGraphics && !draws_) return;
        Cursor& records = adventure_.OpenTable(table, "def", std::nullopt, keyField);
        for (; !records.Eof(); records.MoveNext()) {
            const std::string key = table == TableNum::Vocabulary
                                        ? WordKey(records, letters_)
                                        : std::to_string(records.Number(keyField));
            WriteComment(table, key, records.Text(store::kCommentField));
        }
    }

    void WriteComment(TableNum table, const std::string& key, std::string_view comment) {
        if (comment.empty()) return;
        Put(std::string(store::FindTable(table)->name) + " " + key, std::string(store::kCommentField),
            comment);
    }

    const std::map<std::string, int>& Counts() const { return counts_; }

  private:
    void WriteField(const std::string& record, const std::string& field, const std::string& value) {
        if (!SaysNothing(value)) Put(record, field, value);
    }

    void Put(const std::string& record, const std::string& field, std::string_view value) {
        const std::string line = text::NormalizeLineEnds(
            text::ReplaceAll(value, text::kLineEndMarker, kLineEndTag), kLineEndTag);
        writeLine_(record, std::string(1, kMark) + " " + record + " " + field + " " + line);
        ++counts_[record.substr(0, record.find(' ')) + ", " + field];
    }

    Adventure& adventure_;
    std::size_t letters_;
    const WriteExtraLine& writeLine_;
    bool draws_ = false;
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

/// The word of a key "LAMP/2".
Cursor* OpenWord(Adventure& adventure, std::string_view key) {
    const std::size_t slash = key.rfind('/');
    const auto type =
        slash == std::string_view::npos ? std::nullopt : text::WholeNumber(key.substr(slash + 1));
    if (!type) return nullptr;
    Cursor& word = adventure.OpenTable(
        TableNum::Vocabulary, "def",
        "word=" + store::QuoteText(key.substr(0, slash)) + " and voctypen=" + std::to_string(*type));
    return word.Eof() ? nullptr : &word;
}

/// The record of a line, ready to be edited; nullptr when there is none.
Cursor* OpenRecord(Adventure& adventure, TableNum table, std::string_view keyField, std::string_view key,
                   bool mayBeAdded) {
    if (keyField.empty()) return &adventure.OpenTable(table, "def");
    if (table == TableNum::Vocabulary) return OpenWord(adventure, key);
    const auto number = text::WholeNumber(key);
    if (!number || *number < 0) return nullptr;
    Cursor& record =
        adventure.OpenTable(table, "def", std::string(keyField) + "=" + std::to_string(*number));
    if (!record.Eof()) return &record;
    if (!mayBeAdded) return nullptr;
    record.AddNew();
    record.SetField(keyField, *number);
    return &record;
}

/// Puts a value into a record; what is wrong with it, or "".
std::string Apply(Adventure& adventure, TableNum table, const ExportField& field, std::string_view text,
                  const std::function<Cursor*()>& open) {
    const store::TableSchema& schema = adventure.Schema(table);
    const auto index = schema.Find(field.name);
    const auto value = index ? ParseExportValue(schema.fields[*index].type, field.use, text) : std::nullopt;
    if (!value) return kWrongTypeOfField;
    try {
        store::CheckValue(schema, schema.fields[*index], *value);
    } catch (const Error& error) {
        return error.what();
    }
    Cursor* record = open();
    if (record == nullptr) return "There is no such record.";
    record->SetField(field.name, *value);
    record->Update();
    return "";
}

/// The same for a comment, whose line may name any table with comments.
std::string ApplyComment(Adventure& adventure, TableNum table, std::string_view keyField,
                         std::string_view key, std::string_view comment) {
    const ExportField field{std::string(store::kCommentField), "", ExportUse::Comment};
    return Apply(adventure, table, field, comment,
                 [&] { return OpenRecord(adventure, table, keyField, key, false); });
}

}  // namespace

bool IsExtra(std::string_view line, char comment) {
    return line.size() > 1 && line[0] == comment && line[1] == kMark;
}

void WriteExtras(Adventure& adventure, std::size_t letters, JobStatus& status,
                 const WriteExtraLine& writeLine) {
    ExtrasWriter writer(adventure, letters, writeLine);
    for (const ExtraTable& table : ExtraTables())
        writer.Write(table);
    for (const auto& [table, keyField] : kCommented) {
        if (table != TableNum::ProcessTables) writer.WriteCommentsOf(table, keyField);
    }
    if (writer.Counts().empty()) return;
    status.AddToStatusCR(
        "The source form has no place for these; they stand in comments that only Fabula reads:");
    for (const auto& [what, count] : writer.Counts())
        status.AddToStatusCR("    " + what + (count > 1 ? ": " + std::to_string(count) : ""));
}

void WriteComments(Adventure& adventure, std::size_t letters,
                   const std::function<bool(std::int64_t)>& isWritten, const WriteExtraLine& writeLine) {
    ExtrasWriter writer(adventure, letters, writeLine);
    for (const auto& [table, keyField] : kCommented) {
        if (table != TableNum::ProcessTables) writer.WriteCommentsOf(table, keyField);
    }
    std::int64_t number = -1;
    Cursor& entries = adventure.OpenTable(TableNum::ProcessTables, "def", std::nullopt, "estype, canum");
    for (; !entries.Eof(); entries.MoveNext()) {
        if (!isWritten(entries.Number("canum"))) continue;
        writer.WriteComment(TableNum::ProcessTables, std::to_string(++number),
                            entries.Text(store::kCommentField));
    }
}

std::vector<std::string> CommentLines(std::string_view comment) {
    std::vector<std::string> lines;
    if (comment.empty()) return lines;
    const std::string normal = text::NormalizeLineEnds(comment, text::kLineEndMarker);
    for (const std::string_view line : text::Split(normal, text::kLineEndMarker))
        lines.push_back(std::string(kCommentMark).append(line));
    return lines;
}

std::optional<std::string_view> LineOfComment(std::string_view line) {
    // A blank at the end may have been lost on the way.
    if (line == text::TrimBlanks(kCommentMark)) return std::string_view();
    if (!line.starts_with(kCommentMark)) return std::nullopt;
    return line.substr(kCommentMark.size());
}

std::string ApplyExtra(Adventure& adventure, std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of("! "), line.size()));
    const std::string_view tableName = TakeWord(line);
    const ExtraTable* table = FindExtraTable(tableName);
    const bool hasKey = table == nullptr || !table->keyField.empty();
    const std::string_view key = hasKey ? TakeWord(line) : std::string_view();
    const std::string_view name = TakeWord(line);
    if (text::EqualsNoCase(name, store::kCommentField)) {
        for (const auto& [commented, keyField] : kCommented) {
            if (text::EqualsNoCase(store::FindTable(commented)->name, tableName))
                return ApplyComment(adventure, commented, keyField, key, line);
        }
    }
    if (table == nullptr) return kBadLine;
    for (const ExportField& field : FieldsOf(adventure, *table)) {
        if (!text::EqualsNoCase(field.name, name)) continue;
        return Apply(adventure, table->table, field, line, [&] {
            return OpenRecord(adventure, table->table, table->keyField, key, table->mayBeAdded);
        });
    }
    return kBadLine;
}

}  // namespace fabula::interchange
