#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fabula::text {

// Every text is UTF-8 in a std::string. The routines below count, cut, pad and compare by
// code point. Nothing is ever lost: a byte that is no part of valid UTF-8 (an overlong form, a surrogate, a
// number above U+10FFFF or a sequence cut short included) counts as one code point of its own and comes out
// again as it went in.

/// A byte `b` that is no part of valid UTF-8 decodes to `kBadByte + b`, above every real code point.
inline constexpr char32_t kBadByte = 0x110000;

/// A character as it stands in a text.
struct CodePoint {
    char32_t value;    ///< a Unicode scalar value, or kBadByte plus the byte
    std::size_t size;  ///< the bytes it takes in the text, 1 to 4
};

/// The code point that begins at byte `offset`, which must lie inside the text and not inside a code point.
CodePoint DecodeAt(std::string_view text, std::size_t offset);

/// Adds a code point that DecodeAt gave, or any Unicode scalar value.
void AppendCodePoint(std::string& text, char32_t value);

/// The whole text as code points, and back.
std::u32string Decode(std::string_view text);
std::string Encode(std::u32string_view points);

/// True when the text holds no bad byte.
bool IsValidUtf8(std::string_view text);

/// How many bytes a character takes that begins with this byte, 1 to 4; 1 for a byte that can't begin one.
std::size_t SequenceLength(char first);

/// Where the character that goes over byte `at` begins, and where the next one does: `at` itself where one
/// begins there, and at the end of the text. For cuts at a number of bytes.
std::size_t CharacterStart(std::string_view text, std::size_t at);
std::size_t NextCharacterStart(std::string_view text, std::size_t at);

/// The number of code points.
std::size_t Length(std::string_view text);

/// The byte at which code point number `index`, counting from 0, begins; the size of the text when it has
/// fewer.
std::size_t OffsetOf(std::string_view text, std::size_t index);

/// The first `count` code points, or the last; the whole text when it has fewer. Views into `text`.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);

/// The text with blanks added behind it until it is `width` code points long. A longer text is not cut.
std::string PadRight(std::string_view text, std::size_t width);

/// Lower and upper case, one code point for one, in every script that has them.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Below, at or above 0 as `left` comes before, with or after `right` when both are in lower case; code
/// points order by number. The order of the filter language.
int CompareNoCase(std::string_view left, std::string_view right);

/// True when CompareNoCase gives 0.
bool EqualsNoCase(std::string_view left, std::string_view right);

}  // namespace fabula::text
