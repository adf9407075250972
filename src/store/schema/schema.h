#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::store {

/// The nine types of a field, by the tags that `Tables.fieldtype` and the default data use.
enum class FieldType : std::uint8_t {
    SmallInt,         ///< `adsmallint`: 16-bit signed
    Integer,          ///< `adinteger`: 32-bit signed
    VarWChar,         ///< `advarwchar`: text of at most `size` characters
    Double,           ///< `addouble`
    Date,             ///< `addate`: the text "yyyy-mm-dd hh:mm:ss"
    Boolean,          ///< `adboolean`: 0 or 1
    UnsignedTinyInt,  ///< `adunsignedtinyint`: 0 to 255
    LongVarWChar,     ///< `adlongvarwchar`: text without a limit
    LongVarBinary,    ///< `adlongvarbinary`
};

/// What a field may be compared with.
enum class FieldClass : std::uint8_t { Number, Text, Truth, Binary };

/// A field of a table.
struct Field {
    std::string name;  ///< as declared; compared without regard to case
    FieldType type = FieldType::Integer;
    int size = 0;  ///< of `advarwchar`, in characters; 0 for the others
};

/// A table as a file has it, which need not be as this program would make it.
struct TableSchema {
    std::string name;
    std::vector<Field> fields;  ///< in the order of declaration

    /// The index of the field called `field`, case ignored; nullopt when there is none.
    std::optional<std::size_t> Find(std::string_view field) const;
};

/// The type that a tag names, case ignored; nullopt for any other text.
std::optional<FieldType> FieldTypeFromTag(std::string_view tag);
std::string_view TagOf(FieldType type);
FieldClass ClassOf(FieldType type);
/// Whether a type holds numbers; a date is none.
bool IsNumber(FieldType type);

/// What a number of a file stands for: itself, or of those beyond 32 bits, which no field can hold and
/// other programs may have put there, the nearest that it can.
std::int64_t WithinRange(std::int64_t number);

/// Whether a text may name a field: letters, digits and "_", no digit in front. Nothing else gets into a
/// statement of the store's query language.
bool IsFieldName(std::string_view text);

/// The name of the integer primary key that every table carries and that is no field: cursors know their
/// record by it, and change sets need it.
inline constexpr std::string_view kStoreKey = "storekey";

/// The size of an `advarwchar` field that declares none.
inline constexpr int kDefaultTextSize = 255;

}  // namespace fabula::store
