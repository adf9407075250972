#include "terminal/output.h"

#include <cerrno>

#include <unistd.h>

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
    while (descriptor_ != kNowhere && !rest.empty() && !failed_) {
        const ssize_t written = write(descriptor_, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            failed_ = true;
        }
    }
    buffer_.clear();
}

}  // namespace fabula::terminal
