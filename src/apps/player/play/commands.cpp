#include "player/play/commands.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "player/play/played_game.h"

namespace fabula::player {

namespace {

using Use = CommandEntry::Use;

constexpr std::array kCommands = {
    CommandEntry{Command::Open, "LoadAdv", Menu::File, 0, "&Load a Game...", "Load a Game", "Ctrl+O",
                 "open", "Open the file of a game and play it", Use::ToolBar},
    CommandEntry{Command::Save, "Save", Menu::File, 1, "&Save...", "Save", "Ctrl+S", "save",
                 "Keep in a file how the game stands", Use::ToolBar},
    CommandEntry{Command::Restore, "Restore", Menu::File, 1, "R&estore...", "Restore", "Ctrl+R", "load",
                 "Go back to how the game stood when it was saved", Use::ToolBar},
    CommandEntry{Command::Exit, "Exit", Menu::File, 2, "E&xit", "Exit", "Ctrl+Q", "exit", "End the program",
                 Use::ToolBar},

    CommandEntry{Command::Undo, "Undo", Menu::Game, 0, "&Undo", "Undo", "Ctrl+Z", "undo",
                 "Take back the latest line that was entered", Use::ToolBar},
    CommandEntry{Command::Stop, "Stop", Menu::Game, 0, "St&op the Turn", "Stop", "Ctrl+.", "close",
                 "Give up a turn that takes long, and go back to before it", Use::ToolBar},
    CommandEntry{Command::StartAgain, "StartAgain", Menu::Game, 0, "Start &Again", "Start Again", "",
                 "home", "Play the game from its beginning"},
    CommandEntry{Command::Next, "Next", Menu::Game, 1, "&Next Line of the Script", "Next", "F8", "forward",
                 "Play the script on", Use::ToolBar},
    CommandEntry{Command::Sound, "Sound", Menu::Game, 1, "&Sound", "Sound", "Ctrl+M", "sound",
                 "Switch the sound on or off", Use::ToolBar, true},
    CommandEntry{Command::Transcript, "Transcript", Menu::Game, 1, "&Transcript...", "Transcript", "",
                 "text", "Write all that is shown and typed to a file", Use::Menu, true},
    CommandEntry{Command::Debug, "Debug", Menu::Game, 2, "&Debug", "Debug", "", "trace",
                 "Show and change flags and objects", Use::ToolBar},

    CommandEntry{Command::Find, "Find", Menu::View, 0, "&Find in the Text...", "Find", "Ctrl+F", "find",
                 "Look for words in what the game has written"},
    CommandEntry{Command::FindNext, "FindNext", Menu::View, 0, "Find Ne&xt", "Find Next", "F3", "find-next",
                 "Look for the same further on"},
    CommandEntry{Command::FindBefore, "FindBefore", Menu::View, 0, "Find &Before", "Find Before",
                 "Shift+F3", "back", "Look for the same further up"},
    CommandEntry{Command::ZoomIn, "ZoomIn", Menu::View, 1, "Zoom &In", "Zoom In", "Ctrl++; Ctrl+=", "",
                 "Make the text larger"},
    CommandEntry{Command::ZoomOut, "ZoomOut", Menu::View, 1, "Zoom &Out", "Zoom Out", "Ctrl+-", "",
                 "Make the text smaller"},
    CommandEntry{Command::ZoomNormal, "ZoomNormal", Menu::View, 1, "&Normal Size", "Normal Size", "Ctrl+0",
                 "", "Show the text as large as it was"},
    CommandEntry{Command::FullScreen, "FullScreen", Menu::View, 2, "F&ull Screen", "Full Screen", "F11", "",
                 "Fill the screen with the window", Use::Menu, true},
    CommandEntry{Command::Flashing, "Flashing", Menu::View, 3, "F&lashing Text", "Flashing", "", "",
                 "Let text flash where the game wants it", Use::Menu, true},
    CommandEntry{Command::PlainText, "PlainText", Menu::View, 3, "&Character Games as Plain Text",
                 "Plain Text", "", "", "Show games that draw their letters as ordinary text", Use::Menu,
                 true},
    CommandEntry{Command::Settings, "Settings", Menu::View, 4, "&Settings...", "Settings", "Ctrl+,", "gear",
                 "Choose fonts, colours and sound"},

    CommandEntry{Command::ThemeSystem, "ThemeSystem", Menu::Theme, 0,
                 "&System, with the Game's Own Colours", "System", "", "",
                 "Colour the windows as the desktop does", Use::Menu, true},
    CommandEntry{Command::ThemeLight, "ThemeLight", Menu::Theme, 0, "&Light", "Light", "", "",
                 "Colour the windows light", Use::Menu, true},
    CommandEntry{Command::ThemeDark, "ThemeDark", Menu::Theme, 0, "&Dark", "Dark", "", "",
                 "Colour the windows dark", Use::Menu, true},

    CommandEntry{Command::Help, "Help", Menu::Help, 0, "&Help", "Help", "F1", "help",
                 "Show the help on what is at hand"},
    CommandEntry{Command::HelpContents, "HelpContents", Menu::Help, 0, "&Contents", "Contents", "", "book",
                 "Show the pages of the help"},
    CommandEntry{Command::About, "About", Menu::Help, 1, "About this &Adventure", "About", "", "info",
                 "Tell who wrote the game", Use::ToolBar},
};

bool IsPlaying(const PlayState& state) {
    return state.game != nullptr && state.game->WaitingFor() != engine::Waiting::Nothing;
}

}  // namespace

std::string_view NameOf(Menu menu) {
    switch (menu) {
        case Menu::File:
            return "&File";
        case Menu::Game:
            return "&Game";
        case Menu::View:
            return "&View";
        case Menu::Theme:
            return "&Theme";
        case Menu::Help:
            return "&Help";
    }
    throw std::logic_error("a menu without a name");
}

std::span<const CommandEntry> AllCommands() {
    return kCommands;
}

const CommandEntry& EntryOf(Command command) {
    const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                    [&](const CommandEntry& entry) { return entry.id == command; });
    if (found == kCommands.end()) throw std::logic_error("a command without an entry");
    return *found;
}

ActionState StateOf(Command command, const PlayState& state) {
    const PlayedGame* game = state.game;
    switch (command) {
        case Command::Save:
            return {.enabled = game != nullptr && game->CanSave()};
        case Command::Restore:
            return {.enabled = game != nullptr && game->CanRestore()};
        case Command::Undo:
            return {.enabled = game != nullptr && game->CanUndo()};
        case Command::Stop: {
            const bool can = game != nullptr && game->CanStop();
            return {.enabled = can, .visible = can};
        }
        case Command::StartAgain:
            return {.enabled = game != nullptr};
        case Command::Transcript:
            return {.enabled = IsPlaying(state)};
        case Command::Next:
            return {.enabled = state.scriptLoaded, .visible = state.scriptLoaded};
        case Command::Debug:
            return {.enabled = state.isTrial, .visible = state.isTrial};
        case Command::Find:
        case Command::FindNext:
        case Command::FindBefore:
            return {.enabled = game != nullptr && !state.characters};
        default:
            return {};
    }
}

}  // namespace fabula::player
