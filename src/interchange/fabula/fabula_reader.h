#pragma once

#include <filesystem>

#include "interchange/shared/job_host.h"
#include "store/setup.h"

namespace fabula::interchange {

/// What kind of adventure an export file holds: type, graphics and character sets as its settings say,
/// which stand at its head. Where they don't, those of a new adventure. Throws fabula::Error when the file
/// can't be read.
store::AdventureSetup SetupOfExport(const std::filesystem::path& source);

/// Reads an export file into the new adventure. Records are found by their keys: those of the default data
/// that the file names are written over, the others stay. Of words only those of the file stay, and the
/// reserved ones, where it has any. Gives false, with the reason in the status, when
/// the file is of another version or a line is not as it must be.
bool LoadFabula(ImportContext& context);

}  // namespace fabula::interchange
