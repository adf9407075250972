#pragma once

#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/numbers.h"
#include "condacts/words.h"

namespace fabula::condacts {

/// What the number in a flag of the engine names: flag 38 a location.
struct HeldNumber {
    FlagNumber flag;
    ParamKind kind = ParamKind::Word;
    WordType wordType = kVerb;  ///< of words; where it is kVerb, a noun may stand in for a verb
};

/// nullptr for flags that hold plain values.
const HeldNumber* FindHeldNumber(FlagNumber flag);

/// How a condition or action takes the number behind a flag: for the same thing as what the flag holds,
/// which it is compared with or given ("EQ 38 5", "LET 38 5"), or for a border between others ("GT 38 5").
enum class TakesNumber { No, AsTheSame, AsABorder };
TakesNumber TakesNumberOfFlag(std::string_view condAct);

}  // namespace fabula::condacts
