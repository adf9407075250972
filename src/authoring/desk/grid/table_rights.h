#pragma once

#include "authoring/desk/commands.h"
#include "authoring/desk/grid/table_view.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// What may be done with the records of a table, as the record of `Tables` for its key field says.
struct TableRights {
    bool add = false;
    bool addBefore = false;
    bool edit = false;
    bool remove = false;
    bool load = false;
    bool save = false;
    bool print = false;
    bool preview = false;
    bool batchImport = false;
    bool batchExport = false;
    bool changeSort = false;

    /// Whether a command is among those that a table allows or not, and then whether it does.
    bool Allows(Command command) const;
};

/// Without such a record nothing is allowed.
TableRights ReadTableRights(store::Adventure& adventure, store::TableNum table);

/// The texts of a command with the word for the view's records, for the commands that name a record:
/// "Add Location (CTRL/N)" and, for a menu, "&Add Location"; for all others that of the table of commands.
struct CommandTexts {
    std::string text;
    std::string menuText;
};
CommandTexts TextsFor(Command command, const TableView& view);

}  // namespace fabula::authoring
