#pragma once

#include "upgrades/step.h"

namespace fabula::upgrades {

// Corrections of flags and of their uses. The built-in flags once had the numbers 256 to 275.

bool LacksFlag275(Work& work);
/// Adds them under their old numbers, from where they are moved on.
void AddOldFlags(Work& work, const Step& step);
bool HasSystemFlag260(Work& work);
/// Moves those that are built in, with their uses in rules, and adds what then is missing up to 1024.
/// Records that an author made under these numbers stay.
void MoveFlags(Work& work, const Step& step);
bool HasSystemFlag28Or255(Work& work);
void FreeFlags28And255(Work& work, const Step& step);

bool IsFlagMoveOpen(Work& work);
/// Reports the entries that use flags 256 to 275; without one, the move is done.
void CheckFlagUses(Work& work, const Step& step);
/// The author has dealt with the entries that were reported.
void CloseFlagMove(store::Adventure& adventure);

}  // namespace fabula::upgrades
