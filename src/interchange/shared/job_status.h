#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fabula::interchange {

// What readers of several kinds of source tell.
inline constexpr const char* kBadLine = "ERROR: This line can't be understood.";
inline constexpr const char* kTooManyWords = "ERROR: There are too many words.";
inline constexpr const char* kSectionBehind = "ERROR: The section stands behind one that must follow it.";
inline constexpr const char* kWrongTypeOfField = "The value is not of the type of its field.";

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
    std::filesystem::path file;  ///< as it was named to the job
    std::int64_t line = 0;       ///< from 1
    std::string text = {};       ///< of the line
    std::int64_t column = 1;     ///< from 1, in characters
};

/// Something wrong in a source or an adventure.
struct Fault {
    std::string message;               ///< in one line
    std::optional<SourcePlace> place;  ///< nothing where no source is at hand
    std::string entry;                 ///< the record at fault, in words; "" where the place tells enough

    /// "games/cellar.sce:36:14: fault: GET LAMP: Word2 (LAMP) is not a Noun"; without a place only what
    /// stands behind "fault: ".
    std::string Line() const;
};

/// The status box and progress bar of a job, and what was wrong in its source.
class JobStatus {
  public:
    explicit JobStatus(JobObserver& observer) : observer_(observer) {}

    /// Adds to the status; the text "CLS", in any case, clears it.
    void AddToStatus(std::string_view text);
    /// The same with a line end behind it.
    void AddToStatusCR(std::string_view text);

    /// A fault in the source, told on one line with its place. Line ends in the message become blanks.
    /// Throws TooManyFaults at the 1,000th.
    void AddFault(std::string_view message, const SourcePlace& place, std::string_view entry = "");
    /// Any fault, told as `text`, which may have several lines.
    void Report(Fault fault, std::string_view text);
    void Report(Fault fault);
    /// A record that is not carried whole.
    void AddLoss(std::string_view message);

    /// Takes over the faults of a job before this one; they are not told again.
    void Continue(const std::vector<Fault>& faults) { faults_ = faults; }

    void AddProgressLine(std::string_view text) { observer_.ProgressLine(text); }

    /// Sets the bar's end and goes back to its start.
    void StartBar(std::int64_t maximum);
    void IncBar(std::int64_t step);
    /// Throws JobCancelled when the observer wants it.
    void SetBar(std::int64_t value);

    const std::string& Text() const { return text_; }
    int Faults() const { return static_cast<int>(faults_.size()); }
    const std::vector<Fault>& AllFaults() const { return faults_; }
    int Losses() const { return losses_; }

  private:
    JobObserver& observer_;
    std::string text_;
    std::vector<Fault> faults_;
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
