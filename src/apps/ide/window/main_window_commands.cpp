#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTableView>
#include <QUrl>
#include <array>

#include "authoring/drawing/character_set_screen.h"
#include "ide/dialogs/jobs/decompile_dialog.h"
#include "ide/dialogs/jobs/interchange_dialog.h"
#include "ide/dialogs/jobs/package_dialog.h"
#include "ide/dialogs/jobs/preview_dialog.h"
#include "ide/dialogs/jobs/restore_dialog.h"
#include "ide/dialogs/jobs/verify_dialog.h"
#include "ide/dialogs/screens.h"
#include "ide/dialogs/settings/setup_dialog.h"
#include "ide/dialogs/tables/key_dialogs.h"
#include "ide/dialogs/tables/sort_dialog.h"
#include "ide/drawing/character_table_dialog.h"
#include "ide/drawing/drawing_screens.h"
#include "ide/drawing/set_files_dialog.h"
#include "ide/window/grid/find_bar.h"
#include "ide/window/job_events.h"
#include "ide/window/main_window.h"
#include "ide/window/panes/record_panel.h"
#include "ide/window/trial_run.h"
#include "packages/travel_report.h"
#include "platform/error.h"
#include "player/window/about_adventure.h"
#include "qt/strings.h"

// What the commands do that need a window of their own.

