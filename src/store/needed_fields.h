#pragma once

#include "store/schema.h"
#include "store/table_catalogue.h"

namespace fabula::store {

/// Whether a table has every field that the programs read of it, each of its class. They are the fields of
/// the default data but for `ideversion`, `engversion`, `allowexp` and those that About this Adventure
/// shows beside the name, which the files of older programs lack. Further fields do no harm.
bool HasNeededFields(TableNum table, const TableSchema& schema);

}  // namespace fabula::store
