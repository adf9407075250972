#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::pictures {

/// A drawstring is the program of a picture: one line of words with a blank between two. Each command is a
/// word of the catalogue followed by as many parameters as the catalogue says; the last word is END.

/// The words of a drawstring as they are read everywhere: control characters are blanks, and blanks at the
/// ends and beyond one between words don't count. An empty text has no words.
std::vector<std::string> DrawstringWords(std::string_view drawstring);

/// The pieces of `text` between single blanks, none for an empty text.
std::vector<std::string> SplitAtBlanks(std::string_view text);

/// The words with one blank between two.
std::string JoinWords(const std::vector<std::string>& words);

/// Beyond this a number in a drawstring counts as this: far outside every range of the language, and small
/// enough for all that is computed from it.
inline constexpr int kLargestNumber = 32767;

/// The value of a parameter: decimal digits with an optional sign; nullopt when it is anything else.
std::optional<int> ParameterValue(std::string_view word);

}  // namespace fabula::pictures
