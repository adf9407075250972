#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/words.h"

namespace fabula::condacts {

/// A line turned from one form into the other. When something did not fit, `ok` is false, `errors` says
/// what, `faultyToken` is the first token of the given line that did not fit, counted from 0, and `line`
/// holds what could be turned: it is not the other form of the given line then, and nobody may store it as
/// such.
struct Converted {
    std::string line;
    bool ok = true;
    std::string errors;
    std::size_t faultyToken = 0;
};

/// Whether a parameter may be given by NOTCR, WORN, CARRIED or HERE.
bool AdmitsLocationWords(const Parameter& parameter);

/// Replaces NOTCR, WORN, CARRIED and HERE by their numbers where a parameter admits them. The tokens come
/// back separated by single blanks; a line that holds an unknown name is changed only up to it.
std::string LocationWordsToNumbers(std::string_view line, const Catalogue& catalogue);

/// The numeric form of a line: each name by its number, each word by that of the word it names
/// (`WordIndex::FindAsked`). Location words must have been replaced before.
Converted CondActsToNumeric(std::string_view line, const Catalogue& catalogue, const WordIndex& words);

/// The text form of a numeric line, with location words where a parameter admits them, so that the text
/// compiles to the same numbers.
Converted NumericToCondActs(std::string_view numericLine, const Catalogue& catalogue,
                            const WordIndex& words);

}  // namespace fabula::condacts
