#pragma once

#include <filesystem>

#include "authoring/document/document.h"
#include "interchange/shared/job_status.h"

namespace fabula::authoring {

/// What an import of a batch file came to; what it could not do stands in the status.
struct BatchImportResult {
    bool done = false;
    int changed = 0;        ///< records that were edited or added
    bool mustExit = false;  ///< character sets were switched: the program has to end
};

/// Reads a batch file that was edited outside into the adventure, as one change and one step of Undo.
///
/// A record whose fields stand as they are is left alone. The others go through the screens of their
/// tables: what those refuse, ask or say is told as a fault of the line that it is about. With a fault
/// nothing is stored, and all of them are told. What the file does not name stays.
///
/// Records are found by their numbers, words by spelling and type. A new one takes the number that its
/// screen would give it; new locations and process tables may be named anywhere in the file.
///
/// Throws fabula::Error when a file can't be read or written; nothing has changed then.
BatchImportResult ImportBatch(Document& document, const std::filesystem::path& file,
                              interchange::JobStatus& status);

}  // namespace fabula::authoring
