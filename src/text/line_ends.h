#pragma once

#include <string>
#include <string_view>

namespace fabula::text {

/// The one character that stored texts hold for a new line: code point 140.
inline constexpr std::string_view kLineEndMarker = "\u008C";

/// The blank that neither breaks nor collapses: code point 127.
inline constexpr std::string_view kHardSpace = "\x7F";

/// The line end of listings and exported files.
inline constexpr std::string_view kLineEnd = "\r\n";

/// The text with every "\r\n", lone "\n" and lone "\r" turned into `lineEnd`. Line-end markers stay as they
/// are.
std::string NormalizeLineEnds(std::string_view text, std::string_view lineEnd);

}  // namespace fabula::text
