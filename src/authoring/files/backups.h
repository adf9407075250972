#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/person.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// A backup copy, as it is shown.
struct Backup {
    std::filesystem::path file;
    platform::DateTime made;  ///< as the clock said
    std::uintmax_t size = 0;  ///< in bytes
};

/// Backup copies of adventures, in a folder of their own for each: below `folder`, named by the adventure's
/// file and its place. A copy is named by the file, the date and the time, and from the second on by its
/// number in the order of making ("game_20260309_080507_12.fbd"), since a clock may be set back.
class Backups {
  public:
    Backups(std::filesystem::path folder, const platform::Clock& clock);

    /// Copies the adventure as it stands, and deletes what is then neither among the last kMostBackups
    /// copies nor the last one of one of the last kDaysKept days. A copy that would be byte for byte the
    /// latest one is not made: nullopt. Throws fabula::Error; the older copies are then as they were.
    std::optional<std::filesystem::path> Add(store::Adventure& adventure);

    /// The copies of an adventure file, the latest first, in the order of their making.
    std::vector<std::filesystem::path> Of(const std::filesystem::path& adventure) const;
    std::vector<Backup> List(const std::filesystem::path& adventure) const;

    /// Writes a text that is in no adventure yet beside the copies, in place of one from before, and gives
    /// its file. Throws fabula::Error.
    std::filesystem::path KeepTyped(const std::filesystem::path& adventure, std::string_view text) const;

    static constexpr std::size_t kMostBackups = 10;
    static constexpr int kDaysKept = 7;

  private:
    std::filesystem::path FolderOf(const std::filesystem::path& adventure) const;
    void DeleteOld(const std::filesystem::path& adventure) const;

    std::filesystem::path folder_;
    const platform::Clock& clock_;
};

/// How many records of a table a backup holds, and how many the adventure holds now.
struct CountDifference {
    std::string table;
    std::int64_t inBackup = 0;
    std::int64_t now = 0;

    friend bool operator==(const CountDifference&, const CountDifference&) = default;
};

/// The tables whose counts differ, in the order of their numbers.
std::vector<CountDifference> CompareCounts(store::Adventure& backup, store::Adventure& now);

/// Makes the backup copy of an adventure that was just opened. When that fails the person is told, and work
/// goes on.
void BackUpAtOpening(Backups& backups, store::Adventure& adventure, platform::Person& person);

}  // namespace fabula::authoring
