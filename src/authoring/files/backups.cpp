#include "authoring/files/backups.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <system_error>
#include <utility>

#include "platform/error.h"
#include "platform/file_names.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "text/numbers.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

constexpr std::size_t kChunk = 65536;

std::string NameOfCopy(const path& adventure) {
    return platform::SafeFileName(adventure.stem().string());
}

std::string Stamp(const platform::DateTime& time) {
    char stamp[64];
    std::snprintf(stamp, sizeof stamp, "%04d%02d%02d_%02d%02d%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return stamp;
}

/// What stands behind the adventure's name in that of a copy: date and time; "d" is a digit.
constexpr std::string_view kForm = "_dddddddd_dddddd";

/// Whether a file is a copy of ours, by its name: the adventure's name, a date and a time, and perhaps a
/// count.
bool IsCopyOf(const std::string& name, const path& file) {
    const std::string stem = file.stem().string();
    if (file.extension() != store::extension::kAdventure || !stem.starts_with(name + "_")) return false;
    const std::string_view rest = std::string_view(stem).substr(name.size());
    if (rest.size() < kForm.size()) return false;
    for (std::size_t i = 0; i < rest.size(); ++i) {
        const bool digit = rest[i] >= '0' && rest[i] <= '9';
        const bool wantsDigit = i < kForm.size() ? kForm[i] == 'd' : i > kForm.size();
        if (wantsDigit ? !digit : rest[i] != '_') return false;
    }
    return true;
}

bool SameBytes(const path& left, const path& right) {
    std::error_code error;  // what can't be measured differs
    if (std::filesystem::file_size(left, error) != std::filesystem::file_size(right, error) || error)
        return false;
    std::ifstream leftStream(left, std::ios::binary);
    std::ifstream rightStream(right, std::ios::binary);
    std::array<char, kChunk> leftBytes;
    std::array<char, kChunk> rightBytes;
    while (leftStream && rightStream) {
        leftStream.read(leftBytes.data(), kChunk);
        rightStream.read(rightBytes.data(), kChunk);
        const auto count = leftStream.gcount();
        if (count != rightStream.gcount() ||
            !std::equal(leftBytes.data(), leftBytes.data() + count, rightBytes.data()))
            return false;
    }
    return leftStream.eof() && rightStream.eof();
}

/// Copies the file while its records are being read, so that no other program writes it meanwhile. The file
/// is opened once only: its locks are those of the process, and go when any opening of it is closed.
void CopyWhileLocked(store::Adventure& adventure, const path& target) {
    const store::ReadTransaction reading(adventure);
    store::PreparedQuery anything = adventure.Prepare(store::TableNum::System, "systemnum", "");
    anything.First({});
    std::filesystem::copy_file(adventure.CurrentFile(), target,
                               std::filesystem::copy_options::overwrite_existing);
}

/// The place of a copy in the order of making, from the number behind its date and time; the first has
/// none.
std::int64_t NumberOfCopy(const std::string& name, const path& copy) {
    const std::string stem = copy.stem().string();
    const std::size_t behindDate = name.size() + kForm.size() + 1;
    if (stem.size() <= behindDate) return 1;
    return text::WholeNumber(std::string_view(stem).substr(behindDate)).value_or(1);
}

/// The eight digits of the day that a copy was made on.
std::string DayOf(const std::string& name, const path& copy) {
    return copy.stem().string().substr(name.size() + 1, 8);
}

platform::DateTime TimeOf(const std::string& name, const path& copy) {
    const std::string stem = copy.stem().string().substr(name.size() + 1);
    const auto number = [&](std::size_t at, std::size_t length) {
        return static_cast<int>(text::WholeNumber(stem.substr(at, length)).value_or(0));
    };
    return {number(0, 4), number(4, 2), number(6, 2), number(9, 2), number(11, 2), number(13, 2)};
}

/// The days up to `last`, as DayOf gives them.
std::vector<std::string> DaysUpTo(const platform::DateTime& last, int count) {
    using namespace std::chrono;
    const sys_days today =
        year(last.year) / month(static_cast<unsigned>(last.month)) / day(static_cast<unsigned>(last.day));
    std::vector<std::string> result;
    for (int back = 0; back < count; ++back) {
        const year_month_day day(today - days(back));
        result.push_back(Stamp({static_cast<int>(day.year()), static_cast<int>(unsigned{day.month()}),
                                static_cast<int>(unsigned{day.day()})})
                             .substr(0, 8));
    }
    return result;
}

}  // namespace

