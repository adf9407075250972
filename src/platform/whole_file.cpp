#include "platform/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/error.h"

namespace fabula::platform {
namespace {

constexpr std::size_t kPiece = 65536;

[[noreturn]] void Fail(std::string_view doing, const std::string& reason) {
    throw Error("Could not " + std::string(doing) + ": " + reason + ".");
}

[[noreturn]] void FailWith(std::string_view doing, int error) {
    if (error == ENOENT) Fail(doing, "there is no such file");
    Fail(doing, std::generic_category().message(error));
}

/// An ordinary file that is open for reading.
class OpenFile {
  public:
    OpenFile(const std::filesystem::path& file, std::string_view doing)
        : doing_(doing), handle_(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
        if (handle_ < 0) FailWith(doing_, errno);
        struct stat facts {};
        if (fstat(handle_, &facts) == 0 && S_ISREG(facts.st_mode)) return;
        close(handle_);
        Fail(doing_, "it is no file");
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { close(handle_); }

    /// At most `most` bytes.
    std::string Read(std::uintmax_t most) const {
        std::string bytes;
        while (bytes.size() < most) {
            const std::size_t before = bytes.size();
            bytes.resize(before + std::min<std::uintmax_t>(kPiece, most - before));
            const ssize_t count = read(handle_, bytes.data() + before, bytes.size() - before);
            if (count < 0 && errno != EINTR) FailWith(doing_, errno);
            bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
            if (count == 0) break;
        }
        return bytes;
    }

  private:
    std::string_view doing_;
    int handle_;
};

}  // namespace

std::string ReadStartOfFile(const std::filesystem::path& file, std::uintmax_t most,
                            std::string_view doing) {
    return OpenFile(file, doing).Read(most);
}

std::string ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most, std::string_view doing) {
    std::string bytes = ReadStartOfFile(file, most + 1, doing);
    if (bytes.size() > most) Fail(doing, "it is too large");
    return bytes;
}

void CheckIsFile(const std::filesystem::path& file, std::string_view doing) {
    const OpenFile check(file, doing);
}

}  // namespace fabula::platform
