#pragma once

#include <optional>
#include <string>

#include "authoring/desk/grid/table_view.h"
#include "authoring/document/screen_context.h"

namespace fabula::authoring {

// The commands Batch Export and Batch Import of the main window. They throw fabula::Error when a file can't
// be read or written.

/// Asks for the scope, the process tables and the file, and writes it. `key` is that of the record that is
/// selected. Gives what was done, in a sentence; nullopt when the author gave up or was refused.
std::optional<std::string> ExportBatchFile(ScreenContext& context, const TableView& view,
                                           std::optional<int> key);

/// What became of a batch file that was chosen.
struct BatchFileRead {
    std::string message;  ///< what was done, in a sentence
    bool mustExit = false;
};
/// Asks for a file and reads it. Faults are shown in a report. nullopt when nothing was read.
std::optional<BatchFileRead> ImportBatchFile(ScreenContext& context);

}  // namespace fabula::authoring
