#pragma once

#include <optional>
#include <string_view>

#include "authoring/document/screen_context.h"
#include "authoring/entries/deletion.h"
#include "authoring/settings/settings_followup.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// The screens that edit one record.
enum class Screen {
    Location,      ///< LocationScreen
    Object,        ///< ObjectScreen
    Word,          ///< WordScreen
    Text,          ///< MessageScreen: a message, a system message, the description of a process table
    Flag,          ///< FlagScreen
    ProcessEntry,  ///< ProcessEntryScreen
    Settings,      ///< SettingsScreen
    Picture,       ///< PictureEditor
    Character,     ///< CharacterEditor
};

/// A screen that the window is to open, and what `Entries::AfterScreen` needs when it has closed.
struct ScreenRequest {
    Screen screen = Screen::Location;
    ScreenKey key = {};
    store::TableNum table = store::TableNum::Locations;  ///< whose record it is
    /// Of a process entry: the key of the one that the new one goes before.
    std::optional<int> before = std::nullopt;
    SettingsBefore settings = {};
};

/// Add entry, Add entry before, Edit entry and Delete entry, on the table and the record that the context
/// stands on (`currentTable`, `currentEntry`, `currentESNum`). They number new records, keep the limits of
/// the adventure's type, and do to the other tables what a deletion asks for. Questions, refusals and
/// reports go through the context's dialogs; what is refused changes nothing. Each command is one step of
/// Undo, the work of its screen included.
///
/// What they change stands in the tables only: afterwards open the grid's cursor again. They keep
/// `nextEntry` and `nextWord` right. They leave `currentEntry` and `currentESNum` alone, except where the
/// first process entry of all is added: then the entry is 0 and the process in view becomes 2.
class Entries {
  public:
    explicit Entries(ScreenContext& context) : context_(context) {}

    /// The screen to open, or nullopt: refused, or there is nothing more to do (flags and character sets
    /// are added without a screen).
    std::optional<ScreenRequest> AddEntry();
    /// The same for a process entry that is to stand before the current one. For other tables nullopt.
    std::optional<ScreenRequest> AddEntryBefore();
    std::optional<ScreenRequest> EditEntry();

    /// The same for a pane beside the records, which tells nothing where there is nothing to be edited;
    /// nullopt too for pictures, characters and the settings, whose editors need a window of their own.
    std::optional<ScreenRequest> RecordBeside();

    /// To be called when a screen has closed, whether it stored something or not. False when the program
    /// has to end, since character sets were switched; the author has been told.
    bool AfterScreen(const ScreenRequest& request);

    /// Asks first, and before that `before`. True when the record is gone.
    bool DeleteEntry(const BeforeDelete& before = [](const Deletion&) { return true; });

  private:
    ScreenContext& context_;
};

}  // namespace fabula::authoring
