#include "interchange/fabula/fabula_writer.h"

#include <string>
#include <vector>

#include "interchange/shared/export_fields.h"
#include "interchange/shared/target_file.h"
#include "text/encoding/utf8.h"
#include "text/format.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::FieldType;

/// One table on its way into the file.
class TableExport {
  public:
    TableExport(ExportContext& context, TargetFile& file, const TravellingTable& table)
        : context_(context), file_(file), number_(static_cast<int>(table.number)) {
        const store::TableSchema& schema = context.adventure.Schema(table.number);
        for (ExportField& field : ExportFields(context.adventure, number_)) {
            const auto type = store::FieldTypeFromTag(field.type);
            if (type && *type != FieldType::LongVarBinary && schema.Find(field.name)) {
                fields_.push_back({std::move(field), *type});
            } else {
                context.person.Tell("invalid field name " + field.type, "Error");
            }
        }
        Cursor& records = context.adventure.OpenTable(table.number, "def");
        for (Column& column : fields_)
            column.index = records.Column(column.field.name);
    }

    /// False when a character can't be written.
    bool WriteAll() {
        if (fields_.empty()) return true;
        Cursor& records = context_.adventure.Table(static_cast<store::TableNum>(number_));
        for (; !records.Eof(); records.MoveNext()) {
            context_.status.IncBar(1);
            for (const Column& column : fields_) {
                if (!WriteField(records, column)) return false;
            }
        }
        return true;
    }

  private:
    struct Column {
        ExportField field;
        FieldType type;
        std::size_t index = 0;
    };

    bool WriteField(const Cursor& records, const Column& column) {
        const text::Value value = records.Field(column.index);
        if (column.field.use == ExportUse::Comment && text::IsNull(value)) return true;
        const std::string written = Rendered(column, value, records);
        const auto bad = file_.WriteLine(
            text::FormatText("%n!|!%a!|!%a", {std::int64_t{number_}, column.field.name, written}));
        if (!bad) return true;
        context_.status.AddToStatusCR("ERROR: " + Name(records, column) + ": the character " + *bad +
                                      " can't be written in this file.");
        return false;
    }

    std::string Rendered(const Column& column, const text::Value& value, const Cursor& records) {
        if (store::ClassOf(column.type) != store::FieldClass::Text || column.type == FieldType::Date)
            return RenderExportValue(column.type, value);
        const std::string stored = text::ToText(value);
        NameLosses(stored, Name(records, column), column.field.use);
        std::string line = text::ReplaceAll(stored, text::kLineEndMarker, kLineEndTag);
        if (line.find_first_of("\r\n") != std::string::npos)
            line = text::NormalizeLineEnds(line, kLineEndTag);
        return line;
    }

    void NameLosses(const std::string& stored, const std::string& name, ExportUse use) {
        const bool hasLineEnd = stored.find(text::kLineEndMarker) != std::string::npos;
        if (stored.find('|') != std::string::npos) {
            context_.status.AddLoss(name + ": what stands behind the first | will not come back.");
        }
        if (stored.find(kLineEndTag) != std::string::npos && KeepsLineEnds(use)) {
            context_.status.AddLoss(name + ": <CR> will come back as a line end.");
        }
        if (hasLineEnd && !KeepsLineEnds(use)) {
            context_.status.AddLoss(name + ": line ends will come back as <CR>.");
        }
        if (stored.find_first_of("\r\n") != std::string::npos) {
            context_.status.AddLoss(name + ": carriage returns and line feeds are written as <CR>.");
        }
    }

    std::string Name(const Cursor& records, const Column& column) const {
        return std::string(store::FindTable(static_cast<store::TableNum>(number_))->name) + " " +
               text::ToText(records.Field(fields_.front().index)) + ", " + column.field.name;
    }

    ExportContext& context_;
    TargetFile& file_;
    int number_;
    std::vector<Column> fields_;
};

}  // namespace

bool ExportFabula(ExportContext& context) {
    TargetFile file(context.target);
    const auto bad = file.WriteLine(ExportVersion(context.adventure));
    if (bad) {
        context.status.AddToStatusCR("The version holds the character " + *bad +
                                     ", which can't be written.");
        return false;
    }
    for (const TravellingTable& table : kExportTables) {
        if (!TableExport(context, file, table).WriteAll()) return false;
    }
    file.Finish();
    context.person.Tell("Fabula Export completed", "Fabula");
    return true;
}

}  // namespace fabula::interchange
