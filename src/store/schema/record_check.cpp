#include "store/schema/record_check.h"

#include <cstdint>
#include <string>

#include "platform/error.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

struct Range {
    FieldType type;
    std::int64_t low;
    std::int64_t high;
};

constexpr Range kRanges[] = {
    {FieldType::SmallInt, -32768, 32767},
    {FieldType::Integer, -2147483648LL, 2147483647LL},
    {FieldType::UnsignedTinyInt, 0, 255},
    {FieldType::Boolean, 0, 1},
};

std::optional<std::string> FaultOfNumber(FieldType type, std::int64_t number) {
    for (const Range& range : kRanges) {
        if (range.type == type && (number < range.low || number > range.high)) {
            return "can't hold the number " + std::to_string(number);
        }
    }
    return std::nullopt;
}

std::optional<std::string> FaultOfText(const Field& field, const std::string& text) {
    const std::size_t most = LongestText(field);
    if (field.type != FieldType::VarWChar || text.size() <= most || text::Length(text) <= most) {
        return std::nullopt;
    }
    return "can't hold a text of more than " + std::to_string(most) + " characters";
}

std::optional<std::string> FaultOfValue(const Field& field, const text::Value& value) {
    switch (ClassOf(field.type)) {
        case FieldClass::Number:
        case FieldClass::Truth:
            if (const auto* number = std::get_if<std::int64_t>(&value))
                return FaultOfNumber(field.type, *number);
            if (field.type == FieldType::Double && std::holds_alternative<double>(value))
                return std::nullopt;
            return "holds numbers only";
        case FieldClass::Text:
            if (const auto* text = std::get_if<std::string>(&value)) return FaultOfText(field, *text);
            return "holds text only";
        case FieldClass::Binary:
            if (std::holds_alternative<text::Blob>(value)) return std::nullopt;
            return "holds bytes only";
    }
    return std::nullopt;
}

}  // namespace

std::size_t LongestText(const Field& field) {
    return static_cast<std::size_t>(field.size > 0 ? field.size : kDefaultTextSize);
}

std::size_t LongestText(const TableSchema& schema, std::string_view field) {
    return LongestText(schema.fields.at(schema.Find(field).value()));
}

std::optional<std::string> FaultOf(const TableSchema& schema, const Field& field,
                                   const text::Value& value) {
    if (text::IsNull(value)) return std::nullopt;
    const auto fault = FaultOfValue(field, value);
    if (!fault) return std::nullopt;
    return schema.name + "." + field.name + " " + *fault;
}

void CheckValue(const TableSchema& schema, const Field& field, const text::Value& value) {
    if (const auto fault = FaultOf(schema, field, value)) {
        throw Error("Could not store the record: " + *fault + ".");
    }
}

}  // namespace fabula::store
