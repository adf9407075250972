#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fabula::text {

// Texts that hold several values between delimiters, and searching in texts. Positions and lengths count
// code points; matches are exact, byte for byte. A delimiter may be several characters long; an empty one
// occurs nowhere.

/// Piece number `index`, counting from 0, of `text` split at `delimiter`. Beyond the last piece it gives
/// the delimiter itself, and callers test for that; when the delimiter is the NUL character it gives the
/// empty text instead. The empty text has one piece, the empty one. Each call splits anew: a loop over all
/// pieces of a long text uses Split. Throws std::invalid_argument for a negative index.
std::string GetField(int index, std::string_view delimiter, std::string_view text);

/// All pieces, in one pass, as views into `text`; at least one.
std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter);

/// The number of places where `delimiter` occurs, overlapping ones included: the highest index for GetField
/// when the delimiter can't overlap itself.
int CountOccurrences(std::string_view text, std::string_view delimiter);

/// The index of the first piece of `list` that equals `word`, or -1.
int FieldIndex(std::string_view word, std::string_view delimiter, std::string_view list);

/// `length` characters of `text` from position `start`, counting from 1; all the rest when `length` is
/// negative. Throws std::invalid_argument when `start` is below 1.
std::string MidText(std::string_view text, int start, int length = -1);

/// The number of characters of `text` before the first match of `needle` that begins at or after position
/// `start` (from 1), counted from the start of the text; the length of `text` when there is none. Throws
/// std::invalid_argument when `start` is below 1.
int FindText(std::string_view needle, std::string_view text, int start = 1);

/// True when FindText gives something else than the length of `text`.
bool ContainsText(std::string_view needle, std::string_view text, int start = 1);

}  // namespace fabula::text
