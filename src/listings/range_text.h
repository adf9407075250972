#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/adventure.h"

namespace fabula::listings {

/// What the text of a range came to: the numbers in the order of the text, or why it is none.
struct RangeCheck {
    std::vector<int> numbers;
    std::string fault;  ///< empty when the text is a range

    bool Passed() const { return fault.empty(); }
};

/// Checks the text that tells what of a table to list, blanks ignored:
///
///     ProcessTables  numbers and ranges "1,3-5,9", "3-" for all from 3, or ALL; each counts once. What
///                    has no record is left out. `special` is a listing of the entries for two words,
///                    of one table
///     Flags          how many flags are listed beyond the first 60; an empty text gives no number
///     Pictures       as process tables, but not all of them
///     Vocabulary     types of words, as process tables; an empty text is all of them
///     ProcDesc       any text
///
/// Other tables take no text; one gives no numbers. Throws fabula::Error when the adventure can't be read.
RangeCheck ValidateRange(std::string_view text, store::TableNum table, store::Adventure& adventure,
                         bool special = false);

}  // namespace fabula::listings
