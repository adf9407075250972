#include "authoring/files/restore_screen.h"

#include <utility>

#include "platform/error.h"
#include "text/moment.h"

namespace fabula::authoring {
namespace {

constexpr std::uintmax_t kKilobyte = 1024;

}  // namespace

RestoreScreen::RestoreScreen(std::vector<Backup> backups, store::Adventure& now)
    : copies_(std::move(backups)), now_(now) {}

std::string RestoreScreen::MadeOf(std::size_t copy) const {
    return text::StoredMoment(copies_.at(copy).made);
}

std::string RestoreScreen::SizeOf(std::size_t copy) const {
    return std::to_string((copies_.at(copy).size + kKilobyte - 1) / kKilobyte) + " KB";
}

std::string RestoreScreen::ComparisonOf(std::size_t copy) const {
    try {
        const auto backup =
            store::Adventure::Open(copies_.at(copy).file, store::OpenMode::ReadOnly, store::Ages::Any);
        std::string lines;
        for (const CountDifference& difference : CompareCounts(*backup, now_)) {
            lines += difference.table + ": " + std::to_string(difference.inBackup) + " in the copy, " +
                     std::to_string(difference.now) + " now\n";
        }
        return lines.empty() ? "Each table has as many records as now." : lines;
    } catch (const Error& error) {
        return error.what();
    }
}

}  // namespace fabula::authoring
