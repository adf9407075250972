#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/desk/commands.h"
#include "authoring/desk/grid/entry_groups.h"
#include "authoring/desk/grid/sort_screen.h"
#include "authoring/desk/grid/table_grid.h"
#include "authoring/desk/grid/table_rights.h"
#include "authoring/desk/grid/table_tree.h"
#include "authoring/desk/grid/table_view.h"
#include "authoring/desk/open_tabs.h"
#include "authoring/desk/search/find.h"
#include "authoring/document/document.h"
#include "authoring/document/screen_context.h"
#include "authoring/entries/entries.h"
#include "authoring/files/restore_screen.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/recent_files.h"
#include "platform/settings.h"
#include "store/setup.h"

namespace fabula::authoring {

class Upgrading;

/// What the main window asks of its program. All of it outlives the window.
struct IdeHost {
    platform::Dialogs& dialogs;
    platform::Settings& settings;
    const platform::Clock& clock;
    platform::EventPump& events;
};

/// Where the authoring tool finds and keeps its files.
struct IdePaths {
    std::filesystem::path defaultData;  ///< Fabula.ini
    /// The user's folder for backup copies and work files; empty when there is none: nothing is copied
    /// then.
    std::filesystem::path state;
    /// Where VersionNumbers.dat may lie, in the order in which it is looked for.
    std::vector<std::filesystem::path> versionFolders;
    std::string version;  ///< of the running program: "major.minor.revision"
};

/// How the author wants to try the game.
struct Trial {
    std::filesystem::path file;
    bool trace = false;  ///< trace mode is on
    bool debugAtOnce =
        false;  ///< the trace begins with the game, not when the game or the author asks for it
};

/// The main window without its widgets: the one open adventure, the tree and the grid, and the commands.
///
/// The window shows what the members below tell, and asks them again after each call. Whatever goes wrong
/// is told in a box and leaves everything as it was; nothing is thrown.
class MainScreen {
  public:
    enum class State { NoAdventure, Open, EngineRunning };

    /// How the window shows an upgrade of a file that is opened. `steps` takes the steps that run, a line
    /// each, and "" when they are done; `chooseType` the screen of the types, which is not cancelled.
    struct UpgradeBoxes {
        std::function<void(std::string_view list)> steps = [](std::string_view) {};
        std::function<void(store::AdventureSetup& setup)> chooseType = [](store::AdventureSetup&) {};
    };
    UpgradeBoxes upgradeBoxes;

    /// Shows what uses a record before Delete asks about it.
    BeforeDelete beforeDelete = [](const Deletion&) { return true; };

    /// `maintenance` shows the program's own tables and fields.
    MainScreen(const IdeHost& host, IdePaths paths, bool maintenance = false);
    MainScreen(const MainScreen&) = delete;
    MainScreen& operator=(const MainScreen&) = delete;
    ~MainScreen();

    // --- Start and end of the program ---

    /// Opens the adventure that was open the last time, notes the version of the program in it and in the
    /// list of versions, and tells in the status line what is new. When the file is gone the program starts
    /// without an adventure.
    void Start();
    /// Remembers the open adventure and where the author was, and deletes old work files.
    void End();
    /// The author has been told that the program has to end.
    bool MustExit() const { return mustExit_; }

    // --- Adventures ---

    /// Asks for the file of a new adventure; nullopt when the author would rather not. The window then
    /// shows the screen of its type, and calls NewAdventure.
    std::optional<std::filesystem::path> AskNewFile();
    /// Creates the adventure and opens it. `starter` gives it the words and entries that most games begin
    /// with.
    bool NewAdventure(const std::filesystem::path& file, const store::AdventureSetup& setup, bool starter);
    /// Asks for an adventure and opens it.
    bool Open();
    /// Opens an adventure: a recent one, or one that was just made. The one that is open stays when the
    /// file is refused.
    bool OpenFile(const std::filesystem::path& file);
    bool SaveAs();
    void Close();
    /// The screen of the command Restore; nullopt, and the person told, when there is no backup.
    std::optional<RestoreScreen> OpenRestore();
    /// Puts a backup in the place of the open adventure, after a question, and opens it. The adventure as
    /// it was is added to the backups. When that fails it is as it was, and open again.
    bool Restore(const Backup& copy);
    /// After a fault that nobody expected: adds a copy of the open adventure to its backups, and keeps
    /// `typed`, what stands in the fields of open screens and is in no file yet, in a text of its own; ""
    /// when there is nothing such. Gives a sentence for each that tells where it is; "" when there is
    /// nothing to keep or no adventure is open. Throws fabula::Error.
    std::string KeepACopy(std::string_view typed = "");

