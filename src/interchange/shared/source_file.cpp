#include "interchange/shared/source_file.h"

#include <algorithm>

#include "platform/error.h"
#include "platform/whole_file.h"
#include "text/encoding/bad_bytes.h"
#include "text/encoding/byte_order_mark.h"
#include "text/encoding/utf8.h"
#include "text/encoding/windows1252.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kBufferSize = 65536;

bool IsBlank(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code <= ' ';
}

/// Looks at the bytes of a file, block by block.
class Utf8Detector {
  public:
    void Take(std::string_view block) {
        const auto isHigh = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
        if (!isUtf8_ || (begun_.empty() && std::none_of(block.begin(), block.end(), isHigh))) return;
        isAscii_ = false;
        const std::string bytes = begun_ + std::string(block);
        const std::size_t whole = bytes.size() - LengthOfBegun(bytes);
        isUtf8_ = text::IsValidUtf8(std::string_view(bytes).substr(0, whole));
        begun_ = bytes.substr(whole);
    }

    bool IsAscii() const { return isAscii_; }
    bool IsUtf8() const { return !isAscii_ && isUtf8_ && begun_.empty(); }

  private:
    /// How many bytes at the end begin a character that goes on behind them.
    static std::size_t LengthOfBegun(std::string_view bytes) {
        for (std::size_t length = 1; length <= 3 && length <= bytes.size(); ++length) {
            const auto byte = static_cast<unsigned char>(bytes[bytes.size() - length]);
            if (byte < 0x80) return 0;
            if (byte < 0xC0) continue;
            return text::SequenceLength(bytes[bytes.size() - length]) > length ? length : 0;
        }
        return 0;
    }

    bool isAscii_ = true;
    bool isUtf8_ = true;
    std::string begun_;
};

}  // namespace

SourceFile::SourceFile(const std::filesystem::path& file, Encoding encoding)
    : file_(file), buffer_(kBufferSize) {
    const std::string doing = "Could not read the source " + file.string();
    // A pipe or device would wait for ever: only files are opened.
    platform::CheckIsFile(file, "read the source " + file.string());
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error) throw Error(doing + ".");
    if (size > kLargestSource) throw Error(doing + ": it is too large.");
    size_ = static_cast<std::int64_t>(size);
    stream_.open(file, std::ios::binary);
    if (!stream_) throw Error(doing + ".");
    Choose(encoding);
}

void SourceFile::Choose(Encoding encoding) {
    const bool isMarked =
        Fill() && std::string_view(buffer_.data(), end_).starts_with(text::kByteOrderMark);
    if (isMarked) {
        isUtf8_ = encoding != Encoding::Windows1252;
        position_ = text::kByteOrderMark.size();
        return;
    }
    Utf8Detector detector;
    do {
        detector.Take({buffer_.data(), end_});
    } while (Fill());
    isUtf8_ = encoding == Encoding::Utf8 || (encoding == Encoding::Detect && detector.IsUtf8());
    if (!detector.IsAscii())
        encodingNote_ = isUtf8_ ? "The text is read as UTF-8." : "The text is read as Windows-1252.";
    GoToStart();
}

void SourceFile::GoToStart() {
    stream_.clear();
    stream_.seekg(0);
    bytesRead_ = 0;
    position_ = end_ = 0;
}

bool SourceFile::Fill() {
    stream_.read(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    end_ = static_cast<std::size_t>(stream_.gcount());
    position_ = 0;
    bytesRead_ += static_cast<std::int64_t>(end_);
    if (stream_.bad()) throw Error("Could not read the source " + file_.string() + ".");
    return end_ > 0;
}

bool SourceFile::Next(std::string& line) {
    std::string bytes;
    bool any = false;
    while (position_ < end_ || Fill()) {
        if (afterCarriageReturn_ && buffer_[position_] == '\n') {
            afterCarriageReturn_ = false;
            ++position_;
            continue;
        }
        afterCarriageReturn_ = false;
        any = true;
        const char* from = buffer_.data() + position_;
        const char* to = buffer_.data() + end_;
        const char* stop = std::find_if(from, to, [](char c) { return c == '\n' || c == '\r'; });
        bytes.append(from, stop);
        position_ += static_cast<std::size_t>(stop - from);
        if (stop == to) continue;
        afterCarriageReturn_ = *stop == '\r';
        ++position_;
        break;
    }
    if (!any) return false;
    ++lineNumber_;
    line = Decoded(std::move(bytes));
    return true;
}

std::string SourceFile::Decoded(std::string bytes) const {
    std::replace(bytes.begin(), bytes.end(), '\0', ' ');
    return isUtf8_ ? text::WithoutBadBytes(bytes) : text::FromWindows1252(bytes);
}

std::vector<std::string_view> SplitWords(std::string_view line) {
    std::vector<std::string_view> words;
    std::size_t i = 0;
    while (i < line.size()) {
        if (IsBlank(line[i])) {
            ++i;
            continue;
        }
        const std::size_t start = i;
        while (i < line.size() && !IsBlank(line[i]))
            ++i;
        words.push_back(line.substr(start, i - start));
    }
    return words;
}

std::string_view TrimRight(std::string_view line) {
    while (!line.empty() && IsBlank(line.back()))
        line.remove_suffix(1);
    return line;
}

}  // namespace fabula::interchange
