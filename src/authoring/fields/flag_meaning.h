#pragma once

#include <string>
#include <string_view>

#include "condacts/language/catalogue.h"
#include "condacts/language/held_numbers.h"

namespace fabula::authoring {

/// What the number in a flag names, of the flags for which the lines of entries have a word or two of their
/// own: "verb", "prompt". nullptr for all others.
const condacts::HeldNumber* FindNamedNumber(condacts::FlagNumber flag);

/// A flag as the lines of an entry name it: what it holds, or the first clause of its description. "" for a
/// description that says nothing.
std::string FlagName(condacts::FlagNumber flag, std::string_view description);

/// Whether a condition or action compares a flag with a value, or puts one into it, so that the value
/// stands for what the flag holds.
bool TakesWhatFlagHolds(const condacts::CondAct& condAct);

}  // namespace fabula::authoring
