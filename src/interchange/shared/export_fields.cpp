#include "interchange/shared/export_fields.h"

#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/moment.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::FieldType;

std::optional<text::Value> ParseTruth(std::string_view text) {
    if (text::EqualsNoCase(text, "true") || text == "1" || text == "-1") return std::int64_t{1};
    if (text::EqualsNoCase(text, "false") || text == "0") return std::int64_t{0};
    return std::nullopt;
}

}  // namespace

std::vector<ExportField> ExportFields(store::Adventure& adventure, int tableNumber) {
    std::vector<ExportField> fields;
    const std::string table = "tablenum=" + std::to_string(tableNumber);
    for (const char* which : {" and export=1", " and export>1"}) {
        store::PreparedQuery rows =
            adventure.Prepare(store::TableNum::Tables, "fieldname, fieldtype, export", table + which);
        for (bool more = rows.First({}); more; more = rows.Next()) {
            fields.push_back({std::string(rows.Text(0)), std::string(rows.Text(1)),
                              static_cast<ExportUse>(rows.Number(2))});
        }
    }
    return fields;
}

std::optional<text::Value> ParseExportValue(FieldType type, ExportUse use, std::string_view text) {
    if (type == FieldType::VarWChar || type == FieldType::LongVarWChar) {
        if (!KeepsLineEnds(use)) return std::string(text);
        return text::ReplaceAll(text, kLineEndTag, text::kLineEndMarker);
    }
    if (text.empty()) return text::Value();
    if (type == FieldType::Boolean) return ParseTruth(text);
    if (type == FieldType::Double) {
        const auto number = text::RealNumber(text);
        return number ? std::optional<text::Value>(*number) : std::nullopt;
    }
    if (type == FieldType::Date)
        return text::IsMoment(text) ? std::optional<text::Value>(std::string(text)) : std::nullopt;
    if (type == FieldType::LongVarBinary) return std::nullopt;
    const auto number = text::WholeNumber(text);
    return number ? std::optional<text::Value>(*number) : std::nullopt;
}

std::string RenderExportValue(FieldType type, const text::Value& value) {
    if (type == FieldType::Boolean && !text::IsNull(value))
        return text::ToText(value) == "0" ? "False" : "True";
    return text::ToText(value);
}

std::string ExportVersion(store::Adventure& adventure) {
    store::PreparedQuery system = adventure.Prepare(store::TableNum::System, "sysexportversion", "");
    return system.First({}) ? std::string(system.Text(0)) : std::string();
}

}  // namespace fabula::interchange
