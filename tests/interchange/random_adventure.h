#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/adventure.h"

namespace fabula::interchange {

/// Fills a new adventure with records that its type admits: words of up to `letters` letters, texts with
/// line ends, tags and entities, exits, objects, entries with valid conditions and actions in several
/// tables, flags and pictures. The same seed gives the same adventure.
///
/// What the readers of sources tell as a mistake is not in it, nor what the kinds of files are known to
/// lose: "|" and "<CR>" in texts, the comment characters
/// ";" and "#", lines that begin with "/", line ends in texts of one line, entities that would pass for
/// tags.
void FillAtRandom(store::Adventure& adventure, std::uint32_t seed, int letters);

/// Every field that travels in an export file, as "table key field value", in the order of the keys.
std::vector<std::string> ExportedFields(store::Adventure& adventure);

/// What PC and ACE sources carry: words, texts, exits, objects and entries, without their keys where they
/// have none.
std::vector<std::string> SourceContents(store::Adventure& adventure);

}  // namespace fabula::interchange
