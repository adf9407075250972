#include "store/record_check.h"

#include <cstdint>
#include <string>

#include "platform/error.h"
#include "text/utf8.h"

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

[[noreturn]] void Refuse(const TableSchema& schema, const Field& field, const std::string& why) {
    throw Error("Could not store the record: " + schema.name + "." + field.name + " " + why + ".");
}

void CheckNumber(const TableSchema& schema, const Field& field, std::int64_t number) {
    for (const Range& range : kRanges) {
        if (range.type != field.type || (number >= range.low && number <= range.high)) continue;
        Refuse(schema, field, "can't hold the number " + std::to_string(number));
    }
}

}  // namespace

void CheckValue(const TableSchema& schema, const Field& field, const text::Value& value) {
    if (text::IsNull(value)) return;
    switch (ClassOf(field.type)) {
        case FieldClass::Number:
        case FieldClass::Truth:
            if (const auto* number = std::get_if<std::int64_t>(&value))
                return CheckNumber(schema, field, *number);
            if (field.type == FieldType::Double && std::holds_alternative<double>(value)) return;
            Refuse(schema, field, "holds numbers only");
        case FieldClass::Text: {
            const auto* text = std::get_if<std::string>(&value);
            if (!text) Refuse(schema, field, "holds text only");
            const auto most = static_cast<std::size_t>(field.size > 0 ? field.size : kDefaultTextSize);
            if (field.type == FieldType::VarWChar && text->size() > most && text::Length(*text) > most) {
                Refuse(schema, field,
                       "can't hold a text of more than " + std::to_string(most) + " characters");
            }
            return;
        }
        case FieldClass::Binary:
            if (!std::holds_alternative<text::Blob>(value)) Refuse(schema, field, "holds bytes only");
            return;
    }
}

}  // namespace fabula::store
