#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

/// Whether the default data is another than the file last took.
bool HasOtherDate(Work& work);

/// Takes over from the default data what belongs to the program and not to the author: settings of fields,
/// texts of the built-in flags, bounds and pages of conditions, fonts, routines of drawing commands, tags
/// and new templates; and brings descriptions from before the markup into it.
void RefreshCatalogues(Work& work, const Step& step);

}  // namespace fabula::upgrades
