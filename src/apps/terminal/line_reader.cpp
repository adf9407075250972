#include "terminal/line_reader.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/encoding/byte_order_mark.h"

namespace fabula::terminal {

namespace {

/// A pipe ends, as a file does; a device may never.
const std::filesystem::path& FileOrPipe(const std::filesystem::path& file) {
    std::error_code error;  // what can't be looked at can't be read either
    if (!std::filesystem::is_fifo(file, error)) platform::CheckIsFile(file, "read " + file.string());
    return file;
}

}  // namespace

LineReader::LineReader(const std::filesystem::path& file)
    : descriptor_(open(FileOrPipe(file).c_str(), O_RDONLY | O_CLOEXEC)), owned_(true) {
    if (descriptor_ < 0) throw Error("Could not read " + file.string() + ".");
}

LineReader::~LineReader() {
    if (owned_) close(descriptor_);
}

TypedLine LineReader::Read(const Question& question) {
    for (;;) {
        char* const begin = buffer_.data() + begin_;
        char* const end = buffer_.data() + end_;
        char* const lineEnd = std::find(begin, end, '\n');
        const std::size_t room = kLongestTypedLine - line_.size();
        line_.append(begin, std::min(static_cast<std::size_t>(lineEnd - begin), room));
        begin_ = static_cast<std::size_t>(lineEnd - buffer_.data());
        if (lineEnd != end) {
            ++begin_;
            break;
        }
        const Filled filled = Fill(question);
        if (filled == Filled::TimeOut) return {TypedLine::Kind::TimeOut};
        if (filled == Filled::End && line_.empty()) return {};
        if (filled == Filled::End) break;
    }
    if (line_.ends_with('\r')) line_.pop_back();
    if (std::exchange(first_, false) && line_.starts_with(text::kByteOrderMark))
        line_.erase(0, text::kByteOrderMark.size());
    return {TypedLine::Kind::Line, std::exchange(line_, {})};
}

bool LineReader::HasLine() const {
    const auto begin = buffer_.begin();
    return std::find(begin + static_cast<std::ptrdiff_t>(begin_), begin + static_cast<std::ptrdiff_t>(end_),
                     '\n') != begin + static_cast<std::ptrdiff_t>(end_);
}

LineReader::Filled LineReader::Fill(const Question& question) {
    if (question.timeOut) {
        pollfd waiting{descriptor_, POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(question.timeOut->count()));
        if (ready == 0) return Filled::TimeOut;
    }
    ssize_t count = 0;
    do
        count = read(descriptor_, buffer_.data(), buffer_.size());
    while (count < 0 && errno == EINTR);
    if (count < 0) throw Error("Could not read the input.");
    begin_ = 0;
    end_ = static_cast<std::size_t>(count);
    return count == 0 ? Filled::End : Filled::Yes;
}

TypedLine LineSequence::Read(const Question& question) {
    if (first_) {
        TypedLine line = first_->Read(question);
        if (line.kind != TypedLine::Kind::End) return line;
        first_.reset();
    }
    return second_->Read(question);
}

}  // namespace fabula::terminal
