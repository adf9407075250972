#include "interchange/fabula_reader.h"

#include <array>
#include <charconv>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "condacts/load.h"
#include "interchange/companion_texts.h"
#include "interchange/export_fields.h"
#include "interchange/keyed_table.h"
#include "interchange/source_file.h"
#include "platform/error.h"
#include "store/record_check.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::FieldType;
using store::TableNum;

constexpr int kAdventureTable = static_cast<int>(TableNum::Adventure);

/// The three pieces of a field line. A piece that is missing is the delimiter.
struct FieldLine {
    std::optional<std::int64_t> table;
    std::string_view field;
    std::string_view value;
};

FieldLine SplitFieldLine(std::string_view line) {
    auto takePiece = [&line, beyond = false]() mutable {
        if (beyond) return kPieceDelimiter;
        const std::size_t end = line.find(kPieceDelimiter);
        const std::string_view piece = line.substr(0, end);
        beyond = end == std::string_view::npos;
        line.remove_prefix(beyond ? line.size() : end + kPieceDelimiter.size());
        return piece;
    };
    FieldLine fieldLine;
    fieldLine.table = text::WholeNumber(takePiece());
    fieldLine.field = takePiece();
    fieldLine.value = takePiece();
    return fieldLine;
}

const ExportTable* FindExportTable(std::int64_t number) {
    for (const ExportTable& table : kExportTables) {
        if (static_cast<std::int64_t>(table.number) == number) return &table;
    }
    return nullptr;
}

std::optional<text::Value> ParseTruth(std::string_view text) {
    if (text::EqualsNoCase(text, "true") || text == "1" || text == "-1") return std::int64_t{1};
    if (text::EqualsNoCase(text, "false") || text == "0") return std::int64_t{0};
    return std::nullopt;
}

std::optional<text::Value> ParseDouble(std::string_view text) {
    double number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return number;
}

/// "yyyy-mm-dd hh:mm:ss"
std::optional<text::Value> ParseDate(std::string_view text) {
    constexpr std::string_view kForm = "0000-00-00 00:00:00";
    if (text.size() != kForm.size()) return std::nullopt;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        if (kForm[i] == '0' ? !digit : text[i] != kForm[i]) return std::nullopt;
    }
    return std::string(text);
}

/// The value of a field's text; nothing when it is not of the type. An empty text is null where it can't be
/// a text.
std::optional<text::Value> ParseValue(FieldType type, ExportUse use, std::string_view text) {
    if (type == FieldType::VarWChar || type == FieldType::LongVarWChar) {
        if (use != ExportUse::LongText) return std::string(text);
        return text::ReplaceAll(text, kLineEndTag, text::kLineEndMarker);
    }
    if (text.empty()) return text::Value();
    if (type == FieldType::Boolean) return ParseTruth(text);
    if (type == FieldType::Double) return ParseDouble(text);
    if (type == FieldType::Date) return ParseDate(text);
    if (type == FieldType::LongVarBinary) return std::nullopt;
    const auto number = text::WholeNumber(text);
    return number ? std::optional<text::Value>(*number) : std::nullopt;
}

/// A table that lines of the file speak of: its fields that travel, and its records.
class TableImport {
  public:
    TableImport(store::Adventure& adventure, int number) {
        const auto table = static_cast<TableNum>(number);
        if (store::FindTable(table) == nullptr) return;
        schema_ = &adventure.Schema(table);
        std::string key;
        for (ExportField& field : ExportFields(adventure, number)) {
            const auto index = schema_->Find(field.name);
            if (!index) continue;
            if (field.use == ExportUse::Key) key = field.name;
            const std::string name = text::LowerCase(field.name);
            fields_.try_emplace(name, Column{std::move(field), *index});
        }
        if (FindExportTable(number) == nullptr || key.empty()) return;
        if (number == kAdventureTable) {
            record_ = &adventure.OpenTable(table, "def");
        } else {
            keyed_ = std::make_unique<KeyedTable>(adventure, table, key);
            record_ = &keyed_->Record();
        }
    }

    struct Column {
        ExportField field;
        std::size_t index = 0;  ///< in the schema
    };

    bool IsIgnored() const { return record_ == nullptr; }
    const Column* FindColumn(std::string_view name) const {
        const auto found = fields_.find(text::LowerCase(name));
        return found == fields_.end() ? nullptr : &found->second;
    }
    const store::TableSchema& Schema() const { return *schema_; }

    /// The settings are one record, whatever the file calls it.
    void Open(std::int64_t key) {
        if (keyed_) keyed_->GoToOrAdd(key);
    }

    void Set(const Column& column, text::Value value) {
        record_->SetField(column.field.name, std::move(value));
        if (column.field.use == ExportUse::Numeric) numericSet_.push_back(&column);
    }

    void Store() {
        if (keyed_) {
            keyed_->Update();
        } else {
            record_->Update();
        }
        if (!numericSet_.empty())
            toComplete_.emplace_back(record_->AbsolutePosition(), std::move(numericSet_));
        numericSet_.clear();
    }

    /// Makes the companion texts of what was stored.
    void Complete(const CompanionTexts& texts, JobStatus& status) {
        for (const auto& [position, numericFields] : toComplete_) {
            record_->SetAbsolutePosition(position);
            for (const Column* column : numericFields)
                texts.Make(*record_, column->field.name);
            record_->Update();
            status.IncBar(0);
        }
    }

  private:
    const store::TableSchema* schema_ = nullptr;
    std::map<std::string, Column> fields_;  ///< by name in lower case
    std::unique_ptr<KeyedTable> keyed_;
    Cursor* record_ = nullptr;
    std::vector<const Column*> numericSet_;                               ///< of the pending record
    std::vector<std::pair<int, std::vector<const Column*>>> toComplete_;  ///< places in the cursor
};

