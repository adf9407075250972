#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "interchange/shared/job_status.h"
#include "interchange/shared/source_file.h"

namespace fabula::interchange {

/// The most objects that a listing can say the player carries.
inline constexpr int kMostCarried = 255;
/// What stands in an entry for any word.
inline constexpr std::string_view kAnyWord = "-";

/// The lines of a decompiler's listing, with a look at the line ahead. The bar of the job goes with the
/// bytes that were read.
class ListingLines {
  public:
    /// Throws fabula::Error when the file can't be read or is too large.
    ListingLines(const std::filesystem::path& listing, JobStatus& status);

    /// The next line, without its end; false behind the last.
    bool Next(std::string& line);
    /// The line that `Next` will give; nullptr behind the last. Valid until then.
    const std::string* Peek();

    /// Of the line that `Next` gave last; a long line is cut.
    SourcePlace Place() const;

  private:
    SourceFile file_;
    JobStatus& status_;
    std::optional<std::string> ahead_;
    std::string shown_;
    std::int64_t lineNumber_ = 0;
};

// The fixed columns of a listing. Columns count from 0 and code points; a range reaches at most to the end
// of its line.

struct Columns {
    std::size_t first = 0;
    std::size_t count = 0;
};

/// What stands in the columns, as it is.
std::string_view Cut(std::string_view line, Columns columns);
/// The same without blanks at its ends.
std::string_view CutTrimmed(std::string_view line, Columns columns);

/// A number of digits alone, at most `highest`.
std::optional<int> ListedNumber(std::string_view token, int highest);

}  // namespace fabula::interchange
