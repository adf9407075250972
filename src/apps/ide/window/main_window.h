#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "authoring/desk/main_screen.h"
#include "authoring/desk/search/findings_list.h"
#include "authoring/desk/search/navigator.h"
#include "authoring/drawing/character_set_files.h"
#include "authoring/jobs/interchange_screen.h"
#include "authoring/jobs/verify_screen.h"
#include "engine/sound_player.h"
#include "ide/printing/paper_output.h"
#include "ide/window/examples.h"
#include "ide/window/still_dialogs.h"
#include "platform/programs.h"
#include "platform/random_source.h"
#include "platform/timers.h"
#include "qt/help/help.h"
#include "qt/look/theme.h"

class QActionGroup;
class QLabel;
class QProgressDialog;
class QSettings;
class QSplitter;
class QStackedWidget;

namespace fabula::ide {

class CommandActions;
class EmptyPage;
class FindBar;
class FindingsPane;
class TrialRun;
class RecordPane;
class RecordPanel;
class TabStrip;
class TreePanel;
class UsesPane;

/// What the window asks of its program. All of it outlives the window.
struct Services {
    platform::Timers& timers;
    platform::Dialogs& dialogs;
    platform::Settings& settings;
    QSettings& store;  ///< what `settings` are kept in, for what Qt's windows remember
    const platform::Clock& clock;
    platform::EventPump& events;
    engine::SoundPlayer& sound;
    platform::RandomSource& random;
    platform::Programs& programs;
    /// The names of the system's MIDI devices, for the settings.
    std::function<std::vector<std::string>()> soundDevices = [] { return std::vector<std::string>(); };
    PrintPaper print = PrintOnPrinter;
};

/// Where the window finds and keeps its files.
struct Places {
    authoring::IdePaths desk;
    std::filesystem::path help;         ///< the page of contents
    std::vector<Example> examples;      ///< that it offers
    std::filesystem::path ownGames;     ///< where an example is copied to before it is opened
    std::filesystem::path playersData;  ///< where games that are tested keep what their players save
};

/// The window of the authoring tool: menus, tool bar, tree and grid around `MainScreen`, which decides
/// everything. The window only shows what that tells and hands on what the author does.
class MainWindow final : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(Fabula)
  public:
    MainWindow(const Services& services, Places places);
    ~MainWindow() override;

    /// Opens a file, or without one the adventure that was open the last time.
    void Start(const std::filesystem::path& file);

    /// Does a command as its menu would.
    void Do(authoring::Command command);

    authoring::MainScreen& Logic() { return ide_; }
    /// What plays the tones of a game that is tested can't be opened. The settings tell for themselves.
    void SoundFailed(const std::string& sentence);

    /// The game being tested; nullptr when there is none.
    const TrialRun* Test() const { return test_.get(); }
    qt::Help& Help() { return help_; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    struct Routine {
        authoring::Command command;
        void (*run)(MainWindow& window);
    };
    static std::span<const Routine> Routines();

    void MakePages();
    void MakeMenus();
    void MakeThemeMenu(QMenu& view);
    void MakeViewSwitches(QMenu& view);
    void MakeStatusBar();
    void MakeKeys();
    void PlaceWindow();

    void ShowChanges();
    void ShowTitle();
    void ShowRow();
    void ShowPicture();
    void ShowBeside();
    void ChooseLine(int line);
    void FoldGroup(int group, bool folded);
    void ChooseNode(int sort);
    bool OpensOwnTable(const authoring::TreeNode& node) const;
    bool LeaveRecord();
    bool MayEnd();
    bool StoreTyped(const std::string& text);
    void StoreBeside();
    void ShowTabs();
    void OpenInTab();
    void OpenInTab(int sort);
    void ChangeTabs(const std::function<void()>& change);
    void AskTreeMenu(const QPoint& place);
    void ArrangePanes();
    void ShowActions();
    void ShowStatus();
    void ShowTables();
    void ShowColumns();
    void ShowRecent();
    void NextPane(int direction);
    void ShowUses();
    void ShowBelow(QWidget* pane, bool shown);

    void DoJump(authoring::Command command);
    void RunJump(authoring::Command command);
    void Jump(const authoring::Jump& jump);
    void GoToNamed();
    bool FollowFromPane(authoring::Command command);
    bool AskBeforeDelete(const authoring::Deletion& deletion);
    /// What a list of the window offers, and what it then does.
    struct Step {
        std::string name;
        std::function<void()> take;
    };
    using Steps = std::vector<Step>;
    void AddTables(const std::function<bool(std::string_view name)>& fits, Steps& steps);
    void ChooseStep(const QString& title, const QString& hint,
                    const std::function<Steps(const std::string& typed)>& found);
    void GoToAnything();
    void ChooseCommand();
    void Replace();
    void Renumber();

    void New();
    void SaveAs();
    void Open(const std::filesystem::path& file);
    void OpenExample(const Example& example);
    void DoInLogic(authoring::Command command);
    void Open(const authoring::ScreenRequest& request);
    void ShowCharacterTable();
    void LoadOrSaveSets(authoring::CharacterSetFiles::Purpose purpose);
    void FindOrAsk(authoring::Command command);
    void Sort();
    void Verify();
    void Restore();
    void KeyChange();
    void ShowUpgrade(std::string_view steps);
    void ChooseType(store::AdventureSetup& setup);
    void Print(listings::PrintScreen::Purpose purpose);
    void GoTo(const authoring::VerifyScreen::Entry& entry);
    void ImportOrExport(authoring::JobMode mode);
    void ImportGraphic();
    void Decompile();
    void StartTest();
    void EndTest();
    void Package();
    void ConvertTravelTable();
    void AboutAdventure();
    void About();
    void AskEntryMenu(const QPoint& place);
    void ChooseTheme(qt::Theme theme);

    Services services_;
    Places places_;
    StillDialogs boxes_;
    authoring::MainScreen ide_;
    authoring::Navigator navigator_;
    authoring::FindingsList findingsList_;
    std::optional<authoring::Jump> leftFor_;  ///< where the author went from a box or a dialog
    std::string afterDelete_;                 ///< to be told when the record has gone
    qt::Help help_;
    authoring::TableView shownView_;
    std::filesystem::path shownFile_;  ///< whose table it is; empty for none
    std::unique_ptr<TrialRun> test_;

    QStackedWidget* pages_;
    EmptyPage* empty_;
    QSplitter* desk_;
    TreePanel* tree_;
    TabStrip* tabs_;
    QSplitter* work_;  ///< the rows, and beside or below them the record
    RecordPanel* records_;
    RecordPane* beside_;
    QAction* showBeside_ = nullptr;
    FindBar* find_;
    UsesPane* uses_;
    FindingsPane* findings_;
    CommandActions* actions_;
    std::unique_ptr<QProgressDialog> upgrade_;  ///< while the steps of an upgrade run
    QMenu* tableMenu_ = nullptr;
    QMenu* columns_ = nullptr;
    QActionGroup* recent_ = nullptr;
    QActionGroup* themes_ = nullptr;
    QLabel* message_;
    QLabel* tableStatus_;
    QLabel* adventureStatus_;
};

}  // namespace fabula::ide