    /// The adventures that were opened last, the latest first.
    const std::vector<std::filesystem::path>& RecentFiles() const { return recent_.Files(); }

    // --- What the window shows ---

    State GetState() const;
    /// "Fabula IDE - " and the adventure's name; behind it " (read only)" where nothing can be changed.
    std::string Title() const;
    /// The status line: the adventure's type and switches, the table and its number of records, and what
    /// just happened.
    std::string AdventureStatus() const;
    std::string TableStatus() const;
    const std::string& Message() const { return message_; }
    /// For what happened in a window of its own.
    void Say(std::string_view message) { message_ = message; }

    const std::vector<TreeNode>& Tree() const { return tree_; }
    /// The node of the view in the grid; nullptr when there is none.
    const TreeNode* CurrentNode() const;
    const TableGrid& Grid() const { return grid_; }
    /// The row that is selected, -1 for none and for the heading of a group.
    int CurrentRow() const { return row_; }
    /// The line of the grid that is selected: a row or a heading; -1 for none.
    int CurrentLine() const;
    /// The node's caption: "Locations".
    std::string Caption() const;

    ActionState StateOf(Command command) const;
    /// Why an adventure that is open to read refuses a change.
    static constexpr std::string_view kOnlyToRead =
        "The adventure is open to read only; Save As makes a copy that can be changed.";

    // --- What the author does with it ---

    /// A node of the tree, by its position.
    void ShowNode(int sort);
    /// A table or a view of the process tables.
    void Show(TableView view);
    /// A row in a folded group unfolds it.
    void SelectRow(int row);
    /// A row or a heading.
    void SelectLine(int line);
    void ClickColumn(int column);
    void ResizeColumn(int column, int width);
    void SetFilter(std::string_view text);

    /// The text and the field to look for.
    FindBox& Finder() { return find_; }

    /// Does a command. The screen that it needs is given back: the window opens it and then calls
    /// ScreenClosed. Commands that need a window of their own (New, Import, Export, Decompile, Import
    /// Graphic Record, Sort, Run, Verify, Exit, Help, About) are the window's to do, by the other members;
    /// here they do nothing. A command that is not enabled does nothing.
    std::optional<ScreenRequest> Run(Command command);
    void ScreenClosed(const ScreenRequest& request);
    /// After work that is not a command of this class changed the adventure, such as Verify: reads grid and
    /// tree again and stays on the row.
    void Refresh();

    /// The screen of the command Sort on the table in view, when that command is enabled. It proposes the
    /// order of the column that was clicked, or else the present one. When its window has closed,
    /// SortClosed is called.
    SortScreen OpenSort();
    void SortClosed();

    /// The record that a picture of a listing would go into: the number of the current location or picture;
    /// nullopt when the grid shows neither. After such pictures were loaded, PicturesLoaded is called with
    /// the count of changes that there were before.
    std::optional<int> PictureTarget() const;
    void PicturesLoaded(int changesBefore);

    /// Begins a trial of the open adventure; nullopt when there is none. The window then hides, shows the
    /// engine's window on the file, and calls EndTrial when that has closed.
    std::optional<Trial> BeginTrial();
    void EndTrial();

    /// The record of the current row, where a pane beside the rows can show its screen; nullopt where it
    /// can't be edited, or its editor needs a window of its own. What the pane stores then is told by
    /// ScreenClosed, as after a command.
    std::optional<ScreenRequest> RecordBeside();

    /// The column of the grid into whose cells an author types: that of the words of the vocabulary, which
    /// are corrected there; nullopt where none is.
    std::optional<int> TypedColumn() const;
    /// Whether the cell of a row in that column takes what is typed.
    bool MayType(int row) const;
    /// Stores what was typed into the cell of the current row, with the checks of its screen. False when it
    /// was refused, and the author told.
    bool StoreTyped(std::string_view text);

