#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/random_source.h"

namespace fabula::text {

/// Applies the keywords of `editList`, separated by commas, from left to right, each to the result of the
/// one before. Case is ignored; an unknown keyword changes nothing. The usual list is "compress,trim".
///
///     LOWERCASE, UPCASE
///     TRIM                    removes leading and trailing blanks
///     COLLAPSE, COMPRESS      CollapseText, CompressText
///     SCRAMBLE, UNSCRAMBLE    ScrambleText modes 0 and 1
///     SCRAMBLEC, UNSCRAMBLEC  modes 2 and 3, also called ENCODE and UNENCODE
///     CRYPT, UNCRYPT          modes 4 and 5, also called SCRAMBLERR and UNSCRAMBLERR
///
/// CRYPT draws a shift, so it needs the overload with a random source and a clock: without them it throws
/// std::invalid_argument.
std::string StrEdit(std::string_view text, std::string_view editList);
std::string StrEdit(std::string_view text, std::string_view editList, platform::RandomSource& random,
                    const platform::Clock& clock);

/// The text with every run of blanks, control characters and characters from 127 up turned into one blank.
/// A blank at either end stays.
std::string CompressText(std::string_view text);

/// The text with every run of white space, control characters, line-end markers and hard spaces turned into
/// one blank. Letters beyond ASCII stay, as words of a game need them.
std::string CollapseBlanks(std::string_view text);

/// The text without every character that is not in the range 33 to 125.
std::string CollapseText(std::string_view text);

/// The text without the blanks at its ends; no other white space is taken for a blank. A view into `text`.
std::string_view TrimBlanks(std::string_view text);
/// The same as a text of its own.
std::string Trimmed(std::string_view text);

/// The text with every `from`, found from left to right without overlap, replaced by `to`. An empty `from`
/// occurs nowhere.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace fabula::text
