#pragma once

#include <string>

#include "store/schema/table_catalogue.h"

namespace fabula::listings {

/// The title of a table as the print windows name it; of process tables that of one of the first three, or
/// of the others (authoring::kOtherProcesses). "" for a table without a listing.
std::string PrintTitle(store::TableNum table, int process = 0);

}  // namespace fabula::listings
