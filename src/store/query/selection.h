#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/filter/filter.h"
#include "store/schema/schema.h"
#include "text/value.h"

namespace fabula::store {

/// A selection of records, ready for the store: its statement, the values of its "?", and its columns.
struct Selection {
    std::string sql;
    std::vector<text::Value> values;  ///< one for each "?"; null where it is still to come
    std::vector<std::size_t>
        columns;  ///< index of each in the table's schema; the statement's column 0 is the key
};

/// What a caller asks for, each in the words of OpenTable. Without a filter or an order, "" stands.
struct SelectionText {
    std::string_view fields;
    std::string_view where;
    std::string_view order;
};

/// Checks a selection against its table and builds the statement. Throws FilterError.
Selection BuildSelection(const TableSchema& schema, const SelectionText& text,
                         Parameters parameters = Parameters::Refused);

/// Whether `order` is a well-formed order of this table's records.
bool IsOrderOf(const TableSchema& schema, std::string_view order);

/// The parts of a free cursor's statement "FIELDS from TABLE [where FILTER] [order by ORDER]".
struct FreeStatement {
    std::string_view fields;
    std::string_view table;
    std::string_view where;
    std::string_view order;
};

/// Takes a free cursor's statement apart. Throws FilterError when it names no table.
FreeStatement SplitFreeStatement(std::string_view statement);

}  // namespace fabula::store