Backups::Backups(path folder, const platform::Clock& clock) : folder_(std::move(folder)), clock_(clock) {}

path Backups::FolderOf(const path& adventure) const {
    return folder_ / (NameOfCopy(adventure) + "-" + platform::PlaceCode(adventure));
}

std::vector<path> Backups::Of(const path& adventure) const {
    const std::string name = NameOfCopy(adventure);
    std::vector<path> copies;
    std::error_code error;  // without the folder there is no copy yet
    for (std::filesystem::directory_iterator entry(FolderOf(adventure), error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->is_regular_file(error) && IsCopyOf(name, entry->path())) copies.push_back(entry->path());
    }
    // Copies of older programs have no numbers but for those of the same second; their dates tell.
    std::sort(copies.begin(), copies.end(), [&](const path& left, const path& right) {
        return std::pair(NumberOfCopy(name, right), right.stem().string()) <
               std::pair(NumberOfCopy(name, left), left.stem().string());
    });
    return copies;
}

std::vector<Backup> Backups::List(const path& adventure) const {
    std::vector<Backup> backups;
    for (const path& copy : Of(adventure)) {
        std::error_code error;  // a copy that goes meanwhile shows as empty
        const std::uintmax_t size = std::filesystem::file_size(copy, error);
        backups.push_back({copy, TimeOf(NameOfCopy(adventure), copy), error ? 0 : size});
    }
    return backups;
}

void Backups::DeleteOld(const path& adventure) const {
    const std::vector<path> copies = Of(adventure);
    std::vector<std::string> wanted = DaysUpTo(clock_.Now(), kDaysKept);
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const bool lastOfItsDay = std::erase(wanted, DayOf(NameOfCopy(adventure), copies[i])) > 0;
        if (i >= kMostBackups && !lastOfItsDay) std::filesystem::remove(copies[i]);
    }
}

std::optional<path> Backups::Add(store::Adventure& adventure) {
    const path source = adventure.CurrentFile();
    const std::string doing = "Could not make a backup copy of " + source.string() + ": ";
    try {
        const path folder = FolderOf(source);
        std::filesystem::create_directories(folder);
        const std::string name = NameOfCopy(source);
        const std::vector<path> before = Of(source);
        std::string stem = name + "_" + Stamp(clock_.Now());
        if (!before.empty()) stem += "_" + std::to_string(NumberOfCopy(name, before.front()) + 1);
        const path target = folder / stem.append(store::extension::kAdventure);
        const store::TemporaryFile making(target);
        CopyWhileLocked(adventure, making.Path());
        if (!before.empty() && SameBytes(making.Path(), before.front())) return std::nullopt;
        store::MoveIntoPlace(making.Path(), target);
        DeleteOld(source);
        return target;
    } catch (const std::filesystem::filesystem_error& error) {
        throw Error(doing + error.code().message() + ".");
    }
}

path Backups::KeepTyped(const path& adventure, std::string_view text) const {
    const path folder = FolderOf(adventure);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw Error("Could not make the folder " + folder.string() + ": " + error.message() + ".");
    const path file = folder / (NameOfCopy(adventure) + "_typed.txt");
    store::WriteFile(file, text);
    return file;
}

std::vector<CountDifference> CompareCounts(store::Adventure& backup, store::Adventure& now) {
    std::vector<CountDifference> differences;
    for (const store::TableEntry& table : store::AllTables()) {
        const auto count = [&](store::Adventure& adventure) {
            // A file of an older program may lack the table.
            if (adventure.Schema(table.number).fields.empty()) return std::int64_t{0};
            return std::int64_t{adventure.OpenTable(table.number, table.key).RecordCount()};
        };
        const CountDifference difference{std::string(table.name), count(backup), count(now)};
        if (difference.inBackup != difference.now) differences.push_back(difference);
    }
    return differences;
}

void BackUpAtOpening(Backups& backups, store::Adventure& adventure, platform::Person& person) {
    try {
        backups.Add(adventure);
    } catch (const Error& error) {
        person.Tell(error.what(), "Warning");
    }
}

}  // namespace fabula::authoring
