#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "interchange/shared/job_status.h"
#include "interchange/shared/source_file.h"

namespace fabula::interchange {

/// The lines of a PC or ACE source: comments cut off, and the files that "/LNK" names read behind one
/// another. A link replaces the rest of its file, which is a fault where it holds more than comments. It
/// must name a file in the source's folder or below that
/// was not read before; any other is a fault that ends the reading.
class PcLines {
  public:
    /// `kind` stands in the status line of each file.
    PcLines(const std::filesystem::path& source, char comment, std::string kind, JobStatus& status,
            Encoding encoding = Encoding::Detect);

    /// Calls `watch` with each comment that is read from here on, without its character.
    using CommentWatch = std::function<void(std::string_view comment, const SourcePlace& place)>;
    void WatchComments(CommentWatch watch) { watch_ = std::move(watch); }

    /// The next line; false behind the last. With `skipBlank` blank lines are left out.
    bool RdSrcFile(std::string& line, bool skipBlank);

    /// Where the latest line stands, as the file has it.
    SourcePlace Place() const { return {file_->File(), file_->LineNumber()}; }

    /// A link could not be followed.
    bool Failed() const { return failed_; }

    /// The comments behind which the source hides what its sections have no place for (source_extras.h), so
    /// far, without the comment character.
    struct Extra {
        std::string text;
        SourcePlace place;
    };
    const std::vector<Extra>& Extras() const { return extras_; }

    /// The comment to the record that begins at the latest line: the lines in front of it that hold it,
    /// with line-end markers between them. It is given once; "" where there is none.
    std::string TakeComment();

    /// The game's name, when a comment at the head tells it as the writer of these files does.
    const std::string& AdventureName() const { return adventureName_; }

  private:
    void Open(const std::filesystem::path& file);
    void TakeExtra(std::string line);
    void TakeName(std::string_view comment);
    void Follow(const std::string& line);
    void TellLinesBehindLink();

    char comment_;
    std::string kind_;
    JobStatus& status_;
    Encoding encoding_;
    std::filesystem::path source_;
    std::filesystem::path folder_;
    std::unique_ptr<SourceFile> file_;
    std::set<std::filesystem::path> read_;
    std::string whole_;
    std::vector<Extra> extras_;
    std::optional<std::string> pendingComment_;  ///< read and not taken yet
    std::string adventureName_;
    bool failed_ = false;
    CommentWatch watch_;
};

/// Cuts a comment off the line, with the blanks in front of it; false for a line that is nothing but a
/// comment.
bool CutComment(std::string& line, char comment);

/// What stands in front of the game's name in a comment.
inline constexpr std::string_view kAdventureNameMark = "Adventure Name: ";

}  // namespace fabula::interchange
