#pragma once

#include <span>
#include <string_view>

#include "store/schema/schema.h"
#include "store/schema/table_catalogue.h"

namespace fabula::store {

/// The number of the latest step that changed the tables or fields of an adventure file. A file's
/// `user_version` is that of the program that made or upgraded it; files from before these numbers were
/// written have 1.
inline constexpr int kLatestStep = 52;

/// A field that files from before a step of the upgrade chain lack. A new field takes one row here, one
/// among the steps (upgrades/schema_steps.cpp), and its row in the default data.
struct LaterField {
    TableNum table;
    std::string_view name;
    int step;
};

/// A table that files from before a step lack. The step makes it of those of its fields that are that
/// step's, or of all of them when it makes it `whole`.
struct LaterTable {
    TableNum table;
    int step;
    bool whole;
};

/// In the order of the steps.
std::span<const LaterField> LaterFields();
std::span<const LaterTable> LaterTables();

/// nullptr when every file has had the table or field from the beginning.
const LaterField* FindLaterField(TableNum table, std::string_view field);
const LaterTable* FindLaterTable(TableNum table);

/// The fields of `Tables` that files had before `Tables` told of itself, as later files declare them.
const TableSchema& OldestTablesSchema();

/// What a file's tables and fields are like.
enum class FileForm {
    Current,  ///< every field that the programs read is there
    Older,    ///< what is missing is what the steps of the upgrade chain add
    Foreign   ///< neither
};

/// The form of a table whose list of fields is `schema`; a table that the file lacks has no fields.
FileForm FormOf(TableNum table, const TableSchema& schema);

}  // namespace fabula::store
