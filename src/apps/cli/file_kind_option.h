#pragma once

#include <string>
#include <string_view>

#include "interchange/file_kinds.h"

namespace fabula::cli {

/// The words of the kinds of files that can be read, or written, or whose pictures can be loaded by
/// themselves: "pcvel, fabula, ace".
std::string ReadableKinds();
std::string WritableKinds();
std::string PictureKinds();

/// The kind that a word names. Throws UsageError for any other word; `option` is what the word stands at.
const interchange::FileKind& ReadableKind(const std::string& word);
const interchange::FileKind& WritableKind(const std::string& word, std::string_view option = "the kind");
const interchange::FileKind& PictureKind(const std::string& word);

}  // namespace fabula::cli
