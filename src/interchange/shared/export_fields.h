#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/adventure.h"

namespace fabula::interchange {

// What the export file carries of each table stands in the adventure's own `tables`: the column `export` of
// a field is 0 when it stays behind, 1 for the key of the table, and from 2 up for the others.

/// How a value is treated on reading; the numbers are those of the column.
enum class ExportUse : int {
    Key = 1,       ///< finds or adds the record
    Plain = 2,     ///< stored as it stands
    Numeric = 3,   ///< stored, and its companion text is made anew
    LongText = 4,  ///< "<CR>" turned back into the line-end marker
    Comment = 5,   ///< a long text that has no line in the file where there is none
};

/// Whether line ends of the text travel.
constexpr bool KeepsLineEnds(ExportUse use) {
    return use == ExportUse::LongText || use == ExportUse::Comment;
}

/// A field that travels in export files.
struct ExportField {
    std::string name;
    std::string type;  ///< its type tag
    ExportUse use = ExportUse::Plain;
};

/// The fields of a table that travel, the key first, the others in the order of `tables`.
std::vector<ExportField> ExportFields(store::Adventure& adventure, int tableNumber);

/// The value of a field's text; nothing when it is not of the type. An empty text is null where it can't be
/// a text.
std::optional<text::Value> ParseExportValue(store::FieldType type, ExportUse use, std::string_view text);

/// The text of a field's value, texts as they are stored.
std::string RenderExportValue(store::FieldType type, const text::Value& value);

/// The tables that travel, in the order of the file.
struct TravellingTable {
    store::TableNum number;
    std::string_view loaded;  ///< the status line behind its records
};
inline constexpr TravellingTable kExportTables[] = {
    {store::TableNum::Adventure, "Loaded Adventure Settings"},
    {store::TableNum::Vocabulary, "Loaded Vocabulary"},
    {store::TableNum::Locations, "Loaded Locations"},
    {store::TableNum::Objects, "Loaded Objects"},
    {store::TableNum::Messages, "Loaded Messages"},
    {store::TableNum::SystemMessages, "Loaded System Messages"},
    {store::TableNum::ProcDesc, "Loaded Process Descriptions"},
    {store::TableNum::ProcessTables, "Loaded Process Tables"},
    {store::TableNum::Flags, "Loaded Flag Descriptions"},
    {store::TableNum::Characters, "Loaded Characters"},
    {store::TableNum::Pictures, "Loaded Graphics Information"},
};

/// What stands in the file for a line-end marker, and between the pieces of a line.
inline constexpr std::string_view kLineEndTag = "<CR>";
inline constexpr std::string_view kPieceDelimiter = "|";

/// The version that the first line of an export file bears (`sysexportversion`).
std::string ExportVersion(store::Adventure& adventure);

}  // namespace fabula::interchange
