#include <cstdio>
#include <iostream>

#include "cli/json.h"
#include "cli/verbs.h"
#include "store/adventure.h"
#include "store/filter/filter.h"
#include "text/encoding/safe_text.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::cli {
namespace {

struct DumpOptions {
    std::string file;
    std::string table;
    std::string fields = "*";
    std::string where;
    std::string order;
};

/// A table by its name or its number.
const store::TableEntry& TableNamed(const std::string& text) {
    const std::optional<int> number = text::SmallNumber(text);
    const store::TableEntry* table =
        number ? store::FindTable(static_cast<store::TableNum>(*number)) : store::FindTable(text);
    if (!table) throw UsageError("there is no table '" + text + "'; 'fabula tables' shows them");
    return *table;
}

Json JsonOfValue(const text::Value& value, store::FieldClass fieldClass) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return fieldClass == store::FieldClass::Truth ? Json(*number != 0) : Json(*number);
    }
    if (const auto* real = std::get_if<double>(&value)) return *real;
    if (const auto* words = std::get_if<std::string>(&value)) return *words;
    if (const auto* bytes = std::get_if<text::Blob>(&value)) return {{"bytes", bytes->size()}};
    return nullptr;
}

/// What a terminal would obey stands in JSON by its number, too; only the characters below 32 do so by
/// rule.
void AppendEscaped(const std::string& json, std::string& line) {
    for (std::size_t at = 0; at < json.size();) {
        const text::CodePoint point = text::DecodeAt(json, at);
        if (text::IsObeyed(point.value)) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(point.value));
            line += escape;
        } else {
            line.append(json, at, point.size);
        }
        at += point.size;
    }
}

/// The option, with its value, by which the selection is refused.
std::string RefusedOption(store::Adventure& adventure, store::TableNum table, const DumpOptions& options) {
    try {
        adventure.OpenTable(table, options.fields, "");
    } catch (const store::FilterError&) {
        return "--fields " + options.fields;
    }
    try {
        adventure.OpenTable(table, "*", options.where);
    } catch (const store::FilterError&) {
        return "--where " + options.where;
    }
    return "--order " + options.order;
}

store::Cursor& Selected(store::Adventure& adventure, store::TableNum table, const DumpOptions& options) {
    std::optional<std::string_view> order;
    if (!options.order.empty()) order = options.order;
    try {
        return adventure.OpenTable(table, options.fields, options.where, order);
    } catch (const store::FilterError& error) {
        throw UsageError(RefusedOption(adventure, table, options) + ": " + error.what());
    }
}

int Dump(const DumpOptions& options) {
    const store::TableEntry& table = TableNamed(options.table);
    const auto adventure = OpenToRead(options.file);
    store::Cursor& cursor = Selected(*adventure, table.number, options);
    for (; !cursor.Eof(); cursor.MoveNext()) {
        Json record = Json::object();
        for (std::size_t i = 0; i < cursor.Fields().size(); ++i) {
            const store::Field& field = cursor.Fields()[i];
            record[field.name] = JsonOfValue(cursor.Field(i), store::ClassOf(field.type));
        }
        std::string line;
        AppendEscaped(record.dump(-1, ' ', false, Json::error_handler_t::replace), line);
        std::cout << line << "\n";
    }
    return kDone;
}

}  // namespace

void AddDumpVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<DumpOptions>();
    verb.footer(
        "A binary field shows as {\"bytes\": N}. FILTER compares fields with values or each other by = <> "
        "< > <= >=\n"
        "and like, joined by and, or and parentheses: --where \"vocnum=5 or word like 'L%'\".");
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("table", options->table, "The table, by its name or number")->required();
    verb.add_option("--fields", options->fields, "Only these fields, a,b,...");
    verb.add_option("--where", options->where, "Only the records that match this filter");
    verb.add_option("--order", options->order, "In this order: fields, each optionally with desc");
    Runs(verb, chosen, options, Dump);
}

}  // namespace fabula::cli
