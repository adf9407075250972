#pragma once

#include <span>
#include <string>
#include <string_view>

namespace fabula::authoring {

/// What an author can tell the main window to do. Menus, tool bar and keys all lead here.
enum class Command {
    // File
    New,
    Open,
    SaveAs,
    Restore,  ///< a backup copy in place of the adventure
    Close,
    Import,         ///< a source file as a new adventure
    ImportGraphic,  ///< one picture of a listing into a record
    Export,
    Decompile,
    BatchImport,
    BatchExport,
    Package,
    Print,
    Preview,
    Exit,
    // Edit
    Undo,
    Redo,
    Add,
    AddBefore,
    Edit,
    Delete,
    Load,
    Save,
    Find,
    FindNext,
    Filter,
    Sort,
    Replace,
    GoToAnything,
    GoToNamed,
    Uses,
    Back,
    Forward,
    Renumber,
    // View
    GroupByVerb,
    GroupByPlace,
    GroupByObject,
    FoldAll,
    UnfoldAll,
    UsesColumn,
    OpenInTab,
    NextTab,
    PreviousTab,
    CloseTab,
    // Game
    Run,
    Trace,  ///< whether a test is traced; switched on and off
    Verify,
    Findings,
    Settings,
    // Tools
    CharacterTable,  ///< a whole character set at a glance
    LastRecordKeys,
    ShortDescriptions,
    KeyChange,
    TravelTable,
    Palette,
    // Help
    Help,
    HelpContents,
    AboutAdventure,
    About,
};

/// The menus, in the order of the menu bar. View has the tree's nodes and what the window itself offers
/// (theme, panes) besides its commands.
enum class Menu { File, Edit, View, Game, Tools, Help };

/// The menu's name with its mnemonic: "&File".
std::string_view NameOf(Menu menu);

/// A command as the windows show it.
struct CommandEntry {
    /// Where it is shown besides its menu, and how.
    enum class Use {
        Menu,
        ToolBar,  ///< in the tool bar too, in the order of the table
        Switch,   ///< in the menu, as something that is on or off
    };

    Command id;
    std::string_view key;  ///< its name in the tool bar, in tests and for widgets: "NewTab"
    Menu menu;
    int group;                  ///< in its menu; a line is drawn between two groups
    std::string_view text;      ///< of the menu, with its mnemonic; three dots when it asks for more
    std::string_view shortcut;  ///< "Ctrl+N"; "" for none
    std::string_view icon;      ///< the icon's name
    std::string_view tip;       ///< what it does, for the tool tip
    Use use = Use::Menu;
};

/// All commands in the order of their menus.
std::span<const CommandEntry> AllCommands();

const CommandEntry& EntryOf(Command command);

/// How a command stands at the moment.
struct ActionState {
    bool enabled = false;
    bool checked = false;  ///< of switches
    std::string text;      ///< with the record's name and the key that gives it: "Add Location (CTRL/N)"
    std::string menuText;  ///< for a menu, which shows the key itself: "&Add Location"
    std::string why;       ///< when it is not enabled: the reason, a sentence

    friend bool operator==(const ActionState&, const ActionState&) = default;
};

}  // namespace fabula::authoring
