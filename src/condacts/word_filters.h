#pragma once

#include <initializer_list>
#include <span>
#include <string>

#include "condacts/words.h"

namespace fabula::condacts {

/// A filter of the vocabulary: the words of one of these types, "(voctypen=0 or voctypen=2)".
std::string OfWordTypes(std::span<const WordType> types);
std::string OfWordTypes(std::initializer_list<WordType> types);

/// The words of the kEntryVerbTypes.
std::string OfEntryVerbs();

/// All words but the reserved ones.
std::string ButReserved();

}  // namespace fabula::condacts
