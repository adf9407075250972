#include "interchange/batch/batch_tables.h"

#include "condacts/process_filters.h"
#include "condacts/word_filters.h"
#include "interchange/shared/export_fields.h"
#include "store/new_flag.h"
#include "text/encoding/bad_bytes.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::TableNum;

constexpr BatchTable kTables[] = {
    {TableNum::Pictures, "/GRA", nullptr},
    {TableNum::ProcDesc, "/PRD", [] { return condacts::BehindFixedProcesses("pmsgnum"); }},
    {TableNum::Flags, "/FLG", store::OfUserFlags},
    {TableNum::Vocabulary, "/VOC", condacts::ButReserved},
    {TableNum::SystemMessages, "/SMS", nullptr},
    {TableNum::ProcessTables, "/PRO", nullptr},
    {TableNum::Adventure, "/ADV", nullptr},
    {TableNum::Objects, "/OBJ", nullptr},
    {TableNum::Messages, "/MSG", nullptr},
    {TableNum::Locations, "/LOC", nullptr},
};

constexpr std::string_view kEndMarkers[] = {
    "", "ENDDESC", "ENDEXITS", "ENDCONDACTS", "ENDDRAWSTRING", "ENDCOMMENT"};

/// Whether a line is a field's end marker but for `blanks` or more blanks in front.
bool ReadsLikeEnd(std::string_view line, BatchForm form, std::size_t blanks) {
    const std::size_t start = line.find_first_not_of(' ');
    return start != std::string_view::npos && start >= blanks && line.substr(start) == EndMarkerOf(form);
}

}  // namespace

std::string_view EndMarkerOf(BatchForm form) {
    return kEndMarkers[static_cast<std::size_t>(form) - 1];
}

std::span<const BatchTable> BatchTables() {
    return kTables;
}

const BatchTable* FindBatchTable(TableNum table) {
    for (const BatchTable& each : kTables) {
        if (each.number == table) return &each;
    }
    return nullptr;
}

const BatchTable* FindBatchTable(std::string_view marker) {
    for (const BatchTable& each : kTables) {
        if (text::EqualsNoCase(each.marker, marker)) return &each;
    }
    return nullptr;
}

std::vector<BatchField> BatchFields(store::Adventure& adventure, TableNum table) {
    const store::TableSchema& schema = adventure.Schema(table);
    const std::string where = "tablenum=" + std::to_string(static_cast<int>(table)) + " and fbbexp>0";
    store::PreparedQuery rows =
        adventure.Prepare(TableNum::Tables, "fieldname, altname, fbbexp", where, "tablekey");
    std::vector<BatchField> fields;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        const std::string field(rows.Text(0));
        const auto index = schema.Find(field);
        const std::int64_t form = rows.Number(2);
        if (!index || form > static_cast<int>(BatchForm::Comment)) continue;
        if (store::ClassOf(schema.fields[*index].type) == store::FieldClass::Binary) continue;
        const std::string_view other = text::TrimBlanks(rows.Text(1));
        fields.push_back({field, other.empty() ? field : std::string(other), static_cast<BatchForm>(form),
                          schema.fields[*index].type});
    }
    return fields;
}

bool IsWritten(const BatchField& field, const text::Value& value) {
    return field.form != BatchForm::Comment || !text::IsNull(value);
}

std::string BatchValue(const BatchField& field, const text::Value& value) {
    // One byte that is no UTF-8 would make a reader take the whole file for another encoding.
    std::string shown = text::WithoutBadBytes(RenderExportValue(field.type, value));
    if (shown == " ") return "";
    if (field.form != BatchForm::Line)
        return text::ReplaceAll(text::NormalizeLineEnds(shown, text::kLineEndMarker), text::kLineEndMarker,
                                "\n");
    // A line holds one line: what else might end it stands as the marker that texts have.
    if (shown.find_first_of("\r\n") == std::string::npos) return shown;
    return text::NormalizeLineEnds(shown, text::kLineEndMarker);
}

std::string EscapeBatchLine(std::string_view line, BatchForm form) {
    return ReadsLikeEnd(line, form, 0) ? " " + std::string(line) : std::string(line);
}

std::string_view UnescapeBatchLine(std::string_view line, BatchForm form) {
    return ReadsLikeEnd(line, form, 1) ? line.substr(1) : line;
}

}  // namespace fabula::interchange
