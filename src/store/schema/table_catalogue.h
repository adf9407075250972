#pragma once

#include <span>
#include <string_view>

namespace fabula::store {

/// The numbers of an adventure's tables and of the further cursors on them. They are stored in adventure
/// files
/// (`Tables.tablenum`, `DataBases.dbnum`) and never change.
enum class TableNum : int {
    Locations = 1,
    Messages = 2,
    Sounds = 3,
    Objects = 4,
    Adventure = 5,
    ProcessTables = 6,
    SystemMessages = 7,
    Vocabulary = 8,
    Flags = 9,
    CondActs = 10,
    DataBases = 11,
    Tables = 12,
    Package = 14,
    ProcDesc = 15,
    Header = 17,
    System = 30,
    Codes = 31,
    Commands = 32,
    Characters = 33,
    Pictures = 34,
    Templates = 35,

    /// Second cursors, so that a table can be walked while its main cursor stands on the current record.
    ProcessTablesWalk = 16,
    VocabularyWalk = 18,
    TablesWalk = 19,
    LocationsWalk = 21,

    /// Free cursors: their field list names the table, "* from vocabulary".
    Free22 = 22,
    Free23 = 23,
    Free24 = 24,
    Free25 = 25,
};

/// The highest table number.
inline constexpr int kHighestTable = 35;

/// What the program knows of a table before any adventure is open.
struct TableEntry {
    TableNum number;
    std::string_view name;  ///< as stored in the file
    std::string_view key;   ///< the field that numbers its records; of two, the one that search goes by
    std::string_view sectionStem;  ///< of its sections in the default data
    bool typedData;                ///< its data section exists once for each type of adventure
    bool hasData;                  ///< it has a data section at all
};

/// All tables in the order of the default data: `Tables` first, then by number.
std::span<const TableEntry> AllTables();

/// The entry of the table that cursor `number` stands on (second cursors give their table), or nullptr for
/// free cursors and for numbers that have no cursor.
const TableEntry* FindTable(TableNum number);

/// The entry of the table with this name, case ignored, or nullptr.
const TableEntry* FindTable(std::string_view name);

/// True for the four free cursors.
bool IsFreeCursor(TableNum number);

}  // namespace fabula::store
