#include "terminal/output.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

#include "platform/error.h"

namespace fabula::terminal {
namespace {

constexpr std::size_t kLargePiece = 64 * 1024;

}  // namespace

void Output::Write(std::string_view text) {
    if (text.empty()) return;
    buffer_ += text;
    lastByte_ = text.back();
    if (buffer_.size() >= kLargePiece) Flush();
}

void Output::Flush() {
    std::string_view rest = buffer_;
    while (descriptor_ != kNowhere && !rest.empty() && !Failed()) {
        const ssize_t written = write(descriptor_, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            error_ = errno;
        }
    }
    buffer_.clear();
}

void Output::Check() const {
    if (Failed())
        throw Error("Could not write the output: " + std::generic_category().message(error_) + ".");
}

}  // namespace fabula::terminal