    /// Whether process tables show what the numbers in their lines stand for.
    bool NamesShown() const { return namesShown_; }
    void ShowNames(bool shown);

    /// Whether tables show the author's comments as a column.
    bool CommentsShown() const { return commentsShown_; }
    void ShowComments(bool shown);

    /// How the rows of the process table in view are grouped. Each view keeps its own.
    Grouping RowGrouping() const { return grouping_; }
    void GroupRows(Grouping grouping);
    /// Folds or unfolds a group. When the row that is selected goes with it, the heading is selected.
    void FoldGroup(int group, bool folded);
    void FoldAll(bool folded);

    /// Counts the uses of records for the column of the uses; a navigator gives it.
    UseCounter countUses;
    void ShowUsesColumn(bool shown);

    // --- Tabs ---

    const OpenTabs& Tabs() const { return tabs_; }
    /// "Messages", or of a tab for a record "Messages 40".
    std::string TabTitle(int tab) const;
    /// Shows a table in a tab of its own; the tab that was shown stays as it is.
    void OpenInTab(TableView view);
    /// The same for the record of the current row.
    void OpenRecordInTab();
    void GoToTab(int tab);
    void CloseTab(int tab);
    void MoveTab(int from, int to);
    /// The tab that is shown is for one record.
    bool IsRecordTab() const { return desk_ && tabs_.Shown().record; }

    /// For the screens. Only while an adventure is open.
    ScreenContext& CurrentContext();

  private:
    /// The open adventure and what its screens share.
    struct Desk {
        Desk(std::unique_ptr<store::Adventure> adventure, store::OpenMode mode, platform::Dialogs& dialogs);
        Document document;
        ScreenContext context;
    };

    bool Guard(const std::function<void()>& step);
    std::unique_ptr<Desk> OpenDesk(const std::filesystem::path& file, Upgrading& upgrading);
    std::filesystem::path Folder() const;
    void NoteVersions();
    void Adopt(std::unique_ptr<Desk> desk);
    void RememberView();
    void RememberFile();
    bool IsKnown(const std::filesystem::path& file) const;
    void ListAsRecent();
    std::filesystem::path BackupFolder() const;

    void ActivateMenus();
    void InActivateMenus();
    void LastTable();
    void SetupGrid(TableView view);
    TableRights SetUpEdits(store::TableNum table) const;
    void StayOn(std::optional<int> key, int row);
    void KeepPlace();
    PlaceInView PlaceHere() const;
    PlaceInView KeptPlaceOf(const TableView& view) const;
    void GoToPlace(const PlaceInView& place);
    void TakeView(const TableView& view);
    void ShowTab();
    void SelectGroup(int group);
    UseCounter UsesIn(store::TableNum table) const;
    std::string WhyNotView(Command command) const;
    void DoView(Command command);
    bool IsOn(Command command) const;
    std::optional<int> CurrentKey() const;
    void ReadAgain();
    void PutNames();

    std::string WhyNot(Command command) const;
    std::optional<std::string> UndoOrRedoName(Command command) const;
    std::optional<ScreenRequest> Do(Command command);
    std::optional<ScreenRequest> DoEntry(Command command);
    void BatchImport();
    void ShowChanges(store::TableNum changed);
    void UndoOrRedo(Command command);
    void GoTo(const Place& place);
    void Find();
    std::optional<std::string> ClickedOrder() const;

    IdeHost host_;
    IdePaths paths_;
    bool maintenance_;
    platform::RecentFiles recent_;
    std::unique_ptr<Desk> desk_;
    std::vector<TreeNode> tree_;
    TableGrid grid_;
    TableRights rights_;
    std::vector<PlaceInView> places_;  ///< one for each view that was left
    OpenTabs tabs_;
    Grouping grouping_ = Grouping::None;
    std::optional<std::string> heading_;  ///< the title of the group whose heading is selected
    FindBox find_;
    int row_ = -1;
    std::string message_;
    int changesBefore_ = 0;  ///< how many changes there were before the latest command
    bool running_ = false;
    bool namesShown_ = false;
    bool commentsShown_ = false;
    std::optional<bool> charSetsLoaded_;  ///< by an adventure of this sitting; nullopt: there was none yet
    bool mustExit_ = false;
};

}  // namespace fabula::authoring
