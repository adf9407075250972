#pragma once

#include <string>
#include <string_view>

#include "condacts/catalogue.h"
#include "condacts/words.h"

namespace fabula::condacts {

/// A line turned from one form into the other. When something did not fit, `ok` is false, `errors` says
/// what, and `line` holds what could be turned.
struct Converted {
    std::string line;
    bool ok = true;
    std::string errors;
};

/// Replaces NOTCR, WORN, CARRIED and HERE by their numbers where a parameter admits them. The tokens come
/// back separated by single blanks; a line that holds an unknown name is changed only up to it.
std::string LocationWordsToNumbers(std::string_view line, const Catalogue& catalogue);

/// The numeric form of a line: each name by its number, each word by its own. Words are looked up by their
/// first five letters, whatever the type of the adventure. Location words must have been replaced before.
Converted CondActsToNumeric(std::string_view line, const Catalogue& catalogue, const WordIndex& words);

/// The text form of a numeric line, with location words where a parameter admits them, so that the text
/// compiles to the same numbers.
Converted NumericToCondActs(std::string_view numericLine, const Catalogue& catalogue,
                            const WordIndex& words);

}  // namespace fabula::condacts
