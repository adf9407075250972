#pragma once

#include <string>
#include <string_view>

#include "interchange/shared/job_host.h"
#include "interchange/shared/target_file.h"

namespace fabula::interchange {

/// The most that an object weighs in a listing: its weight has two digits.
inline constexpr int kHeaviestListed = 99;

/// The file of an extract while it is written, and the losses that go with its records.
class UnVelFile {
  public:
    explicit UnVelFile(ExportContext& context) : context_(context), file_(context.target) {}

    /// Adds a line. A character that the file can't hold becomes "?" and is told.
    void Line(std::string_view line);
    /// A title and dashes of its length, as comments or not.
    void UnVelHdr(std::string_view title, bool blankFirst, bool comment = false);
    /// A line and a text below it, as comments or not. `label` is the section's word for its records, to
    /// tell a text that would be taken for the head of the next one.
    void WriteUnVelDesc(const std::string& head, std::string_view text, std::string_view label,
                        bool comment = false);

    /// Names the record that is being written, for reports.
    void Record(std::string record) { record_ = std::move(record); }
    void Loss(const std::string& what) { context_.status.AddLoss(record_ + ": " + what); }

    /// A word in `letters` columns; one that is cut, or can't be read back, is told.
    std::string Word(std::string_view word, std::size_t letters);

    void Finish() { file_.Finish(); }

  private:
    ExportContext& context_;
    TargetFile file_;
    std::string record_;
};

/// Writes the pictures, then the characters.
void WriteUnVelPictures(ExportContext& context, UnVelFile& file);
void WriteUnVelCharacters(ExportContext& context, UnVelFile& file);

}  // namespace fabula::interchange
