#pragma once

#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"
#include "condacts/words.h"
#include "store/adventure.h"

namespace fabula::condacts {

// What the language needs, read from an adventure as it is now. Nothing follows later changes: read again
// after them. No cursor is touched, so that a screen may call these while it stands on a record.

Catalogue LoadCatalogue(store::Adventure& adventure);

/// The vocabulary in its default order.
WordIndex LoadWords(store::Adventure& adventure);

/// Everything that ValidateCondActs asks, the words included.
Facts LoadFacts(store::Adventure& adventure);

}  // namespace fabula::condacts
