#include "store/schema/table_catalogue.h"

#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

constexpr TableEntry kTables[] = {
    {TableNum::Tables, "Tables", "tablekey", "TABLES", false, false},
    {TableNum::Locations, "Locations", "locnum", "LOCATIONS", true, true},
    {TableNum::Messages, "Messages", "msgnum", "MESSAGES", true, true},
    {TableNum::Sounds, "Sounds", "sndnum", "SOUNDS", false, false},
    {TableNum::Objects, "Objects", "objnum", "OBJECT", true, true},
    {TableNum::Adventure, "Adventure", "advnum", "ADVENTURE", true, true},
    {TableNum::ProcessTables, "ProcessTables", "canum", "PROCESSTABLES", true, true},
    {TableNum::SystemMessages, "SystemMessages", "smsgnum", "SYSMESS", true, true},
    {TableNum::Vocabulary, "Vocabulary", "vocindex", "VOCABULARY", true, true},
    {TableNum::Flags, "Flags", "flgnum", "FLAGS", false, true},
    {TableNum::CondActs, "CondActs", "canum", "CONDACT", false, true},
    {TableNum::DataBases, "DataBases", "dbnum", "DATABASE", false, true},
    {TableNum::Package, "Package", "PkgName", "PACKAGE", false, true},
    {TableNum::ProcDesc, "ProcDesc", "pmsgnum", "PROCDESC", false, true},
    {TableNum::Header, "Header", "hdrkey", "HEADER", false, true},
    {TableNum::System, "System", "systemnum", "SYSTEM", false, false},
    {TableNum::Codes, "Codes", "codenum", "CODES", false, true},
    {TableNum::Commands, "Commands", "conum", "COMMANDS", false, true},
    {TableNum::Characters, "Characters", "charkey", "CHARACTERS", false, true},
    {TableNum::Pictures, "Pictures", "locnum", "PICTURES", false, false},
    {TableNum::Templates, "Templates", "tempname", "TEMPLATES", false, false},
};

struct WalkCursor {
    TableNum cursor;
    TableNum table;
};

constexpr WalkCursor kWalkCursors[] = {
    {TableNum::ProcessTablesWalk, TableNum::ProcessTables},
    {TableNum::VocabularyWalk, TableNum::Vocabulary},
    {TableNum::TablesWalk, TableNum::Tables},
    {TableNum::LocationsWalk, TableNum::Locations},
};

}  // namespace

std::span<const TableEntry> AllTables() {
    return kTables;
}

const TableEntry* FindTable(TableNum number) {
    for (const WalkCursor& walk : kWalkCursors) {
        if (walk.cursor == number) return FindTable(walk.table);
    }
    for (const TableEntry& table : kTables) {
        if (table.number == number) return &table;
    }
    return nullptr;
}

const TableEntry* FindTable(std::string_view name) {
    for (const TableEntry& table : kTables) {
        if (text::EqualsNoCase(table.name, name)) return &table;
    }
    return nullptr;
}

bool IsFreeCursor(TableNum number) {
    return number >= TableNum::Free22 && number <= TableNum::Free25;
}

}  // namespace fabula::store
