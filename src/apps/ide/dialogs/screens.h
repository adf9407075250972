#pragma once

#include <functional>
#include <string>
#include <vector>

#include "authoring/document/screen_context.h"
#include "authoring/entries/entries.h"
#include "engine/sound_player.h"

class QWidget;

namespace fabula::ide {

/// What the settings try the sound with.
struct SoundTest {
    engine::SoundPlayer& player;
    std::function<std::vector<std::string>()> devices;  ///< the names of the system's MIDI devices
};

/// Shows the dialog of a screen, but for pictures and characters, until the author leaves it. What was
/// stored is in the adventure then. Throws fabula::Error when the record can't be read.
void OpenScreen(const authoring::ScreenRequest& request, authoring::ScreenContext& context,
                const SoundTest& sound, QWidget* parent);

}  // namespace fabula::ide
