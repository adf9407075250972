#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/files/backups.h"

namespace fabula::authoring {

/// "Restore a Backup": the copies of the open adventure with their dates and sizes, and in how many records
/// each differs from what is open.
class RestoreScreen {
  public:
    static constexpr std::string_view kTitle = "Restore a Backup";

    /// The copies, the latest first; the adventure outlives the screen.
    RestoreScreen(std::vector<Backup> backups, store::Adventure& now);

    const std::vector<Backup>& Copies() const { return copies_; }
    /// "2026-03-09 08:05:07" and "120 KB".
    std::string MadeOf(std::size_t copy) const;
    std::string SizeOf(std::size_t copy) const;
    /// What is different, a line for each table: "Messages: 12 in the copy, 14 now"; a sentence when the
    /// counts are the same, or when the copy can't be read.
    std::string ComparisonOf(std::size_t copy) const;

  private:
    std::vector<Backup> copies_;
    store::Adventure& now_;
};

}  // namespace fabula::authoring
