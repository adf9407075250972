#include "authoring/desk/grid/table_rights.h"

#include <string_view>

#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

/// A field of `Tables` and the right that it gives.
struct RightField {
    std::string_view field;
    bool TableRights::*right;
};

constexpr RightField kRights[] = {
    {"allowadd", &TableRights::add},
    {"allowaddbef", &TableRights::addBefore},
    {"allowedit", &TableRights::edit},
    {"allowdelete", &TableRights::remove},
    {"allowload", &TableRights::load},
    {"allowsave", &TableRights::save},
    {"allowprint", &TableRights::print},
    {"allowprpre", &TableRights::preview},
    {"allowimpexp", &TableRights::batchImport},
    {"allowchgsort", &TableRights::changeSort},
};

/// How a command names the records of a view: what stands before their word and behind it, and the same in
/// a menu.
struct RecordText {
    Command command;
    std::string_view before;
    std::string_view behind;
    std::string_view menuBefore;
    std::string_view menuBehind;
};

constexpr RecordText kRecordTexts[] = {
    {Command::Add, "Add ", " (CTRL/N)", "&Add ", ""},
    {Command::AddBefore, "Add ", " Before Current Entry", "Add ", " &Before Current Entry"},
    {Command::Delete, "Delete ", "", "&Delete ", ""},
    {Command::Edit, "Edit ", " (CTRL/E)", "&Edit ", ""},
    {Command::Load, "Load ", " (CTRL/L)", "&Load ", ""},
    {Command::Print, "Print ", "", "&Print ", ""},
    {Command::Preview, "Print Preview ", "", "Print Pre&view ", ""},
    {Command::Save, "Save ", "", "&Save ", ""},
};

/// The word may end with a blank of its own.
std::string Joined(std::string_view before, const std::string& word, std::string_view behind) {
    return std::string(before) + word + std::string(behind);
}

}  // namespace

bool TableRights::Allows(Command command) const {
    switch (command) {
        case Command::Add:
            return add;
        case Command::AddBefore:
            return addBefore;
        case Command::Edit:
            return edit;
        case Command::Delete:
            return remove;
        case Command::Load:
            return load;
        case Command::Save:
            return save;
        case Command::Print:
            return print;
        case Command::Preview:
            return preview;
        case Command::BatchImport:
            return batchImport;
        case Command::BatchExport:
            return batchExport;
        case Command::Sort:
            return changeSort;
        default:
            return true;
    }
}

TableRights ReadTableRights(store::Adventure& adventure, TableNum table) {
    TableRights rights;
    const std::string where = "tablenum=" + std::to_string(static_cast<int>(table)) + " and export=1";
    const store::Cursor& row = adventure.OpenTable(TableNum::TablesWalk, "def", where);
    if (row.Eof()) return rights;
    for (const RightField& field : kRights)
        rights.*field.right = row.Text(field.field) == "Y";
    // Files of older versions have no field for it.
    if (adventure.Schema(TableNum::Tables).Find("allowexp"))
        rights.batchExport = row.Text("allowexp") == "Y";
    return rights;
}

CommandTexts TextsFor(Command command, const TableView& view) {
    const std::string word = CaptionWord(view);
    for (const RecordText& row : kRecordTexts) {
        if (row.command != command || word.empty()) continue;
        // A set is added at a time.
        const bool isSet = command == Command::Add && view.table == TableNum::Characters;
        return {Joined(row.before, word, isSet ? " Set" : row.behind),
                text::StrEdit(Joined(row.menuBefore, word, row.menuBehind), "compress,trim")};
    }
    const CommandEntry& entry = EntryOf(command);
    return {std::string(entry.tip), std::string(entry.text)};
}

}  // namespace fabula::authoring
