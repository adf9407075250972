#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "interchange/batch/batch_tables.h"

namespace fabula::interchange {

/// What goes into a batch file.
struct BatchSelection {
    std::optional<store::TableNum> table = {};  ///< this one; nothing for all that travel
    std::optional<std::set<int>> keys = {};     ///< of it these records only
    std::string processes = "ALL";              ///< which process tables, as `ParseProcessList` reads it
};

/// "ALL", or numbers and ranges of numbers with commas: "0,3-5". Gives the numbers in the order of the
/// list; of "ALL" those of the process tables with entries. Nothing when it is no such list.
std::optional<std::vector<int>> ParseProcessList(store::Adventure& adventure, std::string_view list);

/// The text of a batch file. Throws fabula::Error when a table does not travel, or the list of processes is
/// none.
std::string ExportTable(store::Adventure& adventure, const BatchSelection& selection);

}  // namespace fabula::interchange
