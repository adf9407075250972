#pragma once

#include <string>
#include <vector>

#include "platform/person.h"
#include "store/schema/default_data.h"
#include "store/schema/schema.h"
#include "store/schema/section_reader.h"
#include "store/schema/table_catalogue.h"

namespace fabula::store {

/// The names of a table's sections in the default data, without "::". That of its records depends for some
/// tables on the type of the adventure ("Fabula", "VEL", "Marlo", in any case).
std::string SchemaSection(const TableEntry& table);
std::string DataSection(const TableEntry& table, std::string_view adventureType);

/// The fields of a table as the default data declares them. A field with an unknown type is told to
/// `person`, when there is one, and left out. Throws fabula::Error when the section is missing or
/// malformed.
TableSchema ReadSchemaSection(const DefaultData& data, const TableEntry& table, platform::Person* person);

/// The records of `Tables` that stand for a table's fields, but for their keys. `tables` is the schema of
/// `Tables` itself. Columns that a row leaves out are "N", 0 or empty.
std::vector<Record> ReadFieldRecords(const DefaultData& data, const TableEntry& table,
                                     const TableSchema& tables);

/// The records of `Templates` from the keypad templates (*.tpl) that lie beside the default data, in the
/// folder "templates", by name. The one called "else" is not among them.
std::vector<Record> ReadTemplates(const std::filesystem::path& defaultData);

}  // namespace fabula::store
