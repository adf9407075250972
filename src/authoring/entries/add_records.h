#pragma once

#include "authoring/document/screen_context.h"
#include "condacts/numbers.h"

namespace fabula::authoring {

// What Add entry adds without a screen of its own. Each is one change; questions and refusals go through
// the context's dialogs.

/// Adds the next 25 flags, when the author agrees.
void AddFlags(ScreenContext& context);

/// Asks for a name and adds a character set under it, a copy of the font of set 0.
void AddCharacterSet(ScreenContext& context);

/// Adds the picture of a location, empty as yet, as part of the latest change. Nothing happens without
/// graphics, without the location, or when it has a picture.
void AddPictureOf(ScreenContext& context, condacts::PlaceNumber location);

}  // namespace fabula::authoring
