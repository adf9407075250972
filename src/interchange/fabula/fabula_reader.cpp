#include "interchange/fabula/fabula_reader.h"

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/word_filters.h"
#include "interchange/fabula/companion_texts.h"
#include "interchange/shared/export_fields.h"
#include "interchange/shared/keyed_table.h"
#include "interchange/shared/source_file.h"
#include "platform/error.h"
#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/numbers.h"
#include "text/str_edit.h"

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

const TravellingTable* FindExportTable(std::int64_t number) {
    for (const TravellingTable& table : kExportTables) {
        if (static_cast<std::int64_t>(table.number) == number) return &table;
    }
    return nullptr;
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
        keys_.insert(key);
        if (keyed_) keyed_->GoToOrAdd(key);
    }

    /// Of the records that the file names.
    const std::set<std::int64_t>& Keys() const { return keys_; }

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
    std::set<std::int64_t> keys_;
    std::vector<const Column*> numericSet_;                               ///< of the pending record
    std::vector<std::pair<int, std::vector<const Column*>>> toComplete_;  ///< places in the cursor
};

/// The reading of one file.
class ExportReader {
  public:
    explicit ExportReader(ImportContext& context)
        : context_(context), source_(context.source, context.encoding) {}

    bool Read() {
        const bool isOurs =
            source_.Next(line_) && line_ == ExportVersion(context_.adventure) && source_.Next(line_);
        if (!isOurs) {
            context_.status.AddToStatusCR("File is not a Fabula Export file or Version  is incompatible.");
            return false;
        }
        if (!source_.EncodingNote().empty()) context_.status.AddToStatusCR(source_.EncodingNote());
        context_.status.StartBar(source_.Size());
        do {
            context_.status.SetBar(source_.BytesRead());
            if (!line_.empty() && !TakeLine()) return false;
        } while (source_.Next(line_));
        Store();
        DropDefaultWords();
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
            ParseExportValue(table.Schema().fields[column->index].type, column->field.use, line.value);
        if (!value) return Refuse(kWrongTypeOfField, line.value);
        if (text::EqualsNoCase(column->field.name, "numericcondacts") && !TakesNumbers(line.value))
            return false;
        try {
            store::CheckValue(table.Schema(), table.Schema().fields[column->index], *value);
        } catch (const Error& error) {
            return Refuse(error.what(), line.value);
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
        const TravellingTable* last = FindExportTable(lastTable_);
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
        const condacts::WordIndex words = condacts::LoadWords(context_.adventure);
        const CompanionTexts texts(catalogue_, words);
        for (const auto& table : tables_) {
            if (table && !table->IsIgnored()) table->Complete(texts, context_.status);
        }
    }

    /// Whether a list of conditions and actions can be decoded. A word that the vocabulary does not have is
    /// no matter here: the vocabulary may come later.
    bool TakesNumbers(std::string_view numbers) {
        const condacts::ParsedLine parsed = condacts::ParseNumericLine(numbers, catalogue_);
        if (parsed.unknownName) {
            const std::string_view token = parsed.tokens[*parsed.unknownName].text;
            return Refuse(condacts::InvalidCondActMessage(token), token);
        }
        for (const condacts::Statement& statement : parsed.statements) {
            if (statement.paramsGiven < static_cast<std::size_t>(statement.condAct->paramCount))
                return Refuse(condacts::kMissingParameter, parsed.tokens.back().text);
            for (std::size_t p = 0; p < statement.paramsGiven; ++p) {
                const std::string_view token = parsed.Param(statement, p);
                if (!condacts::NumberOfToken(token))
                    return Refuse(condacts::InvalidNumberMessage(p + 1), token);
            }
        }
        return true;
    }

    /// An export holds the whole vocabulary: a default word that it lacks was deleted by the author.
    void DropDefaultWords() {
        const auto& words = tables_[static_cast<std::size_t>(TableNum::Vocabulary)];
        if (!words || words->Keys().empty()) return;
        std::vector<std::int64_t> deleted;
        store::PreparedQuery all =
            context_.adventure.Prepare(TableNum::Vocabulary, "vocindex", condacts::ButReserved());
        for (bool more = all.First({}); more; more = all.Next()) {
            if (!words->Keys().contains(all.Number(0))) deleted.push_back(all.Number(0));
        }
        all.Reset();
        for (const std::int64_t key : deleted)
            context_.adventure.DeleteFrom(TableNum::Vocabulary, "vocindex=" + std::to_string(key));
    }

    /// `at` is the piece of the line that is at fault.
    bool Refuse(const std::string& why, std::string_view at = {}) {
        SourcePlace place{source_.File(), source_.LineNumber(), line_};
        if (!at.empty()) {
            const auto before =
                std::string_view(line_).substr(0, static_cast<std::size_t>(at.data() - line_.data()));
            place.column = static_cast<std::int64_t>(text::Length(before)) + 1;
        }
        context_.status.AddFault(why, place);
        return false;
    }

    ImportContext& context_;
    SourceFile source_;
    condacts::Catalogue catalogue_ = condacts::LoadCatalogue(context_.adventure);
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
    return ExportReader(context).Read();
}

}  // namespace fabula::interchange
