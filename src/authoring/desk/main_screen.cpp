#include "authoring/desk/main_screen.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "authoring/desk/grid/sort_order.h"
#include "authoring/desk/ide_settings.h"
#include "authoring/desk/upgrading.h"
#include "authoring/files/backups.h"
#include "authoring/files/may_replace.h"
#include "authoring/files/start_up.h"
#include "authoring/files/starter_file.h"
#include "authoring/files/version_numbers.h"
#include "authoring/files/work_files.h"
#include "interchange/starter.h"
#include "platform/error.h"
#include "platform/file_question.h"
#include "store/create.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "store/game_source.h"
#include "text/encoding/utf8.h"

// The life of the window and of the adventure in it. What it shows is in main_screen_views.cpp, what it
// does on command in main_screen_commands.cpp.

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kProgramName = "Fabula IDE";

platform::FileQuestion AdventureQuestion(std::string_view title, const std::filesystem::path& folder) {
    return platform::QuestionFor(title, "Fabula Database", store::extension::kAdventure, folder);
}

/// What a new adventure says of itself, besides what the default data gives it.
void MarkAsNew(store::Adventure& adventure) {
    store::Transaction transaction(adventure);
    store::Cursor& settings = adventure.OpenTable(TableNum::Adventure, "source");
    settings.SetField("source", std::string(store::kNewSource));
    settings.Update();
    store::Cursor& system = adventure.OpenTable(TableNum::System, "flagchange");
    system.SetField("flagchange", std::int64_t{1});
    system.Update();
    transaction.Commit();
}

}  // namespace

MainScreen::Desk::Desk(std::unique_ptr<store::Adventure> adventure, store::OpenMode mode,
                       platform::Dialogs& dialogs)
    : document(std::move(adventure), mode), context{document, dialogs} {}

MainScreen::MainScreen(const IdeHost& host, IdePaths paths, bool maintenance)
    : host_(host),
      paths_(std::move(paths)),
      maintenance_(maintenance),
      recent_(ReadRecentFiles(host.settings)) {}

MainScreen::~MainScreen() = default;

bool MainScreen::Guard(const std::function<void()>& step) {
    try {
        step();
        return true;
    } catch (const Error& failure) {
        Refuse(host_.dialogs, failure.what());
        return false;
    }
}

void MainScreen::Start() {
    const std::filesystem::path file = LastFile(host_.settings);
    if (!file.empty()) OpenFile(file);
    Guard([&] { NoteVersions(); });
}

void MainScreen::NoteVersions() {
    std::vector<std::string> report;
    if (desk_ && !desk_->document.IsReadOnly())
        report.push_back(NoteVersion(desk_->document.Adventure(), Program::Ide, paths_.version));
    report.push_back(ListVersion(paths_.versionFolders, Program::Ide, paths_.version, host_.clock.Now()));
    const std::string told = VersionReport(report);
    if (!told.empty()) message_ += (message_.empty() ? "" : " ") + told;
}

void MainScreen::End() {
    if (!paths_.state.empty()) DeleteOldWorkFiles(paths_.state, host_.clock);
    RememberView();
    RememberFile();
}

void MainScreen::RememberFile() {
    const std::string file = desk_ ? desk_->document.File().string() : std::string();
    host_.settings.Set(startup::kSection, startup::kFile, file);
}

bool MainScreen::IsKnown(const std::filesystem::path& file) const {
    return std::ranges::find(recent_.Files(), file) != recent_.Files().end();
}

/// Another window may have listed files meanwhile.
void MainScreen::ListAsRecent() {
    recent_ = ReadRecentFiles(host_.settings);
    recent_.AddMRUItem(desk_->document.File());
    WriteRecentFiles(host_.settings, recent_);
}

void MainScreen::RememberView() {
    if (!desk_) return;
    KeepPlace();
    WriteKeptDesk(host_.settings, desk_->document.File(), {tabs_, places_});
    WriteLastView(host_.settings, {grid_.View(), desk_->context.currentEntry});
}

std::filesystem::path MainScreen::Folder() const {
    return desk_ ? desk_->document.File().parent_path() : std::filesystem::path();
}

std::optional<std::filesystem::path> MainScreen::AskNewFile() {
    platform::FileQuestion question = AdventureQuestion("Create a Fabula Database", Folder());
    question.forWriting = true;
    question.asksToOverwrite = false;
    auto file = host_.dialogs.ChooseFile(question);
    if (file && !text::EqualsNoCase(file->extension().string(), store::extension::kAdventure))
        *file += store::extension::kAdventure;
    return file;
}