/// The reading of one file.
class Reader {
  public:
    explicit Reader(ImportContext& context) : context_(context), source_(context.source) {}

    bool Read() {
        const bool isOurs =
            source_.Next(line_) && line_ == ExportVersion(context_.adventure) && source_.Next(line_);
        if (!isOurs) {
            context_.status.AddToStatusCR("File is not a Fabula Export file or Version  is incompatible.");
            return false;
        }
        context_.status.StartBar(source_.Size());
        do {
            context_.status.SetBar(source_.BytesRead());
            if (!line_.empty() && !TakeLine()) return false;
        } while (source_.Next(line_));
        Store();
        CompleteTexts();
        context_.status.AddToStatusCR(FindExportTable(static_cast<int>(TableNum::Pictures))->loaded);
        return true;
    }

  private:
    bool TakeLine() {
        const FieldLine line = SplitFieldLine(line_);
        if (!line.table || *line.table < 0 || *line.table > store::kHighestTable) {
            return Refuse("The line does not begin with the number of a table.");
        }
        if (*line.table != lastTable_) ChangeTable(static_cast<int>(*line.table));
        TableImport& table = TableOf(static_cast<int>(*line.table));
        if (table.IsIgnored()) return IgnoreLine(table, line.field);
        const TableImport::Column* column = table.FindColumn(line.field);
        if (column == nullptr) return Refuse("The table has no field of this name that travels.");
        if (column->field.use == ExportUse::Numeric && !CompanionTexts::Knows(column->field.name)) {
            context_.person.Tell(
                "Send a message to the makers of Fabula RIGHT AWAY and let him know that he forgot to "
                "program " +
                    column->field.name + " into the Import exceptions for Fabula.",
                "Error");
            return Refuse("The field needs a text that this program can't make.");
        }
        const auto value =
            ParseValue(table.Schema().fields[column->index].type, column->field.use, line.value);
        if (!value) return Refuse("The value is not of the type of its field.");
        try {
            store::CheckValue(table.Schema(), table.Schema().fields[column->index], *value);
        } catch (const Error& error) {
            return Refuse(error.what());
        }
        return TakeField(table, *column, *value);
    }

    /// Fields may be marked as travelling in a table that does not travel: its lines are passed over.
    bool IgnoreLine(const TableImport& table, std::string_view field) {
        const TableImport::Column* column = table.FindColumn(field);
        if (column == nullptr) return Refuse("The table has no field of this name that travels.");
        if (column->field.use == ExportUse::Key) {
            context_.status.AddFault("The record belongs to a table that is not loaded.",
                                     {source_.File(), source_.LineNumber(), line_});
        }
        return true;
    }

    bool TakeField(TableImport& table, const TableImport::Column& column, const text::Value& value) {
        if (column.field.use == ExportUse::Key || (current_ != &table && lastTable_ == kAdventureTable)) {
            Store();
            if (lastTable_ != kAdventureTable) {
                const auto* key = std::get_if<std::int64_t>(&value);
                if (key == nullptr) return Refuse("The key of a record must be a number.");
                table.Open(*key);
            }
            current_ = &table;
        }
        if (current_ != &table) return Refuse("The line stands before the key of its record.");
        table.Set(column, value);
        return true;
    }

    void ChangeTable(int number) {
        const ExportTable* last = FindExportTable(lastTable_);
        if (last != nullptr && last->number != TableNum::Pictures)
            context_.status.AddToStatus(last->loaded);
        context_.status.AddToStatusCR(" ");
        lastTable_ = number;
    }

    TableImport& TableOf(int number) {
        auto& table = tables_[static_cast<std::size_t>(number)];
        if (!table) table = std::make_unique<TableImport>(context_.adventure, number);
        return *table;
    }

    void Store() {
        if (current_ != nullptr) current_->Store();
        current_ = nullptr;
    }

    void CompleteTexts() {
        const condacts::Catalogue catalogue = condacts::LoadCatalogue(context_.adventure);
        const condacts::WordIndex words = condacts::LoadWords(context_.adventure);
        const CompanionTexts texts(catalogue, words);
        for (const auto& table : tables_) {
            if (table && !table->IsIgnored()) table->Complete(texts, context_.status);
        }
    }

    bool Refuse(const std::string& why) {
        context_.status.AddFault(why, {source_.File(), source_.LineNumber(), line_});
        return false;
    }

    ImportContext& context_;
    SourceFile source_;
    std::string line_;
    int lastTable_ = -1;
    std::array<std::unique_ptr<TableImport>, store::kHighestTable + 1> tables_;
    TableImport* current_ =
        nullptr;  ///< the table whose record is open; its pending edit is the row being read
};

}  // namespace

store::AdventureSetup SetupOfExport(const std::filesystem::path& source) {
    store::AdventureSetup setup;
    SourceFile file(source);
    std::string line;
    file.Next(line);
    std::optional<store::AdventureKind> kind;
    while (file.Next(line)) {
        const FieldLine fieldLine = SplitFieldLine(line);
        if (!line.empty() && fieldLine.table != kAdventureTable) break;
        if (text::EqualsNoCase(fieldLine.field, "adventype"))
            kind = store::AdventureKindFrom(fieldLine.value);
    }
    if (kind) setup.ChooseType(*kind);
    return setup;
}

bool LoadFabula(ImportContext& context) {
    context.status.AddToStatusCR("Loading Fabula Export " + context.source.string());
    return Reader(context).Read();
}

}  // namespace fabula::interchange
