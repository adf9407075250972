#pragma once

#include <string>
#include <string_view>

#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// What a field is called where an author reads it: `other`, the other name that its row of `Tables` gives
/// it, or where it has none a name of the program's own for some fields, else the field's name. Only shown;
/// files and filters know the field's name.
std::string FieldTitle(store::TableNum table, std::string_view field, std::string_view other);

}  // namespace fabula::authoring
