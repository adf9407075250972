#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/document.h"
#include "authoring/jobs/new_locations_screen.h"
#include "authoring/jobs/verify_screen.h"
#include "interchange/jobs.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "platform/settings.h"

namespace fabula::authoring {

/// What the job dialog is for.
enum class JobMode {
    Import,
    Export,
    LoadGraphic,  ///< pictures of a listing into records
};

/// What the job dialog needs of its program.
struct InterchangeHost {
    platform::Dialogs& dialogs;
    const platform::Clock& clock;
    platform::EventPump& events;
    platform::Settings& settings;
    std::filesystem::path defaultData;  ///< the file Fabula.ini
};

/// The dialog of an import or export: a kind of file, the file, for an import the new adventure, for a load
/// of pictures their numbers, and the status of the job. The job runs within `RunJob`; the window gets its
/// turns meanwhile.
class InterchangeScreen final : private interchange::JobObserver {
  public:
    /// An import or an export. `adventure` is the open one, nullptr when there is none; an export needs
    /// one.
    InterchangeScreen(JobMode mode, store::Adventure* adventure, const InterchangeHost& host);
    /// A load of pictures into the record of that number, and into those behind it.
    InterchangeScreen(Document& document, const InterchangeHost& host, int record);

    std::string Title() const;
    std::string_view StatusCaption() const;  ///< "Import Status", "Export Status"
    std::string_view MainButton() const;     ///< "&Import", "&Export", "&Load"
    static constexpr std::string_view kPrintButton = "&Print Status";
    JobMode Mode() const { return mode_; }

    /// The kinds of files that are offered, in the order of the options.
    const std::vector<const interchange::FileKind*>& Kinds() const { return kinds_; }
    std::size_t ChosenKind() const { return chosen_; }
    /// False, and nothing chosen, for an option that is not there, and while a job runs.
    bool ChooseKind(std::size_t option);

    /// How the letters of a source are read, in the order of a list. Exports have no choice.
    struct EncodingOption {
        std::string_view name;
        interchange::Encoding encoding;
    };
    static std::span<const EncodingOption> Encodings();
    interchange::Encoding encoding = interchange::Encoding::Detect;

    /// The file that is read, or written by an export, and the adventure that an import makes. Names
    /// without a folder lie beside the open adventure. An export proposes the adventure's name, with the
    /// extension of the chosen kind as long as the proposal stands.
    std::string source;
    std::string database;
    /// The pictures of the listing that are loaded: "3,7-9".
    std::string records;

    /// Ask for the files. A source proposes the database, in its folder, and its kind where it tells.
    void ChooseSource();
    void ChooseDatabase();

    /// The main button. Nothing while a job runs or after one is done. True when the job was done.
    bool RunJob();
    /// Ends a job that runs; what it has made goes.
    void Cancel() { cancel_ = true; }

    bool Running() const { return running_; }
    bool Done() const { return done_; }
    bool CanRun() const { return !running_ && !done_ && WhyNot().empty(); }
    /// Whether there is a status to be printed, copied or saved.
    bool CanPrint() const { return printable_ && !running_; }
    /// Why the main button is switched off in this mode: a sentence, or "".
    std::string_view WhyNot() const;

    const std::string& Status() const { return status_; }
    std::int64_t Bar() const { return bar_; }
    std::int64_t BarMaximum() const { return barMaximum_; }  ///< 0 while it is not known
    bool SaveStatus();

    /// The adventure that an import has made, to be opened as the current one. The setting `File` names it
    /// already.
    const std::optional<std::filesystem::path>& NewFile() const { return newFile_; }

    /// Called when what is shown has changed.
    std::function<void()> changed = [] {};
    /// Shows the window of the check before an export and runs it there; returns when the check is finished
    /// and, unless it has passed, the window was closed.
    std::function<void(VerifyScreen&)> showVerify = [](VerifyScreen& verify) { verify.Run(); };
    /// Shows the window that asks where pictures go that were loaded, when one of them draws others.
    std::function<void(NewLocationsScreen&)> showNewLocations = [](NewLocationsScreen&) {};

  private:
    void StatusAdded(std::string_view text) override;
    void StatusCleared() override;
    void Progress(std::int64_t value, std::int64_t maximum) override;
    bool CancelWanted() override { return cancel_; }

    void Choose(const interchange::FileKind& kind);
    void ChooseKindOf(const std::filesystem::path& file);
    const interchange::FileKind& Kind() const { return *kinds_[chosen_]; }
    std::string ProposedTarget() const;
    std::string Placed(const std::string& typed) const;
    bool ImportIt();
    bool ExportIt();
    bool LoadGraphics();
    bool Verify(store::Adventure& adventure, const interchange::FileKind& kind,
                interchange::JobStatus& status);
    bool Run(const std::function<bool()>& job);
    interchange::JobHost JobHost();
    void Show();

    JobMode mode_;
    store::Adventure* adventure_;
    Document* document_ = nullptr;  ///< of a load of pictures
    InterchangeHost host_;
    int record_ = 0;
    std::vector<const interchange::FileKind*> kinds_;
    std::size_t chosen_ = 0;
    std::filesystem::path agreed_;  ///< a file that its dialog has asked about already
    std::string status_;
    std::int64_t bar_ = 0;
    std::int64_t barMaximum_ = 0;
    std::int64_t yielded_ = 0;  ///< the ten of the bar at which the window had its turn
    bool cancel_ = false;
    bool running_ = false;
    bool done_ = false;
    bool printable_ = false;
    std::optional<std::filesystem::path> newFile_;
};

}  // namespace fabula::authoring
