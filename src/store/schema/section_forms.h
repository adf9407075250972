#pragma once

#include <span>
#include <string_view>

#include "store/schema/table_catalogue.h"

namespace fabula::store {

/// How the rows of a data section stand in the default data.
struct SectionForm {
    enum class Shape {
        Rows,          ///< one record a row
        NumberedRows,  ///< a line "/n" numbers the rows behind it, each a record
        NumberedTexts  ///< a line "/n" begins a record; an optional row, then lines of text
    };

    TableNum table;
    Shape shape;
    std::string_view
        columns;  ///< the field of each column, separated by blanks; "-" is a column that is not read
    std::string_view number;  ///< the field that "/n" gives, or that counts the rows from 1; "" for none
    std::string_view text;    ///< the field that takes the lines of text; "" for none
};

/// The form of each section of data but CHARACTERS, whose keys are worked out, in reading order.
std::span<const SectionForm> SectionForms();

/// The 22 columns of a schema row, as fields of `Tables`.
inline constexpr std::string_view kSchemaColumns =
    "fieldname fieldtype FieldSize search see export Expand allowadd allowaddbef AllowDelete allowedit "
    "allowload "
    "allowsave allowprint allowprpre allowkeychg allowimpexp allowexp gridwidth fbbexp altname "
    "allowchgsort";

/// The columns of a schema row that must stand there; the others are "N", 0 or empty when they are missing.
inline constexpr std::size_t kSchemaColumnsNeeded = 7;

}  // namespace fabula::store
