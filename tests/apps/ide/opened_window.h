#pragma once

#include <QSettings>
#include <memory>

#include "ide/main_window.h"
#include "platform/manual_timers.h"
#include "platform/random_source.h"
#include "platform/scripted_dialogs.h"
#include "support/game_builder.h"
#include "support/temp_folder.h"

namespace fabula::test {

/// The window of the authoring tool on the offscreen screen, with a folder, settings, a clock and boxes of
/// its own. It is shown and given keys as a person would.
class OpenedWindow {
  public:
    OpenedWindow();
    ~OpenedWindow();

    ide::MainWindow& Window() const { return *window_; }

    TempFolder folder;
    platform::ManualTimers timers;
    platform::ScriptedDialogs dialogs;
    RecordingSound sound;
    platform::SeededRandom random{1};

  private:
    QSettings settings_;
    std::unique_ptr<ide::MainWindow> window_;
};

}  // namespace fabula::test
