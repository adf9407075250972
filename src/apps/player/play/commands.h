#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace fabula::player {

class PlayedGame;

/// What a player can tell the window to do, beside playing. Menus, tool bar and keys all lead here.
enum class Command {
    Open,
    Save,
    Restore,
    Exit,
    Undo,
    Stop,
    StartAgain,
    Next,
    Sound,
    Transcript,
    Debug,
    Find,
    FindNext,
    FindBefore,
    ZoomIn,
    ZoomOut,
    ZoomNormal,
    FullScreen,
    ThemeSystem,
    ThemeLight,
    ThemeDark,
    Flashing,
    PlainText,
    Settings,
    Help,
    HelpContents,
    About,
};
inline constexpr std::size_t kCommandCount = static_cast<std::size_t>(Command::About) + 1;

/// The menus in the order of the menu bar. Theme is a menu in View.
enum class Menu { File, Game, View, Theme, Help };

/// The menu's name with its mnemonic: "&File".
std::string_view NameOf(Menu menu);

/// A command as the window shows it.
struct CommandEntry {
    /// Where it is shown besides its menu.
    enum class Use { Menu, ToolBar };

    Command id;
    std::string_view key;  ///< its name for widgets and tests: "LoadAdv"
    Menu menu;
    int group;                   ///< in its menu; a line is drawn between two groups
    std::string_view text;       ///< of the menu, with its mnemonic; three dots when it asks for more
    std::string_view shortText;  ///< of the tool bar
    std::string_view shortcut;   ///< "Ctrl+O"; several are parted by "; ", "" for none
    std::string_view icon;       ///< the icon's name; "" for none
    std::string_view tip;        ///< what it does, for the tool tip
    Use use = Use::Menu;
    bool isSwitch = false;  ///< it is on or off
};

/// All commands in the order of their menus.
std::span<const CommandEntry> AllCommands();

const CommandEntry& EntryOf(Command command);

/// What the window is about.
struct PlayState {
    const PlayedGame* game = nullptr;  ///< the game, or nullptr
    bool scriptLoaded = false;
    bool isTrial = false;     ///< the authoring tool shows the window
    bool characters = false;  ///< the game is shown in the pane of characters
};

/// How a command stands.
struct ActionState {
    bool enabled = true;
    bool visible = true;
};
ActionState StateOf(Command command, const PlayState& state);

}  // namespace fabula::player
