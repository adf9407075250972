#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace fabula::text {

// Files of one byte a character are Windows-1252. They are converted where they are read and written, and
// nowhere else. The five bytes without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the code points
// of the same number. The line-end marker has no byte, because 0x8C is the letter OE: who writes a file
// replaces the markers first.

/// Every byte string is a text in Windows-1252.
std::string FromWindows1252(std::string_view bytes);

/// A text as bytes of one each, as far as it can be written so.
struct Windows1252 {
    std::string bytes;  ///< what comes before the first character that can't be written
    std::optional<std::size_t>
        unwritable;  ///< that character's place in the text, counted from 0; nothing if all can
};

Windows1252 ToWindows1252(std::string_view text);

}  // namespace fabula::text
