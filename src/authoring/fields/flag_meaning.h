#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "condacts/catalogue.h"
#include "condacts/numbers.h"
#include "condacts/words.h"

namespace fabula::authoring {

/// A flag of the engine whose numbers stand for something.
struct HeldNumbers {
    condacts::FlagNumber flag;
    std::string_view name;  ///< what the flag holds, in a word or two: "verb"
    condacts::ParamKind kind = condacts::ParamKind::Word;
    condacts::WordType wordType = condacts::kVerb;  ///< of words
};

/// What the engine keeps in a flag; nullptr for flags that hold plain values.
const HeldNumbers* FindHeldNumbers(condacts::FlagNumber flag);

/// A flag as the lines of an entry name it: what it holds, or the first clause of its description. "" for a
/// description that says nothing.
std::string FlagName(condacts::FlagNumber flag, std::string_view description);

/// Whether a condition or action compares a flag with a value, or puts one into it, so that the value
/// stands for what the flag holds.
bool TakesWhatFlagHolds(const condacts::CondAct& condAct);

}  // namespace fabula::authoring
