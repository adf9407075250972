#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/adventure.h"

namespace fabula::interchange {

// A batch file is a plain text of chosen tables, to be edited outside: sections from a marker to "/END", in
// them records, each ended by "ENDRECORD", and in those the fields that `tables` marks by `fbbexp`. It is
// written in UTF-8.

/// How a field stands in a batch file; the numbers are those of `fbbexp`.
enum class BatchForm : int {
    Line = 1,  ///< "Name=value"
    Text = 2,  ///< "Name=", the lines of the text, and a marker; so are the others
    Exits = 3,
    CondActs = 4,
    Drawstring = 5,
    Comment = 6,  ///< left out of records that have none
};

/// What stands behind a field's lines: "ENDDESC"; "" for one of a single line.
std::string_view EndMarkerOf(BatchForm form);

/// A field that travels in batch files.
struct BatchField {
    std::string field;  ///< in the table
    std::string name;   ///< in the file
    BatchForm form = BatchForm::Line;
    store::FieldType type = store::FieldType::VarWChar;
};

/// A table whose records travel in batch files.
struct BatchTable {
    store::TableNum number;
    std::string_view marker;  ///< "/LOC"
    std::string (*filter)();  ///< of the records that travel; nullptr for all
};

inline constexpr std::string_view kBatchSectionEnd = "/END";
inline constexpr std::string_view kBatchRecordEnd = "ENDRECORD";

/// The tables that travel, in the order of the file.
std::span<const BatchTable> BatchTables();
/// nullptr for a table that does not travel, and for a line that is no marker.
const BatchTable* FindBatchTable(store::TableNum table);
const BatchTable* FindBatchTable(std::string_view marker);

/// The fields of a table that travel, in the order of `tables`.
std::vector<BatchField> BatchFields(store::Adventure& adventure, store::TableNum table);

/// Whether a record's field stands in the file.
bool IsWritten(const BatchField& field, const text::Value& value);

/// A field's value as the file has it: "\n" for line ends in texts of several lines, "True" and "False",
/// and nothing for a text that is not there yet.
std::string BatchValue(const BatchField& field, const text::Value& value);

/// A line of a text as it is written: a line that reads like the end of its field gets a blank in front.
std::string EscapeBatchLine(std::string_view line, BatchForm form);
/// The way back.
std::string_view UnescapeBatchLine(std::string_view line, BatchForm form);

}  // namespace fabula::interchange
