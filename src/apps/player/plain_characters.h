#pragma once

#include <string>
#include <string_view>

namespace fabula::player {

// A game's texts come from strangers. What would break a line or steer a widget (control characters, line
// and paragraph separators, bytes that are no UTF-8) becomes U+FFFD, a tab a blank.

/// An ordinary text, made safe.
std::string PlainText(std::string_view text);

/// A run of the character pane in ordinary characters: 96 is the pound, 127 the copyright sign, 128 to 143
/// are block graphics (bit 0 the upper right quarter, bit 1 the upper left, bit 2 the lower right, bit 3
/// the lower left), and user-defined graphics become a small square.
std::string PlainCharacters(std::string_view run);

}  // namespace fabula::player
