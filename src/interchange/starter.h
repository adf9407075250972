#pragma once

#include <filesystem>

#include "store/adventure.h"

namespace fabula::interchange {

/// Adds what an author starts from (words, messages, process entries) to an adventure that was just
/// created, in one step: a starter file of the default data, chosen by the adventure's type
/// ("starters/fabula.ini" and so on).
///
/// The file holds the sections "::VOCABULARY" (rows vocnum|Word|voctypen|voctype), "::MESSAGES" (a line
/// "/n", then the lines of its text) and "::PROCESSTABLES" (rows estype|w1|w2|w1num|w2num|numcas|CondActs),
/// each closed by "::END". Lines outside them are remarks. It is plain UTF-8.
///
/// Throws fabula::Error, with the file and the line, when the file can't be read or is malformed; the
/// adventure is then as it was.
void AddStarter(store::Adventure& adventure, const std::filesystem::path& file);

}  // namespace fabula::interchange
