#pragma once

#include "authoring/entries.h"
#include "authoring/session.h"

class QWidget;

namespace fabula::ide {

/// Shows the dialog of a screen until the author leaves it. What was stored is in the adventure then. False
/// when this version has no dialog for the screen. Throws fabula::Error when the record can't be read.
bool OpenScreen(const authoring::ScreenRequest& request, authoring::Session& session, QWidget* parent);

}  // namespace fabula::ide
