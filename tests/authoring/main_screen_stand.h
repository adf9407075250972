#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "authoring/desk/main_screen.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/settings.h"
#include "store/setup.h"
#include "support/doubles/scripted_dialogs.h"
#include "support/temp_folder.h"

namespace fabula::test {

/// The main window's logic in a test: scripted boxes, settings in memory, a clock that stands, and a folder
/// for adventures.
class MainScreenStand {
  public:
    explicit MainScreenStand(bool maintenance = false);

    /// A fresh adventure in the folder, not open.
    std::filesystem::path Make(const char* name, store::AdventureKind kind = store::AdventureKind::Fabula,
                               bool charSets = false);
    /// The same, opened.
    void OpenNew(store::AdventureKind kind = store::AdventureKind::Fabula);
    /// Ends the program and starts it again.
    void Restart();

    /// Stores a message as a screen does.
    void StoreMessage(int number, const std::string& text);
    /// Adds a message by the command, its screen included.
    void AddMessage(const std::string& text);

    store::Adventure& Adventure() { return main->CurrentContext().document.Adventure(); }
    std::vector<std::string> Boxes() const;
    std::string Setting(const char* key) const { return settings.Get("Startup", key); }

    TempFolder folder;
    platform::ScriptedDialogs dialogs;
    platform::MemorySettings settings;
    platform::FixedClock clock{{2026, 3, 9, 10, 30, 0}};
    platform::NoEvents events;
    authoring::IdePaths paths;
    std::unique_ptr<authoring::MainScreen> main;

  private:
    bool maintenance_;
};

}  // namespace fabula::test
