#include "store/schema/schema_section.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::store {
namespace {

/// The largest keypad template that is taken over, in bytes.
constexpr std::uintmax_t kLargestTemplate = 1024 * 1024;
/// The template that only the maintenance of Fabula loads.
constexpr std::string_view kMaintenanceTemplate = "else";

/// The lines of a keypad template, comments left out, joined by blanks.
std::string ReadTemplate(const std::filesystem::path& file) {
    std::istringstream stream(
        platform::ReadWholeFile(file, kLargestTemplate, "read the template " + file.string()));
    std::string commands;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (line.starts_with('!')) continue;
        if (!commands.empty()) commands += ' ';
        commands += line;
    }
    return commands;
}

/// What a schema row that leaves out its later columns means.
Record DefaultFieldRecord() {
    Record record;
    for (const char* name :
         {"allowadd", "allowaddbef", "AllowDelete", "allowedit", "allowload", "allowsave", "allowprint",
          "allowprpre", "allowkeychg", "allowimpexp", "allowexp", "allowchgsort"}) {
        record[name] = std::string("N");
    }
    record["gridwidth"] = std::int64_t{0};
    record["fbbexp"] = std::int64_t{0};
    record["altname"] = std::string();
    return record;
}

}  // namespace

std::string SchemaSection(const TableEntry& table) {
    return "VEL" + std::string(table.sectionStem) + "DB";
}

std::string DataSection(const TableEntry& table, std::string_view adventureType) {
    const std::string prefix = table.typedData ? text::UpperCase(adventureType) : "VEL";
    return prefix + std::string(table.sectionStem);
}

TableSchema ReadSchemaSection(const DefaultData& data, const TableEntry& table, platform::Person* person) {
    TableSchema schema{std::string(table.name), {}};
    const std::string section = SchemaSection(table);
    for (const DefaultData::Line& line : data.Lines(section)) {
        const auto columns = data.Columns(section, line, kSchemaColumnsNeeded);
        const auto type = FieldTypeFromTag(columns[1]);
        if (!type) {
            if (person) person->Tell("Invalid option: " + line.text, "Error");
            continue;
        }
        if (!IsFieldName(columns[0]))
            data.Malformed(section, line, "'" + columns[0] + "' is no name of a field");
        if (schema.Find(columns[0])) data.Malformed(section, line, "the field stands there twice");
        const int size = static_cast<int>(ReadNumber(data, section, line, columns[2]));
        schema.fields.push_back({columns[0], *type, *type == FieldType::VarWChar ? size : 0});
    }
    if (schema.fields.empty()) throw Error("The default data gives " + schema.name + " no fields.");
    return schema;
}

std::vector<Record> ReadFieldRecords(const DefaultData& data, const TableEntry& table,
                                     const TableSchema& tables) {
    std::vector<Record> records;
    const std::string section = SchemaSection(table);
    const auto names = text::Split(kSchemaColumns, " ");
    for (const DefaultData::Line& line : data.Lines(section)) {
        auto columns = data.Columns(section, line, kSchemaColumnsNeeded);
        if (!FieldTypeFromTag(columns[1])) continue;
        Record record = DefaultFieldRecord();
        for (std::size_t i = 0; i < std::min(columns.size(), names.size()); ++i) {
            SetText(record, data, {section, line, tables}, names[i], columns[i]);
        }
        record["TableName"] = std::string(table.name);
        record["TableNum"] = static_cast<std::int64_t>(table.number);
        records.push_back(std::move(record));
    }
    return records;
}

std::vector<Record> ReadTemplates(const std::filesystem::path& defaultData) {
    const auto folder = defaultData.parent_path() / "templates";
    std::error_code missing;  // a folder that is not there holds no templates
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
        if (entry.path().extension() == ".tpl" && entry.path().stem() != kMaintenanceTemplate) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<Record> records;
    for (const auto& file : files)
        records.push_back({{"tempname", file.stem().string()}, {"commands", ReadTemplate(file)}});
    return records;
}

}  // namespace fabula::store
