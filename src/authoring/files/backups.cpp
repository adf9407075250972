#include "authoring/files/backups.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <system_error>

#include "platform/error.h"
#include "platform/file_names.h"
#include "store/file_copy.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

constexpr const char* kExtension = ".fbd";
constexpr std::size_t kChunk = 65536;

std::string NameOf(const path& adventure) {
    return platform::SafeFileName(adventure.stem().string());
}

std::string Stamp(const platform::DateTime& time) {
    char stamp[64];
    std::snprintf(stamp, sizeof stamp, "%04d%02d%02d_%02d%02d%02d", time.year, time.month, time.day,
                  time.hour, time.minute, time.second);
    return stamp;
}

/// Whether a file is a copy of ours, by its name: the adventure's name, a date and a time, and perhaps a
/// count.
bool IsCopyOf(const std::string& name, const path& file) {
    const std::string stem = file.stem().string();
    if (file.extension() != kExtension || !stem.starts_with(name + "_")) return false;
    const std::string_view rest = std::string_view(stem).substr(name.size());
    constexpr std::string_view kForm = "_dddddddd_dddddd";
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

path FreeName(const path& folder, const std::string& stem) {
    path name = folder / (stem + kExtension);
    std::error_code error;  // a folder that can't be looked at fails when the copy is made
    for (int count = 2; std::filesystem::exists(name, error); ++count)
        name = folder / (stem + "_" + std::to_string(count) + kExtension);
    return name;
}

}  // namespace

Backups::Backups(path folder, const platform::Clock& clock) : folder_(std::move(folder)), clock_(clock) {}

path Backups::FolderOf(const path& adventure) const {
    return folder_ / (NameOf(adventure) + "-" + platform::PlaceCode(adventure));
}

std::vector<path> Backups::Of(const path& adventure) const {
    const std::string name = NameOf(adventure);
    std::vector<path> copies;
    std::error_code error;  // without the folder there is no copy yet
    for (std::filesystem::directory_iterator entry(FolderOf(adventure), error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->is_regular_file(error) && IsCopyOf(name, entry->path())) copies.push_back(entry->path());
    }
    // By the stem: the extension must not come between a copy and a later one of the same second.
    std::sort(copies.begin(), copies.end(),
              [](const path& left, const path& right) { return right.stem() < left.stem(); });
    return copies;
}

std::optional<path> Backups::Add(store::Adventure& adventure) {
    const path source = adventure.CurrentFile();
    const std::string doing = "Could not make a backup copy of " + source.string() + ": ";
    try {
        const path folder = FolderOf(source);
        std::filesystem::create_directories(folder);
        const path target = FreeName(folder, NameOf(source) + "_" + Stamp(clock_.Now()));
        const store::TemporaryFile making(target);
        CopyWhileLocked(adventure, making.Path());
        const std::vector<path> before = Of(source);
        if (!before.empty() && SameBytes(making.Path(), before.front())) return std::nullopt;
        store::MoveIntoPlace(making.Path(), target);
        const std::vector<path> copies = Of(source);
        for (std::size_t i = kMostBackups; i < copies.size(); ++i)
            std::filesystem::remove(copies[i]);
        return target;
    } catch (const std::filesystem::filesystem_error& error) {
        throw Error(doing + error.code().message() + ".");
    }
}

void BackUpAtOpening(Backups& backups, store::Adventure& adventure, platform::Operator& person) {
    try {
        backups.Add(adventure);
    } catch (const Error& error) {
        person.Tell(error.what(), "Warning");
    }
}

}  // namespace fabula::authoring
