#include "store/file/change_lock.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "platform/error.h"

namespace fabula::store {
namespace {

/// One byte behind the largest file and behind the bytes that the database locks.
constexpr off_t kMarkedByte = 0x60000000;

struct flock Mark() {
    struct flock mark {};
    mark.l_type = F_WRLCK;
    mark.l_whence = SEEK_SET;
    mark.l_start = kMarkedByte;
    mark.l_len = 1;
    return mark;
}

}  // namespace

std::unique_ptr<ChangeLock> ChangeLock::Take(const std::filesystem::path& file) {
    const int handle = open(file.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0) {
        throw Error("Could not open " + file.string() +
                    " for change: " + std::generic_category().message(errno) + ".");
    }
    // The lock is that of this opening, not of the process, so that two windows of one program notice too.
    struct flock mark = Mark();
    if (fcntl(handle, F_OFD_SETLK, &mark) != 0 && (errno == EAGAIN || errno == EACCES)) {
        close(handle);
        return nullptr;
    }
    return std::unique_ptr<ChangeLock>(new ChangeLock(handle));
}

bool ChangeLock::IsHeld(const std::filesystem::path& file) {
    const int handle = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0) return false;
    struct flock mark = Mark();
    const bool told = fcntl(handle, F_OFD_GETLK, &mark) == 0;
    close(handle);
    return told && mark.l_type != F_UNLCK;
}

ChangeLock::~ChangeLock() {
    close(handle_);
}

}  // namespace fabula::store
