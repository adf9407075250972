#include "store/file/temporary_file.h"

#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"

namespace fabula::store {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnd = ".tmp";
constexpr std::string_view kJournal = "-journal";
/// What is left of the longest name when process, count, end and a journal's end stand behind it.
constexpr std::size_t kLongestStem = 200;
constexpr int kMostLinks = 40;

/// The beginning of a name, not cut within a character.
std::string StemOf(const fs::path& target) {
    std::string stem = target.filename().string();
    if (stem.size() <= kLongestStem) return stem;
    stem.resize(text::CharacterStart(stem, kLongestStem));
    return stem;
}

/// The process that made a file of this name for the target `stem`; nullopt for any other file.
std::optional<pid_t> MakerOf(std::string_view name, std::string_view stem) {
    if (name.ends_with(kJournal)) name.remove_suffix(kJournal.size());
    if (!name.starts_with(stem) || !name.ends_with(kEnd)) return std::nullopt;
    name.remove_prefix(stem.size());
    name.remove_suffix(kEnd.size());
    if (!name.starts_with('.')) return std::nullopt;
    name.remove_prefix(1);
    const std::optional<pid_t> maker = text::TakeNumber(name);
    if (!maker || *maker <= 0 || !name.starts_with('-')) return std::nullopt;
    name.remove_prefix(1);
    return text::SmallNumber(name) ? maker : std::nullopt;
}

bool IsGone(pid_t process) {
    return kill(process, 0) != 0 && errno == ESRCH;
}

bool IsOwnFile(const fs::path& file) {
    struct stat facts {};
    return lstat(file.c_str(), &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_uid == geteuid();
}

void Sweep(const fs::path& folder, const std::string& stem) {
    std::error_code error;  // what can't be looked at or deleted stays for the next time
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const auto maker = MakerOf(entry->path().filename().string(), stem);
        if (!maker || !IsGone(*maker) || !IsOwnFile(entry->path())) continue;
        std::error_code ignored;
        fs::remove(entry->path(), ignored);
    }
}

}  // namespace

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

bool IsStream(const fs::path& target) {
    struct stat facts {};
    return stat(target.c_str(), &facts) == 0 && !S_ISREG(facts.st_mode) && !S_ISDIR(facts.st_mode);
}

fs::path PlaceOf(const fs::path& target) {
    fs::path place = target;
    std::error_code error;
    for (int links = 0; links < kMostLinks && !IsStream(place) && fs::is_symlink(place, error); ++links) {
        const fs::path next = fs::read_symlink(place, error);
        if (error) break;
        place = place.parent_path() / next;
    }
    if (!IsStream(place) && fs::is_symlink(place, error))
        throw Error("Could not write " + target.string() + ": too many links lead from one to the next.");
    return place;
}

TemporaryFile::TemporaryFile(const fs::path& target) {
    std::error_code error;  // without a folder for temporary files the file can't be made
    const fs::path place = PlaceOf(target);
    const fs::path folder = IsStream(place) ? fs::temp_directory_path(error) : FolderOf(place);
    const std::string stem = StemOf(place);
    Sweep(folder, stem);
    for (int number = 0;; ++number) {
        path_ = folder /
                (stem + "." + std::to_string(getpid()) + "-" + std::to_string(number) + std::string(kEnd));
        const int handle = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (handle >= 0) {
            close(handle);
            return;
        }
        if (errno == EEXIST) continue;
        throw Error("Could not write " + target.string() + ": " + std::generic_category().message(errno) +
                    ".");
    }
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;  // what can't be removed is swept later
    fs::remove(path_, ignored);
    fs::remove(fs::path(path_) += kJournal, ignored);
}

}  // namespace fabula::store
