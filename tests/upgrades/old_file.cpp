#include "old_file.h"

#include <algorithm>

#include "store/file/file_check.h"
#include "store/file/file_forms.h"
#include "support/games/template_adventure.h"
#include "support/places.h"
#include "support/raw_database.h"
#include "support/temp_folder.h"
#include "text/encoding/utf8.h"

namespace fabula::test {
namespace {

/// What a step changes that is neither a table nor a field.
struct OtherChange {
    int step;
    const char* sql;
};

constexpr OtherChange kOtherChanges[] = {
    {6, "UPDATE DataBases SET dbnum=2, dbtreename='Texts of old' WHERE dbnum=15"},
    {8, "UPDATE ProcessTables SET numericcondacts=''"},
    {10, "DELETE FROM Tables WHERE tablenum=12"},
    // Before these steps there was no markup.
    {11, "UPDATE SystemMessages SET smsgmsg='>' WHERE smsgnum=33"},
    {14, "UPDATE SystemMessages SET smsgmsg='>' WHERE smsgnum=33"},
    {16,
     "UPDATE Tables SET fieldtype='advarwchar', fieldsize=255 WHERE tablenum=6 AND "
     "lower(fieldname) IN ('condacts', 'numericcondacts')"},
    {18,
     "ALTER TABLE Adventure DROP COLUMN Font; ALTER TABLE Adventure ADD COLUMN Font TEXT;"
     "UPDATE Adventure SET Font='Arial';"
     "UPDATE Tables SET fieldtype='advarwchar', fieldsize=255 WHERE tablenum=5 AND fieldname='Font'"},
    {26,
     "UPDATE Tables SET fieldtype='advarwchar', fieldsize=255 WHERE tablenum=7 AND fieldname='smsgmsg'"},
    {32, "UPDATE Tables SET fieldsize=5 WHERE tablenum=8 AND lower(fieldname)='word'"},
    {33, "UPDATE Tables SET fieldsize=5 WHERE tablenum=4 AND fieldname IN ('objnoun', 'objadject')"},
    {34, "UPDATE Tables SET fieldsize=5 WHERE tablenum=6 AND fieldname IN ('w1', 'w2')"},
};

std::string NameOfField(store::TableNum table) {
    return std::string(store::FindTable(table)->name);
}

std::string NumberOf(store::TableNum table) {
    return std::to_string(static_cast<int>(table));
}

void DropTable(const RawDatabase& raw, store::TableNum table) {
    raw.Run("DROP TABLE " + NameOfField(table) + "; DELETE FROM Tables WHERE tablenum=" + NumberOf(table));
}

void DropField(const RawDatabase& raw, const store::LaterField& field) {
    const std::string table = NameOfField(field.table);
    const std::string name(field.name);
    const std::string there = raw.Ask("SELECT count(*) FROM pragma_table_info('" + table +
                                      "') WHERE name='" + name + "' COLLATE NOCASE");
    if (there == "0") return;
    raw.Run("DROP INDEX IF EXISTS " + table + "_" + name);
    raw.Run("ALTER TABLE " + table + " DROP COLUMN " + name + "; DELETE FROM Tables WHERE tablenum=" +
            NumberOf(field.table) + " AND fieldname='" + name + "' COLLATE NOCASE");
}

std::string ShownValue(const text::Value& value) {
    if (text::IsNull(value)) return "null";
    const auto* bytes = std::get_if<text::Blob>(&value);
    return bytes ? std::to_string(bytes->size()) + " bytes" : text::ToText(value);
}

/// A column of a table's records, and its name in small letters.
struct NamedColumn {
    std::string name;
    std::size_t column;
};

/// The columns in the order of their names, whatever order a file has them in.
std::vector<NamedColumn> ColumnsOf(const store::Cursor& records) {
    std::vector<NamedColumn> columns;
    for (std::size_t i = 0; i < records.Fields().size(); ++i) {
        const std::string name = text::LowerCase(records.Fields()[i].name);
        if (name != "tablekey") columns.push_back({name, i});
    }
    std::ranges::sort(columns, {}, &NamedColumn::name);
    return columns;
}

std::string LineOf(const store::Cursor& record, const std::vector<NamedColumn>& columns) {
    std::string line;
    for (const NamedColumn& named : columns)
        line.append(named.name).append("=").append(ShownValue(record.Field(named.column))).append("|");
    return line;
}

}  // namespace

std::filesystem::path DefaultDataFile() {
    return DefaultData();
}

namespace {

void WriteGame(const std::filesystem::path& file, store::AdventureKind kind) {
    store::AdventureSetup setup;
    setup.ChooseType(kind);
    MakeAdventure(file, setup);
    // The first location has a byte where no step puts one.
    RawDatabase(file).Run(
        "UPDATE Locations SET picgraphic=x'';"
        "INSERT INTO Locations(locnum, numexits, exits, numericexits, picloc, pickey, locshortdesc, "
        "locdesc, "
        "picgraphic, oldpicloc) VALUES(1,2,'N 0','2 0','','',' ','A hall.',x'',' ');"
        "INSERT INTO Messages(msgnum, msgmsg) VALUES(0,'Nothing happens.'),(1,'Done.');"
        "INSERT INTO Objects(objnum, objdesc, objnoun, objnumnoun, objadject, objnumadject, objlocdesc, "
        "objloc, objweight, objattrn, objattr) VALUES(0,'A lamp.','_',255,'_',255,'In Room 0.',0,1,0,'');"
        "INSERT INTO ProcessTables(canum, estype, w1, w2, w1num, w2num, numcas, condacts, numericcondacts) "
        "VALUES(1,0,'_','_',255,255,5,'AT 1 MESSAGE 1 DONE','101 1 250 1 265'),"
        "(2,1,'_','_',255,255,2,'SET 30','224 30');");
}

void TakeBack(const RawDatabase& raw, int step) {
    for (const OtherChange& change : kOtherChanges) {
        if (change.step == step) raw.Run(change.sql);
    }
    for (const store::LaterTable& table : store::LaterTables()) {
        if (table.step == step) DropTable(raw, table.table);
    }
    for (const store::LaterField& field : store::LaterFields()) {
        if (field.step == step) DropField(raw, field);
    }
}

}  // namespace

void MakeGame(const std::filesystem::path& file, store::AdventureKind kind) {
    MakeGameBefore(file, kind, store::kLatestStep + 1);
}

/// Each is made once and copied: there are hundreds of tests that begin with one.
void MakeGameBefore(const std::filesystem::path& file, store::AdventureKind kind, int step) {
    static const TempFolder made;
    const std::filesystem::path game =
        made.Path() / (std::string(store::NameOf(kind)) + std::to_string(step));
    if (!std::filesystem::exists(game)) {
        if (step > store::kLatestStep) {
            WriteGame(game, kind);
        } else {
            MakeGameBefore(game, kind, step + 1);
            TakeBack(game, step);
        }
    }
    std::filesystem::copy_file(game, file, std::filesystem::copy_options::overwrite_existing);
}

void TakeBack(const std::filesystem::path& file, int step) {
    TakeBack(RawDatabase(file), step);
}

Contents ContentsOf(store::Adventure& adventure) {
    Contents contents;
    for (const store::TableEntry& table : store::AllTables()) {
        std::vector<std::string>& lines = contents[std::string(table.name)];
        store::Cursor& record = adventure.OpenTable(table.number, "*");
        const std::vector<NamedColumn> columns = ColumnsOf(record);
        for (; !record.Eof(); record.MoveNext())
            lines.push_back(LineOf(record, columns));
        std::sort(lines.begin(), lines.end());
    }
    return contents;
}

Contents ContentsOf(const std::filesystem::path& file) {
    return ContentsOf(*store::Adventure::Open(file, store::OpenMode::ReadOnly));
}

}  // namespace fabula::test
