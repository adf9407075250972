#pragma once

#include "text/tag_catalogue.h"

namespace fabula::store {

class Adventure;

/// The tags of an adventure's markup and the numbers that their values may name, read from `Codes` and,
/// where the adventure uses character sets, from `Characters`.
text::TagCatalogue LoadTagCatalogue(Adventure& adventure);

}  // namespace fabula::store
