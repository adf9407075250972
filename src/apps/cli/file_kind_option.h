#pragma once

#include <string>

#include "interchange/file_kinds.h"

namespace fabula::cli {

/// The words of the kinds of files that can be read, or written: "pcvel, fabula, ace".
std::string ReadableKinds();
std::string WritableKinds();

/// The kind that a word names. Throws UsageError for any other word.
const interchange::FileKind& ReadableKind(const std::string& word);
const interchange::FileKind& WritableKind(const std::string& word);

}  // namespace fabula::cli
