#pragma once

#include <string>

#include "store/adventure.h"

namespace fabula::authoring {

/// The listing of the highest key of each table that authors number: a heading, then a line for each table,
/// and for the vocabulary one for each type of word.
std::string ListLastRecords(store::Adventure& adventure);

}  // namespace fabula::authoring