bool MainScreen::NewAdventure(const std::filesystem::path& file, const store::AdventureSetup& setup,
                              bool starter) {
    // Asked while the open one is still open: after a no all of it can be undone as before.
    if (!MayReplace(file, host_.dialogs)) return false;
    const bool replacesOpenOne = desk_ && store::IsSameFile(file, desk_->document.File());
    if (replacesOpenOne) Close();
    const store::CreationHost host{host_.dialogs, host_.clock, host_.events, paths_.defaultData};
    bool created = false;
    Guard([&] {
        store::CreateAdventure(file, setup, host, [&](store::Adventure& adventure) {
            MarkAsNew(adventure);
            if (starter) interchange::AddStarter(adventure, StarterFile(paths_.defaultData, setup.Type()));
        });
        created = true;
        host_.dialogs.Tell(file.filename().string() + " DataBase Created", kProgramName);
        auto desk = std::make_unique<Desk>(store::Adventure::OpenForChange(file),
                                           store::OpenMode::ReadWrite, host_.dialogs);
        WriteLastView(host_.settings, {{TableNum::Adventure, 0}, 0});
        charSetsLoaded_ = charSetsLoaded_.value_or(false) || desk->document.Adventure().CharSetsOn();
        Adopt(std::move(desk));
    });
    if (!created && replacesOpenOne) OpenFile(file);
    return created;
}

bool MainScreen::Open() {
    const auto file =
        host_.dialogs.ChooseFile(AdventureQuestion("Open Existing Fabula Database", Folder()));
    return file && OpenFile(*file);
}

bool MainScreen::OpenFile(const std::filesystem::path& file) {
    if (desk_ && store::IsSameFile(file, desk_->document.File())) return true;
    RememberView();
    bool wanted = true;
    const bool opened = Guard([&] {
        Upgrading upgrading(host_, paths_, upgradeBoxes);
        auto desk = OpenDesk(file, upgrading);
        wanted = desk != nullptr;
        if (!wanted) return;
        upgrading.BackUp(desk->document.Adventure());
        if (!IsKnown(desk->document.File())) WriteLastView(host_.settings, {{TableNum::Locations, 0}, 0});
        Adopt(std::move(desk));
        const bool usesCharSets = desk_->document.Adventure().CharSetsOn();
        const bool loaded = charSetsLoaded_.value_or(usesCharSets);
        charSetsLoaded_ = loaded;
        if (loaded || !usesCharSets) return;
        host_.dialogs.Tell(
            "Importing a program using Character Sets from a previous program not using Character Sets "
            "requires exiting program",
            kProgramName);
        mustExit_ = true;
    });
    return opened && wanted;
}

/// Opens a file for change and brings it up to date. One that can't be changed is opened to read, an older
/// one as an upgraded copy: where it can't be written the person is told, and where it is open for change
/// elsewhere asked; nullptr for no.
std::unique_ptr<MainScreen::Desk> MainScreen::OpenDesk(const std::filesystem::path& file,
                                                       Upgrading& upgrading) {
    const auto toRead = [&] {
        auto adventure = upgrades::OpenForReading(
            file, paths_.defaultData,
            [this](std::string_view sentence) { host_.dialogs.Tell(sentence, kProgramName); });
        return std::make_unique<Desk>(std::move(adventure), store::OpenMode::ReadOnly, host_.dialogs);
    };
    try {
        auto adventure = upgrades::OpenUpgraded(file, paths_.defaultData, upgrading);
        return std::make_unique<Desk>(std::move(adventure), store::OpenMode::ReadWrite, host_.dialogs);
    } catch (const store::OpenError& refused) {
        const std::string why = refused.what();
        if (refused.Reason() == store::Refusal::OpenForChange)
            return host_.dialogs.Confirm(why + " Open it to read only?", kProgramName) ? toRead() : nullptr;
        if (refused.Reason() != store::Refusal::CannotBeWritten) throw;
        auto desk = toRead();
        host_.dialogs.Tell(why + " It is opened to read only; Save As makes a copy that can be changed.",
                           kProgramName);
        return desk;
    }
}

