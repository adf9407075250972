#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "authoring/jobs/verify.h"
#include "interchange/shared/job_status.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// The status window of a check of the adventure.
class VerifyScreen final : private interchange::JobObserver {
  public:
    VerifyScreen(store::Adventure& adventure, VerifyTarget target, platform::EventPump& events);

    /// "Verify Adventure", or for an export "Verify for export".
    std::string_view Title() const;

    /// Runs the check, once; what is shown grows meanwhile, and the window gets its turns. Throws
    /// fabula::Error when the file can't be read; the check is finished then, too.
    void Run();

    /// The OK button: ends a check that runs.
    void Ok();

    bool Running() const { return running_; }
    bool Finished() const { return finished_; }
    /// Whether there was no error. A check that was ended early has not passed.
    bool Passed() const { return passed_; }

    const std::string& Status() const { return status_; }
    /// How far the check is: "    Process 25"; "" when there is nothing to say.
    const std::string& ProgressLine() const { return progress_; }

    bool SaveStatus(platform::Dialogs& dialogs) const;

    /// Called when what is shown has changed.
    std::function<void()> changed = [] {};

    /// A record of `ProcessTables`.
    struct Entry {
        int estype = 0;
        int canum = 0;
    };
    /// The process entry that a line of the status names: "Process Table 0 Entry # 12 (...".
    static std::optional<Entry> EntryOf(std::string_view line);

  private:
    void StatusAdded(std::string_view text) override;
    void StatusCleared() override;
    void ProgressLine(std::string_view text) override;
    void Progress(std::int64_t value, std::int64_t maximum) override;
    bool CancelWanted() override { return cancel_; }
    void Show();
    void Finish();

    store::Adventure& adventure_;
    VerifyTarget target_;
    platform::EventPump& events_;
    std::string status_;
    std::string progress_;
    std::int64_t yielded_ = 0;  ///< the ten of the bar at which the window had its turn
    bool cancel_ = false;
    bool running_ = false;
    bool finished_ = false;
    bool passed_ = false;
};

}  // namespace fabula::authoring
