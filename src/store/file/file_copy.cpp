#include "store/file/file_copy.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"
#include "store/extensions.h"
#include "store/file/change_lock.h"
#include "store/file/connection.h"
#include "store/file/file_check.h"
#include "store/file/temporary_file.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

[[noreturn]] void Refuse(const std::filesystem::path& target, const std::string& reason) {
    throw Error("Could not write " + target.string() + ": " + reason + ".");
}

[[noreturn]] void Fail(const std::filesystem::path& target, int error) {
    Refuse(target, std::generic_category().message(error));
}

/// Waits until the disk has a file's or folder's bytes.
void Flush(const std::filesystem::path& path, const std::filesystem::path& target) {
    const int handle = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) Fail(target, errno);
    const int result = fsync(handle);
    const int error = errno;
    close(handle);
    if (result != 0) Fail(target, error);
}

std::filesystem::path JournalOf(const std::filesystem::path& file) {
    return std::filesystem::path(file) += "-journal";
}

[[noreturn]] void RefuseJournal(const std::filesystem::path& target) {
    Refuse(target, "what lies at " + JournalOf(target).string() + " would be taken for its journal");
}

/// Makes sure that nothing lies in the place of the journal of an adventure that is about to come to
/// `place`. What is left of an adventure that lies there now is played by the database, which takes it
/// away.
void UseUpJournal(const std::filesystem::path& place, const std::filesystem::path& target) {
    std::error_code error;  // what can't be looked at is found by the database
    if (!std::filesystem::exists(std::filesystem::symlink_status(JournalOf(place), error))) return;
    if (!IsAdventureFile(place)) RefuseJournal(target);
    try {
        const auto old = OpenChecked(place, OpenMode::ReadWrite, Ages::Any);
        const int result =
            sqlite3_exec(old->Handle(), "BEGIN EXCLUSIVE; ROLLBACK", nullptr, nullptr, nullptr);
        if ((result & 0xff) == SQLITE_BUSY) Refuse(target, "it is in use by another program");
        if (result != SQLITE_OK) RefuseJournal(target);
    } catch (const OpenError& refused) {
        if (refused.Reason() == Refusal::InUse) Refuse(target, "it is in use by another program");
        RefuseJournal(target);
    }
    std::filesystem::remove(JournalOf(place), error);
    if (error) Fail(target, error.value());
}

/// Gives the new file the mode of the old one, and its owner where the machine lets us.
void KeepMode(const std::filesystem::path& finished, const std::filesystem::path& place,
              const std::filesystem::path& target) {
    struct stat old {};
    if (stat(place.c_str(), &old) != 0) return;
    if (chown(finished.c_str(), old.st_uid, old.st_gid) != 0 && errno != EPERM) Fail(target, errno);
    if (chmod(finished.c_str(), old.st_mode & 0777) != 0) Fail(target, errno);
}

void WriteAll(int handle, std::string_view bytes, const std::filesystem::path& target) {
    while (!bytes.empty()) {
        const ssize_t written = write(handle, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) Fail(target, errno);
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
}

/// Writes into what is there already: a file of ours in the making, a device or a pipe.
void WriteInto(const std::filesystem::path& file, std::string_view bytes,
               const std::filesystem::path& target) {
    const int handle = open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (handle < 0) Fail(target, errno);
    try {
        WriteAll(handle, bytes, target);
    } catch (const Error&) {
        close(handle);
        throw;
    }
    if (close(handle) != 0) Fail(target, errno);
}

void CopyPages(const Connection& source, const Connection& target, const char* doing) {
    sqlite3_backup* backup = sqlite3_backup_init(target.Handle(), "main", source.Handle(), "main");
    if (!backup) target.Fail(doing);
    sqlite3_backup_step(backup, -1);  // its failure is told by the end
    if (sqlite3_backup_finish(backup) != SQLITE_OK) target.Fail(doing);
}

/// Copies what is open, without what was deleted in it, to the new file `copy`.
void WritePages(const Connection& source, const std::filesystem::path& copy,
                const std::filesystem::path& target) {
    const std::string doing = "write " + target.string();
    Connection connection(copy, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, doing);
    CopyPages(source, connection, doing.c_str());
    connection.Run("VACUUM", doing.c_str());
}

}  // namespace

bool IsSameFile(const std::filesystem::path& left, const std::filesystem::path& right) {
    std::error_code error;  // what is not there is another file
    return std::filesystem::equivalent(left, right, error);
}

void CheckTarget(const std::filesystem::path& target, Content content, std::string_view extension) {
    const auto place = PlaceOf(target);
    if (content == Content::Adventure && (IsStream(place) || target == kStandardOutput))
        Refuse(target, "an adventure needs a file");
    struct stat facts {};
    if (target == kStandardOutput || IsStream(place) || stat(place.c_str(), &facts) != 0) return;
    if (S_ISDIR(facts.st_mode)) Fail(target, EISDIR);
    if ((facts.st_mode & 0222) == 0 || faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0)
        Refuse(target, "it is read-only");
    const std::string present = text::LowerCase(place.extension().string());
    // One kind of this program's files is never written over another.
    const bool own = std::ranges::find(extension::kAll, present) != std::end(extension::kAll);
    const std::string_view wanted = content == Content::Adventure ? extension::kAdventure : extension;
    if (IsAdventureFile(place)) {
        if (content == Content::Text) Refuse(target, "it is an adventure");
        if (ChangeLock::IsHeld(place)) Refuse(target, "it is open for change in another program");
    } else if (own && present != wanted) {
        Refuse(target, "by its name it is a file of another kind, *" + present);
    }
}

void MoveIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& target) {
    const bool isAdventure = IsAdventureFile(finished);
    const auto place = PlaceOf(target);
    CheckTarget(target, isAdventure ? Content::Adventure : Content::Text,
                text::LowerCase(place.extension().string()));
    KeepMode(finished, place, target);
    Flush(finished, target);
    if (isAdventure) UseUpJournal(place, target);
    if (rename(finished.c_str(), place.c_str()) != 0) Fail(target, errno);
    Flush(FolderOf(place), target);
}

void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    if (file == kStandardOutput) return WriteAll(STDOUT_FILENO, bytes, "the output");
    const auto place = PlaceOf(file);
    if (IsStream(place)) return WriteInto(place, bytes, file);
    const TemporaryFile temporary(file);
    WriteInto(temporary.Path(), bytes, file);
    MoveIntoPlace(temporary.Path(), file);
}

void WriteCopy(const Connection& source, const std::filesystem::path& target) {
    std::error_code error;
    const auto path = std::filesystem::absolute(target, error);
    if (error) Fail(target, error.value());
    CheckTarget(path, Content::Adventure);
    const TemporaryFile temporary(path);
    WritePages(source, temporary.Path(), target);
    OpenChecked(temporary.Path(), OpenMode::ReadOnly, Ages::Any);
    MoveIntoPlace(temporary.Path(), path);
}

std::unique_ptr<Connection> CopyOf(const Connection& source) {
    constexpr const char* kDoing = "copy the adventure into memory";
    auto copy =
        std::make_unique<Connection>(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, kDoing);
    CopyPages(source, *copy, kDoing);
    copy->LoadSchema();
    return copy;
}

}  // namespace fabula::store
