#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Corrections of texts and of rules.

bool SaysAnyKey(Work& work);
void SayEnter(Work& work, const Step& step);
bool HasLocationWords(Work& work);
void NumberLocationWords(Work& work, const Step& step);
bool HasForeignLineEnds(Work& work);
void NormaliseLineEnds(Work& work, const Step& step);
bool HasOldSeparators(Work& work);
void RenewSeparators(Work& work, const Step& step);

bool HasOtherExportVersion(Work& work);
/// Reports the descriptions that are not valid.
void CheckDescriptions(Work& work, const Step& step);

}  // namespace fabula::upgrades
