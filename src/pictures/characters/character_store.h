#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/person.h"

namespace fabula::store {
class Adventure;
}

namespace fabula::pictures {

/// What the windows that save and load character sets do. Their lists have one line a set: "3 - Runes" for
/// a set of the adventure, "SET0003 - Runes" for one of a file. `selected` are the lines that were chosen.
/// Refusals are told to `person`. A failing file or store throws fabula::Error and leaves file and
/// adventure as they were.

/// The lines for the sets of an adventure, in order.
std::vector<std::string> ListSets(store::Adventure& adventure);

/// The lines for the sets of a file; none when it is no character set file, which the person is told.
std::vector<std::string> ListSetsInFile(const std::filesystem::path& file, platform::Person& person);

/// Writes the selected sets to a file, in the order given. False when nothing is selected.
bool SaveSets(store::Adventure& adventure, const std::vector<std::string>& selected,
              const std::filesystem::path& file, platform::Person& person);

/// Puts the characters of a file's set, and its name, over those of set `target`. Characters that the file
/// lacks stay as they are and keep the old name. A character that the target lacks is a fabula::Error: a
/// load adds none. False when not one line is selected, or when it may not become set 0.
bool LoadSet(store::Adventure& adventure, const std::filesystem::path& file,
             const std::vector<std::string>& selected, int target, platform::Person& person);

/// The largest character set file that is read, in bytes.
inline constexpr std::uintmax_t kLargestCharacterFile = 16 * 1024 * 1024;

}  // namespace fabula::pictures
