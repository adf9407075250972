#pragma once

#include "condacts/words.h"

namespace fabula::store {
class Cursor;
}

namespace fabula::condacts {

/// Gives a record of the vocabulary what a word says: spelling, number and type. Its key stays as it is.
void SetWord(store::Cursor& record, const Word& word);

}  // namespace fabula::condacts
