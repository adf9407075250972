#pragma once

#include <string>
#include <string_view>

#include "authoring/document/screen_context.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// What the grid shows: a table, or one of the views on the process tables.
struct TableView {
    store::TableNum table = store::TableNum::ProcessTables;
    int process = 0;  ///< of ProcessTables: 0 to 2, or kOtherProcesses; 0 for all other tables

    friend bool operator==(const TableView&, const TableView&) = default;
};

/// The filter of the view's records; "" for all of them.
std::string FilterOf(const TableView& view);

/// The words for a record of the view in the texts of commands, as they stand there: "Location",
/// "Vocabulary ", "Process Record 1", "Process Record 3 or above". Tables without commands have none.
std::string CaptionWord(const TableView& view);

}  // namespace fabula::authoring
