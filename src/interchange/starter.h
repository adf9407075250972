#pragma once

#include <filesystem>

#include "store/adventure.h"

namespace fabula::interchange {

/// Adds what an author starts from (words, messages, process entries) to an adventure that was just
/// created, in one step: a starter file of the default data, chosen by the adventure's type
/// ("starters/fabula.ini" and so on).
///
/// The file is built as the default data is (store/schema/default_data.h), with an "::INFO" that names the
/// delimiter and the sections "::MESSAGES", "::VOCABULARY" and "::PROCESSTABLES", each of which may be
/// missing. Lines outside of sections are remarks.
///
/// Throws fabula::Error, with the file and the line, when the file can't be read or is malformed; the
/// adventure is then as it was.
void AddStarter(store::Adventure& adventure, const std::filesystem::path& file);

}  // namespace fabula::interchange
