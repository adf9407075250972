#pragma once

#include "authoring/document/screen_context.h"
#include "authoring/entries/entries.h"
#include "platform/settings.h"

class QWidget;

namespace fabula::ide {

/// Shows the dialog of a picture or a character until the author leaves it; false for another screen.
/// `settings` are the author's own. Throws fabula::Error when the record can't be read.
bool OpenDrawingScreen(const authoring::ScreenRequest& request, authoring::ScreenContext& context,
                       platform::Settings& settings, QWidget* parent);

}  // namespace fabula::ide
