#pragma once

#include <string>
#include <string_view>

namespace fabula::text {

// Game texts come from strangers, and terminals and widgets obey what they are sent. Nothing that they
// would obey goes on from here: a control character, a separator of lines or a byte that is no UTF-8
// becomes U+FFFD, a tab a blank. So does a character that turns the direction of what follows (embedding,
// override or isolate), by which a text could show itself as another; the marks of direction that Hebrew
// and Arabic need stay.

/// The sign for what can't be shown: a user-defined character of a character set.
inline constexpr char32_t kPlaceholder = U'\u25A1';

/// Appends a text, made safe.
void AppendSafe(std::string_view text, std::string& shown);

/// A report of several lines, made safe: its line ends ("\n") stay.
std::string SafeLines(std::string_view text);

/// Whether a character is one of those that AppendSafe replaces or changes.
bool IsObeyed(char32_t point);

/// Appends a run of a character pane, made safe: its characters by their numbers. 96 is the pound sign, 127
/// the copyright sign, 128 to 143 are block graphics (bit 0 the upper right quarter, bit 1 the upper left,
/// bit 2 the lower right, bit 3 the lower left), 144 to 164 the user-defined ones.
void AppendCharacters(std::string_view codes, std::string& shown);

/// The columns that a character takes in a terminal: 0 to 2.
int DisplayWidth(char32_t character);

}  // namespace fabula::text
