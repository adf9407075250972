#pragma once

#include <string>

#include "authoring/document/screen_context.h"
#include "authoring/entries/deletion.h"

namespace fabula::authoring {

/// Deletes the word with this `vocindex`, as one change, after asking. When no word of its number and type
/// is left, what stood on it goes too, if the author agrees: objects lose the word, and the process entries
/// and the exits that use it are deleted. A report tells how many.
///
/// An entry or an exit stays when it can still be used by another word: a verb, or a noun that moves the
/// player, of the spelling and the number that stand in it. `before` is told what that would be. True when
/// the word is gone.
bool DeleteWord(ScreenContext& context, int vocindex, const BeforeDelete& before);

}  // namespace fabula::authoring
