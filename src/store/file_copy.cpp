#include "store/file_copy.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
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

}  // namespace

std::filesystem::path TemporaryBeside(const std::filesystem::path& target) {
    for (int number = 0;; ++number) {
        std::filesystem::path name = target;
        name += "." + std::to_string(getpid()) + "-" + std::to_string(number) + ".tmp";
        if (!std::filesystem::exists(name)) return name;
    }
}

void MoveIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& target) {
    Flush(finished, target);
    if (rename(finished.c_str(), target.c_str()) != 0) Fail(target, errno);
    Flush(FolderOf(target), target);
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;  // what can't be removed is a file named "*.tmp", which is cleaned up later
    std::filesystem::remove(path_, ignored);
    std::filesystem::remove(std::filesystem::path(path_) += "-journal", ignored);
}

void WriteCopy(Connection& connection, const std::filesystem::path& target) {
    const TemporaryFile temporary(TemporaryBeside(target));
    {
        const Statement copy = connection.Compile("VACUUM INTO ?", "write the copy");
        Connection::Bind(copy.get(), 1, temporary.Path().string());
        connection.Step(copy.get(), "write the copy");
    }
    OpenChecked(temporary.Path(), OpenMode::ReadOnly);
    MoveIntoPlace(temporary.Path(), target);
}

}  // namespace fabula::store
