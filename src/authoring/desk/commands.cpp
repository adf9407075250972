#include "authoring/desk/commands.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace fabula::authoring {
namespace {

using Use = CommandEntry::Use;

constexpr CommandEntry kCommands[] = {
    {Command::New, "NewAdv", Menu::File, 0, "&New...", "Ctrl+Shift+N", "new", "Make a new adventure",
     Use::ToolBar},
    {Command::Open, "Open", Menu::File, 0, "&Open...", "Ctrl+O", "open", "Open an adventure", Use::ToolBar},
    {Command::SaveAs, "SaveAs", Menu::File, 0, "Save &As...", "Ctrl+Shift+S", "save-as",
     "Copy the adventure to another file and go on with the copy"},
    {Command::Restore, "Restore", Menu::File, 0, "&Restore a Backup...", "", "undo",
     "Go back to a copy of the adventure that was put aside"},
    {Command::Close, "Close", Menu::File, 0, "&Close", "Ctrl+W", "close", "Close the adventure"},
    {Command::Import, "In", Menu::File, 1, "&Import...", "Ctrl+I", "import",
     "Make an adventure from a source file", Use::ToolBar},
    {Command::Export, "Export", Menu::File, 1, "&Export...", "", "export",
     "Write the adventure as a source file", Use::ToolBar},
    {Command::Decompile, "Decomp", Menu::File, 1, "&Decompile...", "", "decompile",
     "Take an older game apart"},
    {Command::ImportGraphic, "Import", Menu::File, 1, "Import &Graphic Record...", "", "import-picture",
     "Take a picture out of a listing"},
    {Command::BatchImport, "BatImp", Menu::File, 1, "&Batch Import...", "", "batch-import",
     "Read a batch file that was edited outside"},
    {Command::BatchExport, "BatExp", Menu::File, 1, "Ba&tch Export...", "", "batch-export",
     "Write tables as a batch file"},
    {Command::Print, "Print", Menu::File, 2, "&Print...", "Ctrl+Alt+P", "print",
     "Print a listing of the table"},
    {Command::Preview, "Preview", Menu::File, 2, "Print Pre&view...", "", "preview",
     "Show a listing of the table"},
    {Command::Package, "Package", Menu::File, 2, "Pac&kage...", "", "package", "Pack the game for others"},
    {Command::Exit, "Exit", Menu::File, 3, "E&xit", "Ctrl+Q", "exit", "End the program"},

    {Command::Undo, "Undo", Menu::Edit, 0, "&Undo", "Ctrl+Z", "undo", "Take back the latest change",
     Use::ToolBar},
    {Command::Redo, "Redo", Menu::Edit, 0, "&Redo", "Ctrl+Shift+Z", "redo",
     "Make again the change that was taken back", Use::ToolBar},
    {Command::Add, "NewTab", Menu::Edit, 1, "&Add Entry", "Ctrl+N", "add", "Add a record to the table",
     Use::ToolBar},
    {Command::AddBefore, "AddNewBefore", Menu::Edit, 1, "Add Entry &Before", "Ctrl+Alt+N", "add-before",
     "Add a record before the current one", Use::ToolBar},
    {Command::Edit, "Edit", Menu::Edit, 1, "&Edit Entry", "Ctrl+E", "edit", "Edit the current record",
     Use::ToolBar},
    {Command::Delete, "Delete", Menu::Edit, 1, "&Delete Entry", "Del", "delete",
     "Delete the current record", Use::ToolBar},
    {Command::Load, "LoadSet", Menu::Edit, 2, "&Load Entry...", "Ctrl+L", "load",
     "Load records from a file"},
    {Command::Save, "SaveSet", Menu::Edit, 2, "&Save Entry...", "", "save", "Save records to a file"},
    {Command::Find, "Find", Menu::Edit, 3, "&Find...", "Ctrl+F", "find",
     "Look for a text or a number in a field", Use::ToolBar},
    {Command::FindNext, "FindNext", Menu::Edit, 3, "Find Ne&xt", "F3", "find-next",
     "Look for the same further on"},
    {Command::Filter, "Filter", Menu::Edit, 3, "Fil&ter Rows", "Ctrl+K", "filter",
     "Show only the rows that contain a text"},
    {Command::Sort, "TabSort", Menu::Edit, 3, "S&ort Order...", "", "sort",
     "Give the table another order, kept in the adventure"},
    {Command::Replace, "Replace", Menu::Edit, 3, "Find and Re&place...", "Ctrl+Shift+F", "find",
     "Look through all tables, and replace what was found"},
    {Command::GoToAnything, "GoToAnything", Menu::Edit, 4, "&Go To...", "Ctrl+P", "list",
     "Go to a record by its number, its words or a part of its text"},
    {Command::GoToNamed, "GoToNamed", Menu::Edit, 4, "Go To What It Na&mes", "F12", "list",
     "Go to a record that the current one names"},
    {Command::Uses, "Uses", Menu::Edit, 4, "S&how Uses", "Shift+F12", "list",
     "Show what uses the current record"},
    {Command::Back, "GoBack", Menu::Edit, 4, "Bac&k", "Alt+Left", "list", "Go back to where you were"},
    {Command::Forward, "GoForward", Menu::Edit, 4, "For&ward", "Alt+Right", "list",
     "Go forward again to where you were"},
    {Command::Renumber, "Renumber", Menu::Edit, 5, "Change &Number...", "", "key",
     "Give the record another number; all that names it follows"},

    {Command::GroupByVerb, "GroupByVerb", Menu::View, 0, "Group by &Verb", "Ctrl+1", "list",
     "Put the entries with the same verb together", Use::Switch},
    {Command::GroupByPlace, "GroupByPlace", Menu::View, 0, "Group by &Place", "Ctrl+2", "list",
     "Put the entries for the same place together", Use::Switch},
    {Command::GroupByObject, "GroupByObject", Menu::View, 0, "Group by Ob&ject", "Ctrl+3", "list",
     "Put the entries that touch the same object together", Use::Switch},
    {Command::FoldAll, "FoldAll", Menu::View, 0, "&Fold All Groups", "Ctrl+-", "list",
     "Show the headings of the groups only"},
    {Command::UnfoldAll, "UnfoldAll", Menu::View, 0, "Unf&old All Groups", "Ctrl++", "list",
     "Show the entries of all groups"},
    {Command::UsesColumn, "UsesColumn", Menu::View, 1, "Uses &Column", "Shift+F8", "list",
     "Show how often each record is used", Use::Switch},
    {Command::OpenInTab, "OpenInTab", Menu::View, 2, "Open in New T&ab", "Ctrl+Return", "list",
     "Show the record, or in the tree the table, in a tab of its own"},
    {Command::NextTab, "NextTab", Menu::View, 2, "Ne&xt Tab", "Ctrl+Tab", "list", "Go to the next tab"},
    {Command::PreviousTab, "PreviousTab", Menu::View, 2, "Previou&s Tab", "Ctrl+Shift+Tab", "list",
     "Go to the tab before"},
    {Command::CloseTab, "CloseTab", Menu::View, 2, "Clos&e Tab", "Ctrl+F4", "close", "Close the tab"},

    {Command::Run, "Run", Menu::Game, 0, "&Run && Test", "F5", "run", "Play the adventure", Use::ToolBar},
    {Command::Trace, "Trace", Menu::Game, 0, "&Trace Mode", "Shift+F5", "trace",
     "Write down every step of a test run", Use::Switch},
    {Command::Verify, "Verify", Menu::Game, 1, "&Verify...", "F7", "verify",
     "Check that the adventure holds together", Use::ToolBar},
    {Command::Findings, "Findings", Menu::Game, 1, "&Findings", "Shift+F7", "list",
     "List what the adventure has that can't be meant: unused, unreachable, missing"},
    {Command::Settings, "Settings", Menu::Game, 2, "Adventure &Settings...", "F4", "settings",
     "Title, type, colours, font and sound of the adventure"},

    {Command::CharacterTable, "CharTable", Menu::Tools, 0, "&Character Table...", "", "characters",
     "Show all characters of a set, edit one, or take them from a font"},
    {Command::LastRecordKeys, "LstRecs", Menu::Tools, 0, "&Last Record Keys", "", "list",
     "List the highest key of each table"},
    {Command::ShortDescriptions, "ShortDesc", Menu::Tools, 0, "Load &Short Descriptions", "", "text",
     "Take short descriptions of locations from the file ShortDesc.lis"},
    {Command::KeyChange, "KeyChange", Menu::Tools, 1, "Correct Table &Key...", "", "key",
     "Give a free key to a record whose key occurs twice"},
    {Command::TravelTable, "TravelTable", Menu::Tools, 1, "Convert &Travel Table...", "", "map",
     "Write a report of a classic travel table"},

    {Command::Palette, "Palette", Menu::Tools, 2, "Command &Palette...", "Ctrl+Shift+P", "list",
     "Do any command by a part of its name"},

    {Command::Help, "Help", Menu::Help, 0, "&Help", "F1", "help", "Tell about what is at hand"},
    {Command::HelpContents, "HelpContents", Menu::Help, 0, "&Contents", "", "book",
     "The contents of the help"},
    {Command::AboutAdventure, "AboutAdventure", Menu::Help, 1, "About this &Adventure", "", "info",
     "Title, version and author of the adventure"},
    {Command::About, "About", Menu::Help, 1, "About &Fabula IDE", "", "info",
     "The version of this program"},
};

constexpr std::array<std::string_view, 6> kMenus = {"&File", "&Edit", "&View", "&Game", "&Tools", "&Help"};

}  // namespace

std::string_view NameOf(Menu menu) {
    return kMenus.at(static_cast<std::size_t>(menu));
}

std::span<const CommandEntry> AllCommands() {
    return kCommands;
}

const CommandEntry& EntryOf(Command command) {
    const auto* const entry =
        std::ranges::find_if(kCommands, [&](const CommandEntry& each) { return each.id == command; });
    if (entry == std::end(kCommands)) throw std::logic_error("a command stands in no table");
    return *entry;
}

}  // namespace fabula::authoring
