#pragma once

#include <optional>
#include <string_view>

#include "store/adventure.h"

namespace fabula::store {

/// Calls `use` with each record of a table, in the order given; nullopt is the table's own
/// (Adventure::Prepare).
template <typename Use>
void ForEachRow(Adventure& adventure, TableNum table, std::string_view fields,
                std::optional<std::string_view> order, Use use) {
    PreparedQuery rows = adventure.Prepare(table, fields, "", order);
    for (bool more = rows.First({}); more; more = rows.Next())
        use(rows);
}

template <typename Use>
void ForEachRow(Adventure& adventure, TableNum table, std::string_view fields, Use use) {
    ForEachRow(adventure, table, fields, std::nullopt, use);
}

/// A column whose numbers are small, such as those of records.
inline int SmallNumber(const PreparedQuery& row, int column) {
    return static_cast<int>(row.Number(column));
}

}  // namespace fabula::store
