#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Corrections of the settings: whether a file needs one, and the one. They throw fabula::Error.

/// Ink, paper or font are numbers that stand for none.
bool HasOldLook(Work& work);
void RenewLook(Work& work, const Step& step);
/// The type is "Unknwn", as in files that were never classified.
bool HasUnknownType(Work& work);
/// Stores what was chosen, or what AdventureSetup makes of the file.
void SetType(Work& work, const Step& step);

}  // namespace fabula::upgrades
