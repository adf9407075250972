#pragma once

#include <string_view>
#include <vector>

#include "store/schema/schema.h"
#include "store/schema/table_catalogue.h"

namespace fabula::store {

/// A field that the programs read of a table and that it lacks, or has with another class.
struct FieldFault {
    std::string_view field;
    bool hasOtherClass = false;
};

/// What is wrong with a table's fields: each that the programs read must be there, each of its class. They
/// are the fields of the default data but for `ideversion`, `engversion`, `ifid`, `allowexp` and those that
/// About this Adventure shows beside the name, which a file may lack. Further fields do no harm.
std::vector<FieldFault> FaultsOfFields(TableNum table, const TableSchema& schema);

/// Whether the fault of `field` is that the font of the settings is given by its name, as it once was.
bool IsFontAsText(TableNum table, std::string_view field, const TableSchema& schema);

}  // namespace fabula::store
