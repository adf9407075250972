#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace fabula::interchange {

/// Who watches a job: a window with a status box and a bar, or a terminal.
class JobObserver {
  public:
    virtual ~JobObserver() = default;

    /// Text was added to the status, as it stands, line ends ("\n") included.
    virtual void StatusAdded(std::string_view text) = 0;
    virtual void StatusCleared() = 0;
    /// A line that tells how far the work is; it is no part of the status.
    virtual void ProgressLine(std::string_view /*text*/) {}
    /// Called often; must be cheap. `maximum` is 0 while the length of the work is not known.
    virtual void Progress(std::int64_t value, std::int64_t maximum) = 0;
    /// Asked about as often as Progress is told. True ends the job, and what it has made goes.
    virtual bool CancelWanted() = 0;
};

/// For jobs that nobody watches.
class NoObserver final : public JobObserver {
  public:
    void StatusAdded(std::string_view) override {}
    void StatusCleared() override {}
    void Progress(std::int64_t, std::int64_t) override {}
    bool CancelWanted() override { return false; }
};

/// Ends a job that was cancelled. Only the jobs themselves throw and catch it.
class JobCancelled : public std::runtime_error {
  public:
    JobCancelled() : std::runtime_error("the job was cancelled") {}
};

/// A place in a source file, for reports.
struct SourcePlace {
    std::filesystem::path file;
    std::int64_t line = 0;  ///< from 1
    std::string text;
};

/// The status box and progress bar of a job, and the count of what was wrong in its source.
class JobStatus {
  public:
    explicit JobStatus(JobObserver& observer) : observer_(observer) {}

    /// Adds to the status; the text "CLS", in any case, clears it.
    void AddToStatus(std::string_view text);
    /// The same with a line end behind it.
    void AddToStatusCR(std::string_view text);

    /// A fault in the source: its message, and a line that tells where: "    file:7: the line". Throws
    /// TooManyFaults at the 1,000th.
    void AddFault(std::string_view message, const SourcePlace& place);
    /// A record that is not carried whole.
    void AddLoss(std::string_view message);

    void AddProgressLine(std::string_view text) { observer_.ProgressLine(text); }

    /// Sets the bar's end and goes back to its start.
    void StartBar(std::int64_t maximum);
    void IncBar(std::int64_t step);
    /// Throws JobCancelled when the observer wants it.
    void SetBar(std::int64_t value);

    const std::string& Text() const { return text_; }
    int Faults() const { return faults_; }
    int Losses() const { return losses_; }

  private:
    JobObserver& observer_;
    std::string text_;
    int faults_ = 0;
    int losses_ = 0;
    std::int64_t value_ = 0;
    std::int64_t maximum_ = 0;
};

/// A source with so many faults that it is none.
class TooManyFaults : public std::runtime_error {
  public:
    TooManyFaults() : std::runtime_error("the source has too many faults") {}
};

inline constexpr int kMostFaults = 1000;

}  // namespace fabula::interchange
