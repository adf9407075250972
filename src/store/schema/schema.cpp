#include "store/schema/schema.h"

#include <algorithm>
#include <limits>

#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

struct TypeRow {
    FieldType type;
    std::string_view tag;
    FieldClass fieldClass;
};

constexpr TypeRow kTypes[] = {
    {FieldType::SmallInt, "adsmallint", FieldClass::Number},
    {FieldType::Integer, "adinteger", FieldClass::Number},
    {FieldType::VarWChar, "advarwchar", FieldClass::Text},
    {FieldType::Double, "addouble", FieldClass::Number},
    {FieldType::Date, "addate", FieldClass::Text},
    {FieldType::Boolean, "adboolean", FieldClass::Truth},
    {FieldType::UnsignedTinyInt, "adunsignedtinyint", FieldClass::Number},
    {FieldType::LongVarWChar, "adlongvarwchar", FieldClass::Text},
    {FieldType::LongVarBinary, "adlongvarbinary", FieldClass::Binary},
};

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool IsLetterOrDigit(char c) {
    return IsLetter(c) || (c >= '0' && c <= '9');
}

const TypeRow& RowOf(FieldType type) {
    return kTypes[static_cast<std::size_t>(type)];
}

}  // namespace

std::optional<std::size_t> TableSchema::Find(std::string_view field) const {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (text::EqualsNoCase(fields[i].name, field)) return i;
    }
    return std::nullopt;
}

std::optional<FieldType> FieldTypeFromTag(std::string_view tag) {
    for (const TypeRow& row : kTypes) {
        if (text::EqualsNoCase(row.tag, tag)) return row.type;
    }
    return std::nullopt;
}

std::string_view TagOf(FieldType type) {
    return RowOf(type).tag;
}

bool IsFieldName(std::string_view text) {
    return !text.empty() && IsLetter(text.front()) &&
           std::all_of(text.begin(), text.end(), IsLetterOrDigit) && !text::EqualsNoCase(text, kStoreKey);
}

std::int64_t WithinRange(std::int64_t number) {
    return std::clamp<std::int64_t>(number, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max());
}

FieldClass ClassOf(FieldType type) {
    return RowOf(type).fieldClass;
}

bool IsNumber(FieldType type) {
    return ClassOf(type) == FieldClass::Number && type != FieldType::Date;
}

}  // namespace fabula::store
