#include "authoring/entries/last_records.h"

#include "condacts/words.h"
#include "store/schema/record_fields.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::PreparedQuery;
using store::TableNum;

constexpr TableNum kListed[] = {TableNum::Locations,     TableNum::Messages,       TableNum::Objects,
                                TableNum::ProcessTables, TableNum::SystemMessages, TableNum::Vocabulary,
                                TableNum::Flags,         TableNum::ProcDesc,       TableNum::Pictures};

/// The field that numbers a table's records, as the file itself marks it: the listing is for looking at
/// what a file has.
std::string MarkedKey(Adventure& adventure, TableNum table) {
    PreparedQuery field = adventure.Prepare(TableNum::Tables, "fieldname", "tablenum=? and export=1");
    if (field.First({static_cast<std::int64_t>(table)})) return std::string(field.Text(0));
    return store::KeyField(table);
}

std::string LastOf(Adventure& adventure, TableNum table) {
    const std::string name(store::FindTable(table)->name);
    const std::string key = MarkedKey(adventure, table);
    PreparedQuery last = adventure.Prepare(table, key, "", key + " desc");
    if (!last.First({})) return name + ": no records";
    return name + ": last " + key + " " + std::to_string(last.Number(0));
}

std::string LastOfEachType(Adventure& adventure) {
    const std::string key = MarkedKey(adventure, TableNum::Vocabulary);
    PreparedQuery last =
        adventure.Prepare(TableNum::Vocabulary, key + ", word, vocnum", "voctypen=?", key + " desc");
    std::string lines;
    for (int type = condacts::kVerb; type <= condacts::kReserved; ++type) {
        const std::string name(condacts::WordTypeName(type));
        if (last.First({std::int64_t{type}})) {
            lines += "\n    Last " + name + ": " + key + " " + std::to_string(last.Number(0)) + ", " +
                     std::string(last.Text(1)) + " " + std::to_string(last.Number(2));
        } else {
            lines += "\n    Missing " + name;
        }
    }
    return lines;
}

}  // namespace

std::string ListLastRecords(Adventure& adventure) {
    PreparedQuery settings = adventure.Prepare(TableNum::Adventure, "advname", "");
    std::string listing = "Listing of Last Record Key for Database Tables of Adventure: ";
    if (settings.First({})) listing += settings.Text(0);
    listing += "\n";
    for (const TableNum table : kListed) {
        listing += "\n";
        if (table == TableNum::Vocabulary) {
            listing += std::string(store::FindTable(table)->name) + ":" + LastOfEachType(adventure);
        } else {
            listing += LastOf(adventure, table);
        }
    }
    return listing + "\n";
}

}  // namespace fabula::authoring
