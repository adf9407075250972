#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// The programs that note their version.
enum class Program { Ide, Engine };

/// The name that a program has in VersionNumbers.dat: "FabulaIDE", "FabulaEngine".
std::string_view NameOf(Program program);

/// Compares `version` ("major.minor.revision") with the one of the program that opened the adventure the
/// last time, and keeps the new one in the adventure. Gives the line of the report when they differ, else
/// "". It is no change that could be undone. An adventure whose tables have no such field is left as it is.
std::string NoteVersion(store::Adventure& adventure, Program program, std::string_view version);

/// Adds `version` to VersionNumbers.dat, which lists by lines "name major.minor.revision date" the versions
/// that were ever started here. It lies in the first of `folders`, or where that can't be written in the
/// next one, which is made; what any of them lists counts. Gives the line of the report, "" when the
/// version was listed. Lines that are of another form are left alone.
std::string ListVersion(const std::vector<std::filesystem::path>& folders, Program program,
                        std::string_view version, const platform::DateTime& today);

/// The lines that are not empty as sentences in a row; "" without any.
std::string VersionReport(const std::vector<std::string>& lines);

/// A version file is read so far, in bytes.
inline constexpr std::size_t kLargestVersionFile = 1024 * 1024;

}  // namespace fabula::authoring
