#pragma once

#include <iostream>

#include "interchange/shared/job_status.h"

namespace fabula::cli {

/// Shows a job on a stream: its status as it grows, and on a terminal a line of progress, which the next
/// text replaces.
class JobTerminal final : public interchange::JobObserver {
  public:
    explicit JobTerminal(std::ostream& stream, bool showsProgress);

    void StatusAdded(std::string_view text) override;
    void StatusCleared() override {}
    void ProgressLine(std::string_view text) override;
    void Progress(std::int64_t value, std::int64_t maximum) override;
    bool CancelWanted() override;

  private:
    void ClearProgress();

    std::ostream& stream_;
    bool showsProgress_;
    bool progressShown_ = false;
    std::int64_t shownPercent_ = -1;
};

/// Whether standard error is a terminal.
bool ErrorsGoToTerminal();

}  // namespace fabula::cli
