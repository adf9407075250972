#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "authoring/desk/search/navigator.h"
#include "authoring/document/screen_context.h"
#include "authoring/entries/entries.h"
#include "engine/sound_player.h"
#include "ide/dialogs/records/record_editor.h"

class QDialog;
class QWidget;

namespace fabula::ide {

/// What the settings try the sound with.
struct SoundTrial {
    engine::SoundPlayer& player;
    std::function<std::vector<std::string>()> devices;  ///< the names of the system's MIDI devices
};

/// A record in its dialog, which is not shown yet.
class OpenedRecord {
  public:
    virtual ~OpenedRecord() = default;
    virtual QDialog& Dialog() = 0;
    virtual RecordEditor& Editor() = 0;
    /// Goes on to another record of the same table: for a dialog that nobody has touched, while the
    /// adventure is as it was. Throws fabula::Error when the record can't be read.
    virtual void GoTo(int key) = 0;
};

/// Opens the screen of a record of which a pane is to show the dialog; nullptr for settings, pictures and
/// characters. Throws fabula::Error when the record can't be read.
std::unique_ptr<OpenedRecord> OpenRecord(const authoring::ScreenRequest& request,
                                         authoring::ScreenContext& context);

/// Shows the dialog of a screen, but for pictures and characters, until the author leaves it. What was
/// stored is in the adventure then. Gives the place that the author left it for by F12 or Shift+F12. Throws
/// fabula::Error when the record can't be read.
std::optional<authoring::Jump> OpenScreen(const authoring::ScreenRequest& request,
                                          authoring::ScreenContext& context, const SoundTrial& sound,
                                          authoring::Navigator& navigator, QWidget* parent);

}  // namespace fabula::ide