/// Puts an adventure in the place of the one that is open, which is closed; one that can't be shown leaves
/// that one open.
void MainScreen::Adopt(std::unique_ptr<Desk> desk) {
    std::swap(desk_, desk);
    std::vector<TreeNode> treeBefore = tree_;
    OpenTabs tabsBefore = tabs_;
    std::vector<PlaceInView> placesBefore = std::exchange(places_, {});
    try {
        ActivateMenus();
        LastTable();
    } catch (const Error&) {
        std::swap(desk_, desk);
        tree_ = std::move(treeBefore);
        tabs_ = std::move(tabsBefore);
        places_ = std::move(placesBefore);
        throw;
    }
    RememberFile();
    ListAsRecent();
    message_ = "Opened " + desk_->document.File().filename().string() + ".";
}

bool MainScreen::SaveAs() {
    if (!desk_) return false;
    platform::FileQuestion question = AdventureQuestion("Save as a Fabula Database", Folder());
    question.forWriting = true;
    const auto file = host_.dialogs.ChooseFile(question);
    if (!file) return false;
    return Guard([&] {
        desk_->document.SaveAs(*file);
        RememberFile();
        ListAsRecent();
        message_ = "Saved as " + file->filename().string() + ".";
        ReadAgain();
    });
}

std::optional<RestoreScreen> MainScreen::OpenRestore() {
    if (!desk_) return std::nullopt;
    std::vector<Backup> copies;
    if (!paths_.state.empty()) copies = Backups(BackupFolder(), host_.clock).List(desk_->document.File());
    if (!copies.empty()) return RestoreScreen(std::move(copies), desk_->document.Adventure());
    host_.dialogs.Tell("There is no backup of " + desk_->document.File().filename().string() + " yet.",
                       kProgramName);
    return std::nullopt;
}

bool MainScreen::Restore(const Backup& copy) {
    const std::string name = copy.file.filename().string();
    if (!host_.dialogs.Confirm(
            "Put the backup " + name +
                " in the place of the adventure? The adventure as it is now is kept as a backup too.",
            kProgramName)) {
        return false;
    }
    const std::filesystem::path file = desk_->document.File();
    bool closed = false;
    const bool restored = Guard([&] {
        // Opened first, since making a backup may delete the oldest ones.
        const auto taken = store::Adventure::Open(copy.file, store::OpenMode::ReadOnly, store::Ages::Any);
        Backups(BackupFolder(), host_.clock).Add(desk_->document.Adventure());
        Close();
        closed = true;
        taken->SaveCopy(file);
    });
    if (closed) OpenFile(file);
    if (restored) message_ = "Restored the backup " + name + ".";
    return restored;
}

std::filesystem::path MainScreen::BackupFolder() const {
    return paths_.state / "backups";
}

std::string MainScreen::KeepACopy(std::string_view typed) {
    if (!desk_ || paths_.state.empty()) return "";
    Backups backups(BackupFolder(), host_.clock);
    std::string told;
    // First the typed texts: they are nowhere else.
    if (!typed.empty()) {
        const auto kept = backups.KeepTyped(desk_->document.File(), typed);
        told = "What stood in the fields of open windows is at " + kept.string() + ".";
    }
    if (const auto copy = backups.Add(desk_->document.Adventure())) {
        told.append(told.empty() ? "" : "\n")
            .append("A copy of the adventure is at ")
            .append(copy->string())
            .append(".");
    }
    return told;
}

void MainScreen::Close() {
    if (!desk_) return;
    RememberView();
    desk_.reset();
    RememberFile();
    InActivateMenus();
    message_.clear();
}

std::optional<Trial> MainScreen::BeginTrial() {
    if (!desk_ || running_) return std::nullopt;
    Trial run{.file = desk_->document.File(), .trace = TraceMode(host_.settings)};
    if (run.trace) run.debugAtOnce = host_.dialogs.Confirm("Debug immediately", "Run & Test");
    RememberView();
    const bool ready = Guard([&] { ReadInPlainOrder(desk_->document.Adventure()); });
    if (!ready) return std::nullopt;
    running_ = true;
    return run;
}

void MainScreen::EndTrial() {
    if (!running_) return;
    running_ = false;
    Guard([&] { ReadAgain(); });
}

MainScreen::State MainScreen::GetState() const {
    if (!desk_) return State::NoAdventure;
    return running_ ? State::EngineRunning : State::Open;
}

std::string MainScreen::Title() const {
    if (!desk_) return std::string(kProgramName);
    const std::string title = std::string(kProgramName) + " - " + desk_->document.File().stem().string();
    return desk_->document.IsReadOnly() ? title + " (read only)" : title;
}

ScreenContext& MainScreen::CurrentContext() {
    return desk_->context;
}

}  // namespace fabula::authoring
