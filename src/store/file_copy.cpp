#include "store/file_copy.h"

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include "platform/error.h"
#include "store/connection.h"
#include "store/file_check.h"

namespace fabula::store {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& target, int error) {
    throw Error("Could not write " + target.string() + ": " + std::generic_category().message(error) + ".");
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

std::filesystem::path FolderOf(const std::filesystem::path& file) {
    const auto parent = file.parent_path();
    return parent.empty() ? std::filesystem::path(".") : parent;
}

std::filesystem::path JournalOf(const std::filesystem::path& file) {
    return std::filesystem::path(file) += "-journal";
}

/// Lets the database mend a file that was not closed properly, which takes its journal away; a journal that
/// is of no use is deleted.
void UseUpJournal(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(JournalOf(file), error)) return;
    if (std::filesystem::exists(file, error)) {
        const Connection old(file, SQLITE_OPEN_READWRITE);
        const int result =
            sqlite3_exec(old.Handle(), "BEGIN EXCLUSIVE; ROLLBACK", nullptr, nullptr, nullptr);
        // Any other failure tells of a file that can't be mended; it is replaced as it is.
        if ((result & 0xff) == SQLITE_BUSY) {
            throw Error("Could not write " + file.string() + ": it is in use by another program.");
        }
    }
    std::filesystem::remove(JournalOf(file), error);
    if (error) Fail(file, error.value());
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

std::filesystem::path TemporaryBeside(const std::filesystem::path& target) {
    for (int number = 0;; ++number) {
        std::filesystem::path name = target;
        name += "." + std::to_string(getpid()) + "-" + std::to_string(number) + ".tmp";
        std::error_code error;  // a folder that can't be looked at fails when the file is made
        if (!std::filesystem::exists(name, error)) return name;
    }
}

void MoveIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& target) {
    Flush(finished, target);
    UseUpJournal(target);
    if (rename(finished.c_str(), target.c_str()) != 0) Fail(target, errno);
    Flush(FolderOf(target), target);
}

void WriteFile(const std::filesystem::path& file, std::string_view bytes) {
    const TemporaryFile temporary(TemporaryBeside(file));
    std::ofstream stream(temporary.Path(), std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw Error("Could not write " + file.string() + ".");
    MoveIntoPlace(temporary.Path(), file);
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;  // what can't be removed is a file named "*.tmp", which is cleaned up later
    std::filesystem::remove(path_, ignored);
    std::filesystem::remove(JournalOf(path_), ignored);
}

void WriteCopy(const Connection& source, const std::filesystem::path& target) {
    std::error_code error;
    const auto path = std::filesystem::absolute(target, error);
    if (error) Fail(target, error.value());
    const TemporaryFile temporary(TemporaryBeside(path));
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
