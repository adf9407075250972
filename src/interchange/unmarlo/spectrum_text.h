#pragma once

#include <string>
#include <string_view>

namespace fabula::interchange {

/// One text of an UnMarlo listing as description markup. The text begins with its line number, six
/// characters, which go. `version` is that of the decompiler: the layout of "0.8.2" is made anew by
/// ConvertTabs.
///
/// Kept from the older importer: the number of a "<TABn>" is read right only where it is the first tag of
/// the text. A tab of more than 255 blanks counts as one of 255.
std::string ConvertUnMarloDesc(std::string_view text, std::string_view version);

/// Sets a text in 32 columns, as the older machine did, with line-end markers where a line is full. Tags
/// take no room, but for "<TAB>", which goes to column 16 or to a new line. Tags of no known kind go.
///
/// Kept from the older importer: what of a word neither fits into the rest of its line nor into as many
/// columns of the next as that line had filled is lost.
std::string ConvertTabs(std::string_view text);

/// Takes the tags off the start of `word` and gives those that stay; `column` follows a "<TAB>".
std::string ProcessTag(std::string_view& word, int& column);

}  // namespace fabula::interchange
