#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/adventure.h"

namespace fabula::listings {

/// A template for the keypad is a drawing in letters, to be cut out and laid on the keys: a text file with
/// the extension ".tpl", or a record of `Templates` with the same words in one line.
///
/// A line of the file that begins with "!" is a comment. The rest are pairs of words. A count above 0 puts
/// so many copies of what follows into the line that is being built: a sign, or the code of one in two or
/// more digits. A count of 0 prints the line as often as the number behind it says, and empties it.

/// The largest file that is read, in bytes, and the most that a template may draw.
inline constexpr std::uintmax_t kLargestTemplate = 64 * 1024;
inline constexpr std::size_t kWidestTemplate = 200;
inline constexpr std::size_t kLongestTemplate = 1000;

/// The lines that a template draws. `words` are those of the record, or of the file without its comments.
/// Throws fabula::Error, naming the template, when the words are no template.
std::vector<std::string> DrawTemplate(std::string_view words, std::string_view name);

/// The words of a file's text, with one blank between two; comments are left out.
std::string TemplateWords(std::string_view text);

/// The lines that the file `folder`/`name`.tpl draws, and those of the record of that name. Throws
/// fabula::Error: the name and " is not available" when there is none.
std::vector<std::string> DrawTemplateFile(const std::filesystem::path& folder, const std::string& name);
std::vector<std::string> DrawTemplateRecord(store::Adventure& adventure, const std::string& name);

}  // namespace fabula::listings
