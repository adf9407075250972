#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "platform/clock.h"
#include "platform/operator.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// Backup copies of adventures, in a folder of their own for each: below `folder`, named by the adventure's
/// file and its place. A copy is named by the file, the date and the time.
class Backups {
  public:
    Backups(std::filesystem::path folder, const platform::Clock& clock);

    /// Copies the adventure as it stands, and deletes what is then more than the last kMostBackups copies.
    /// A copy that would be byte for byte the latest one is not made: nullopt. Throws fabula::Error; the
    /// older copies are then as they were.
    std::optional<std::filesystem::path> Add(store::Adventure& adventure);

    /// The copies of an adventure file, the latest first.
    std::vector<std::filesystem::path> Of(const std::filesystem::path& adventure) const;

    static constexpr std::size_t kMostBackups = 10;

  private:
    std::filesystem::path FolderOf(const std::filesystem::path& adventure) const;

    std::filesystem::path folder_;
    const platform::Clock& clock_;
};

/// Makes the backup copy of an adventure that was just opened. When that fails the person is told, and work
/// goes on.
void BackUpAtOpening(Backups& backups, store::Adventure& adventure, platform::Operator& person);

}  // namespace fabula::authoring
