#pragma once

#include <optional>

#include "store/adventure.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// Whether a table has a record with this key.
bool HasRecord(store::Adventure& adventure, store::TableNum table, int key);

int CountRecords(store::Adventure& adventure, store::TableNum table);

/// The highest key of a table; -1 when it has no record.
int HighestKey(store::Adventure& adventure, store::TableNum table);

/// The key of the next record of a table that numbers its records by itself, nullopt for others: of
/// locations the lowest that is free and no special place; of texts and objects, which are numbered without
/// a gap, their count or the first gap; of words, entries and descriptions of processes the one behind the
/// highest; of pictures that of the first location without one.
///
/// Screens ask again in the change that stores a new record, since the key that they opened with may have
/// been taken by another program.
std::optional<int> NextKey(store::Adventure& adventure, store::TableNum table);

}  // namespace fabula::authoring