namespace fabula::ide {

using authoring::Command;

void MainWindow::Do(Command command) {
    // Enter and a double click on a row come here whatever the table allows.
    const authoring::ActionState state = ide_.StateOf(command);
    if (!state.enabled) return message_->setText(qt::Translated(state.why));
    if (FollowFromPane(command)) return;
    // These leave a record in a way of their own, or not at all.
    const bool leaves = command != Command::Help && command != Command::SaveAs && command != Command::Exit;
    if (leaves && !LeaveRecord()) return;
    for (const Routine& each : Routines()) {
        if (each.command == command) return each.run(*this);
    }
    DoInLogic(command);
}

/// What the commands do that need the window; the others are the logic's.
std::span<const MainWindow::Routine> MainWindow::Routines() {
    using authoring::JobMode;
    using Purpose = listings::PrintScreen::Purpose;
    using SetFiles = authoring::CharacterSetFiles::Purpose;
    static constexpr std::array kRoutines = {
        Routine{Command::New, [](MainWindow& window) { window.New(); }},
        Routine{Command::SaveAs, [](MainWindow& window) { window.SaveAs(); }},
        Routine{Command::Exit, [](MainWindow& window) { window.close(); }},
        Routine{Command::Run, [](MainWindow& window) { window.StartTest(); }},
        Routine{Command::Import, [](MainWindow& window) { window.ImportOrExport(JobMode::Import); }},
        Routine{Command::Export, [](MainWindow& window) { window.ImportOrExport(JobMode::Export); }},
        Routine{Command::ImportGraphic, [](MainWindow& window) { window.ImportGraphic(); }},
        Routine{Command::Decompile, [](MainWindow& window) { window.Decompile(); }},
        Routine{Command::Sort, [](MainWindow& window) { window.Sort(); }},
        Routine{Command::Verify, [](MainWindow& window) { window.Verify(); }},
        Routine{Command::Print, [](MainWindow& window) { window.Print(Purpose::Print); }},
        Routine{Command::Preview, [](MainWindow& window) { window.Print(Purpose::Preview); }},
        Routine{Command::CharacterTable, [](MainWindow& window) { window.ShowCharacterTable(); }},
        Routine{Command::Load, [](MainWindow& window) { window.LoadOrSaveSets(SetFiles::Load); }},
        Routine{Command::Save, [](MainWindow& window) { window.LoadOrSaveSets(SetFiles::Save); }},
        Routine{Command::Restore, [](MainWindow& window) { window.Restore(); }},
        Routine{Command::KeyChange, [](MainWindow& window) { window.KeyChange(); }},
        Routine{Command::Package, [](MainWindow& window) { window.Package(); }},
        Routine{Command::TravelTable, [](MainWindow& window) { window.ConvertTravelTable(); }},
        Routine{Command::Uses, [](MainWindow& window) { window.DoJump(Command::Uses); }},
        Routine{Command::Findings, [](MainWindow& window) { window.DoJump(Command::Findings); }},
        Routine{Command::GoToNamed, [](MainWindow& window) { window.DoJump(Command::GoToNamed); }},
        Routine{Command::GoToAnything, [](MainWindow& window) { window.DoJump(Command::GoToAnything); }},
        Routine{Command::Back, [](MainWindow& window) { window.DoJump(Command::Back); }},
        Routine{Command::Forward, [](MainWindow& window) { window.DoJump(Command::Forward); }},
        Routine{Command::Replace, [](MainWindow& window) { window.DoJump(Command::Replace); }},
        Routine{Command::Renumber, [](MainWindow& window) { window.DoJump(Command::Renumber); }},
        Routine{Command::Palette, [](MainWindow& window) { window.DoJump(Command::Palette); }},
        Routine{Command::OpenInTab, [](MainWindow& window) { window.OpenInTab(); }},
        Routine{Command::Filter, [](MainWindow& window) { window.records_->FilterLine().setFocus(); }},
        Routine{Command::Find, [](MainWindow& window) { window.FindOrAsk(Command::Find); }},
        Routine{Command::FindNext, [](MainWindow& window) { window.FindOrAsk(Command::FindNext); }},
        Routine{Command::Help,
                [](MainWindow& window) { window.help_.Show(qt::TopicOf(QApplication::focusWidget())); }},
        Routine{Command::HelpContents, [](MainWindow& window) { window.help_.Show({}); }},
        Routine{Command::AboutAdventure, [](MainWindow& window) { window.AboutAdventure(); }},
        Routine{Command::About, [](MainWindow& window) { window.About(); }},
    };
    return kRoutines;
}

void MainWindow::DoInLogic(Command command) {
    leftFor_.reset();
    afterDelete_.clear();
    const int changes = ide_.CurrentRow() >= 0 ? ide_.CurrentContext().document.Changes() : 0;
    const auto request = ide_.Run(command);
    if (request) Open(*request);
    if (leftFor_) return Jump(authoring::Jump(*leftFor_));
    if (!afterDelete_.empty() && ide_.CurrentContext().document.Changes() != changes)
        ide_.Say(ide_.Message() + ". " + afterDelete_);
    ShowChanges();
    // The new record is the one to go on with.
    if (request && request->key.isNew) records_->Grid().setFocus();
}

void MainWindow::Open(const authoring::ScreenRequest& request) {
    if (ide_.CurrentContext().document.IsReadOnly())
        return services_.dialogs.Tell(authoring::MainScreen::kOnlyToRead, "Fabula IDE");
    try {
        authoring::ScreenContext& context = ide_.CurrentContext();
        if (!OpenDrawingScreen(request, context, services_.settings, this))
            leftFor_ =
                OpenScreen(request, context, {services_.sound, services_.soundDevices}, navigator_, this);
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    ide_.ScreenClosed(request);
}

void MainWindow::ShowCharacterTable() {
    authoring::CharacterSetScreen screen(ide_.CurrentContext());
    CharacterTableDialog dialog(
        screen, services_.dialogs, [this](const authoring::ScreenRequest& request) { Open(request); },
        this);
    dialog.exec();
    ide_.Refresh();
    ShowChanges();
}

/// A load goes into the set of the row that is current.
void MainWindow::LoadOrSaveSets(authoring::CharacterSetFiles::Purpose purpose) {
    authoring::CharacterSetFiles screen(ide_.CurrentContext(), purpose,
                                        authoring::CharacterSetScreen(ide_.CurrentContext()).Set());
    try {
        if (!screen.Begin()) return;
    } catch (const Error& error) {
        return services_.dialogs.Tell(error.what(), "Error");
    }
    SetFilesDialog dialog(screen, services_.dialogs, this);
    dialog.exec();
    ide_.Refresh();
    ShowChanges();
}

void MainWindow::FindOrAsk(Command command) {
    if (command == Command::Find || !find_->isVisible() || ide_.Finder().text.empty()) return find_->Ask();
    DoInLogic(Command::Find);
}

void MainWindow::New() {
    const auto file = ide_.AskNewFile();
    if (!file) return;
    store::AdventureSetup setup;
    SetupDialog dialog(setup, this);
    if (dialog.exec() != QDialog::Accepted) return;
    ide_.NewAdventure(*file, setup, dialog.Starter());
    ShowChanges();
}

/// What was typed beside the rows goes into the copy: the old file may be what can't be written. Where it
/// is refused it stays as it was typed.
void MainWindow::SaveAs() {
    if (!ide_.SaveAs()) return;
    const std::string saved = ide_.Message();
    const bool stored = LeaveRecord();
    ide_.Say(saved);
    if (stored) return ShowChanges();
    shownFile_ = ide_.CurrentContext().document.File();
    ShowTitle();
    ShowRecent();
    ShowActions();
}

void MainWindow::Open(const std::filesystem::path& file) {
    if (!LeaveRecord()) return;
    ide_.OpenFile(file);
    ShowChanges();
}

void MainWindow::OpenExample(const Example& example) {
    try {
        Open(TakeExample(example, places_.ownGames));
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

void MainWindow::Sort() {
    authoring::SortScreen screen = ide_.OpenSort();
    SortDialog dialog(screen, services_.dialogs, this);
    dialog.exec();
    ide_.SortClosed();
    ShowChanges();
}

void MainWindow::Verify() {
    JobEvents events;
    authoring::VerifyScreen verify(ide_.CurrentContext().document.Adventure(), authoring::kForPlay, events);
    VerifyDialog dialog(verify, services_.dialogs, this);
    dialog.goTo = [this](const authoring::VerifyScreen::Entry& entry) { GoTo(entry); };
    dialog.exec();
    ide_.Refresh();
    ide_.Say(verify.Passed() ? "The adventure has passed." : "The adventure has not passed.");
    ShowChanges();
}

void MainWindow::Restore() {
    const auto screen = ide_.OpenRestore();
    if (screen) {
        RestoreDialog dialog(*screen, this);
        if (dialog.exec() == QDialog::Accepted) ide_.Restore(screen->Copies()[dialog.Chosen()]);
    }
    ShowChanges();
}

void MainWindow::KeyChange() {
    authoring::KeySelectScreen select(ide_.CurrentContext());
    KeySelectDialog selectDialog(select, this);
    if (selectDialog.exec() != QDialog::Accepted) return;
    authoring::KeyChangeScreen change(ide_.CurrentContext(), *selectDialog.Selection());
    KeyChangeDialog changeDialog(change, services_.dialogs, this);
    changeDialog.exec();
    ide_.Refresh();
    ShowChanges();
}

void MainWindow::Print(listings::PrintScreen::Purpose purpose) {
    std::filesystem::path saved;
    try {
        store::Adventure& adventure = ide_.CurrentContext().document.Adventure();
        const authoring::TableView view = ide_.Grid().View();
        const PrintServices services{adventure, services_.dialogs, services_.print};
        listings::PrintScreen screen(adventure, view.table, view.process, purpose, services_.dialogs);
        PrintDialog dialog(screen, services, this);
        const bool ready = dialog.exec() == QDialog::Accepted && dialog.Job();
        saved = dialog.Saved();
        if (ready && purpose == listings::PrintScreen::Purpose::Preview) {
            listings::PrintPreview preview(*dialog.Job(), adventure);
            PreviewDialog(preview, services, this).exec();
        }
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    ide_.Refresh();
    if (!saved.empty()) ide_.Say("Saved the listing as " + saved.filename().string() + ".");
    ShowChanges();
}

/// The box of the steps that bring a file up to date; no steps end it.
void MainWindow::ShowUpgrade(std::string_view steps) {
    if (steps.empty()) return upgrade_.reset();
    if (!upgrade_) {
        upgrade_ = std::make_unique<QProgressDialog>(this);
        upgrade_->setObjectName("upgrade");
        upgrade_->setWindowTitle(tr("Updating the adventure"));
        upgrade_->setWindowModality(Qt::WindowModal);
        upgrade_->setCancelButton(nullptr);
        upgrade_->setRange(0, 0);
        upgrade_->setMinimumDuration(0);
    }
    upgrade_->setLabelText(qt::Translated(steps));
    upgrade_->show();
    services_.events.Pump();
}

void MainWindow::ChooseType(store::AdventureSetup& setup) {
    SetupDialog dialog(setup, this);
    dialog.AskForExisting();
    dialog.exec();
}

void MainWindow::GoTo(const authoring::VerifyScreen::Entry& entry) {
    ide_.Show({store::TableNum::ProcessTables, std::min(entry.estype, authoring::kOtherProcesses)});
    if (const auto row = ide_.Grid().RowOf(entry.canum)) ide_.SelectRow(*row);
}

void MainWindow::ImportOrExport(authoring::JobMode mode) {
    const bool open = ide_.GetState() != authoring::MainScreen::State::NoAdventure;
    JobEvents events;
    authoring::InterchangeScreen screen(
        mode, open ? &ide_.CurrentContext().document.Adventure() : nullptr,
        {services_.dialogs, services_.clock, events, services_.settings, places_.desk.defaultData});
    InterchangeDialog dialog(screen, services_.dialogs, this);
    dialog.exec();
    if (screen.NewFile()) ide_.OpenFile(*screen.NewFile());
    if (mode == authoring::JobMode::Export && screen.Done())
        ide_.Say("Exported to " + std::filesystem::path(screen.source).filename().string() + ".");
    ShowChanges();
}

void MainWindow::ImportGraphic() {
    authoring::Document& document = ide_.CurrentContext().document;
    const int changes = document.Changes();
    JobEvents events;
    authoring::InterchangeScreen screen(
        document,
        {services_.dialogs, services_.clock, events, services_.settings, places_.desk.defaultData},
        ide_.PictureTarget().value_or(0));
    InterchangeDialog dialog(screen, services_.dialogs, this);
    dialog.exec();
    ide_.PicturesLoaded(changes);
    ShowChanges();
}

void MainWindow::Decompile() {
    JobEvents events;
    authoring::DecompileScreen screen({services_.dialogs, events, services_.settings, services_.programs});
    DecompileDialog dialog(screen, this);
    dialog.exec();
    ShowChanges();
}

void MainWindow::Package() {
    try {
        const auto engine =
            std::filesystem::path(qt::FromQt(QApplication::applicationDirPath())) / "FabulaEngine";
        std::error_code error;  // what can't be looked at is not there
        const bool installed = std::filesystem::is_regular_file(engine, error);
        const auto screen = packages::PackageScreen::Open(ide_.CurrentContext(), services_.settings,
                                                          {installed ? engine : std::filesystem::path()});
        if (screen) {
            screen->look = [](const std::filesystem::path& file) {
                QDesktopServices::openUrl(QUrl::fromLocalFile(qt::ToQt(file.string())));
            };
            PackageDialog(*screen, this).exec();
            screen->Leave();
        }
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    ide_.Refresh();
    ShowChanges();
}

void MainWindow::ConvertTravelTable() {
    authoring::Document& document = ide_.CurrentContext().document;
    const std::filesystem::path folder = document.Adventure().GameDir();
    interchange::NoObserver nobody;
    interchange::JobStatus status(nobody);
    try {
        const auto result = packages::Analyze_advent(document, folder / packages::kTravelData,
                                                     folder / packages::kTravelReport, status);
        ide_.Refresh();
        if (result.done) {
            ide_.Say(std::to_string(result.wordsAdded) + " words added; the report is " +
                     packages::kTravelReport + ".");
        } else {
            services_.dialogs.Report(status.Text() + "Nothing was changed.", "Convert Travel Table");
        }
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
    ShowChanges();
}

void MainWindow::StartTest() {
    const auto run = ide_.BeginTrial();
    if (!run) return ShowChanges();
    try {
        test_ = std::make_unique<TrialRun>(
            *run,
            player::WindowServices{.timers = services_.timers,
                                   .dialogs = services_.dialogs,
                                   .sound = services_.sound,
                                   .random = services_.random,
                                   .settings = services_.store,
                                   .dataFolder = places_.playersData,
                                   .help = [this](const qt::HelpTopic& topic) { help_.Show(topic); }},
            services_.clock.Now(), [this] { EndTest(); });
        hide();
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
        EndTest();
    }
}

void MainWindow::SoundFailed(const std::string& sentence) {
    if (test_) test_->Window().SoundFailed(sentence);
}

void MainWindow::EndTest() {
    test_.reset();
    ide_.EndTrial();
    show();
    activateWindow();
    ShowChanges();
    records_->Grid().setFocus();
}

void MainWindow::AboutAdventure() {
    const bool open = ide_.GetState() != authoring::MainScreen::State::NoAdventure;
    store::Adventure* const adventure = open ? &ide_.CurrentContext().document.Adventure() : nullptr;
    player::ShowAbout(player::AboutAdventure::Of(adventure), this);
}

void MainWindow::About() {
    services_.dialogs.Tell("Fabula IDE " + qt::FromQt(QApplication::applicationVersion()),
                           "About Fabula IDE");
}

}  // namespace fabula::ide
