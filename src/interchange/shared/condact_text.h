#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "condacts/language/convert.h"

namespace fabula::interchange {

// The conditions and actions of older games, line by line, turned into the text form of this system. A name
// that the catalogue does not hold ends the line: `ok` is false and `errors` has the message.

/// A line of a PC source. Behind a name "_" becomes 252, CARRIED 254, HERE 255 and WORN 253; the parameter
/// of a word condition is a word and stays.
condacts::Converted ConvertCAs(std::string_view text, const condacts::Catalogue& catalogue);

/// A line of an UnVel listing, where the parameter of a word condition is a number: it becomes the word.
condacts::Converted ConvertUnVelCAs(std::string_view text, const condacts::Catalogue& catalogue,
                                    const condacts::WordIndex& words);

/// The word of a number: "_" for 255, nothing when the vocabulary has none of the type.
std::optional<std::string> ConvExtLogs(condacts::WordType wordType, condacts::WordNumber number,
                                       const condacts::WordIndex& words);

}  // namespace fabula::interchange
