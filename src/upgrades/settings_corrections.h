#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Corrections of the settings.

bool HasOldLook(Work& work);
void RenewLook(Work& work, const Step& step);
bool HasUnknownType(Work& work);
void SetType(Work& work, const Step& step);

}  // namespace fabula::upgrades
