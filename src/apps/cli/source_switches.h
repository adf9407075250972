#pragma once

#include <filesystem>

#include "interchange/file_kinds.h"
#include "references/lint/lint.h"

namespace fabula::cli {

/// Adds what the comments of a source switch off: those with the words "lint off CODE", in linked files
/// too. Only the sources of the PC engine and its sibling have comments. One that names no finding is told
/// on standard error, with its place. Throws fabula::Error when the source can't be read.
void AddSwitchesOfSource(const interchange::FileKind& kind, const std::filesystem::path& source,
                         references::LintSwitches& switches);

}  // namespace fabula::cli
