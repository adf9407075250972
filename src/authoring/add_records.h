#pragma once

#include "authoring/session.h"

namespace fabula::authoring {

// What Add entry adds without a screen of its own. Each is one change; questions and refusals go through
// the session's dialogs.

/// Adds the next 25 flags, when the author agrees.
void AddFlags(Session& session);

/// Asks for a name and adds a character set under it, a copy of the font of set 0.
void AddCharacterSet(Session& session);

/// Adds the picture of a location, empty as yet, as part of the latest change. Nothing happens without
/// graphics, without the location, or when it has a picture.
void AddPictureOf(Session& session, int location);

}  // namespace fabula::authoring
