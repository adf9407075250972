#pragma once

#include <filesystem>
#include <string>

namespace fabula::ide {

/// Prints a report of an adventure into a PDF file: what `FabulaIDE --print-to` does. A file that exists is
/// replaced with `force` only. Throws fabula::Error with one sentence; nothing is written then.
void PrintTo(const std::filesystem::path& file, const std::filesystem::path& adventure,
             const std::string& report, bool force);

}  // namespace fabula::ide
