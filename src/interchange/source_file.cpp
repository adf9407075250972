#include "interchange/source_file.h"

#include <algorithm>

#include "platform/error.h"
#include "text/str_edit.h"
#include "text/utf8.h"
#include "text/windows1252.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kBufferSize = 65536;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code <= ' ';
}

std::string WithoutBadBytes(const std::string& bytes) {
    if (text::IsValidUtf8(bytes)) return bytes;
    std::string result;
    for (std::size_t i = 0; i < bytes.size();) {
        const text::CodePoint point = text::DecodeAt(bytes, i);
        text::AppendCodePoint(result, point.value >= text::kBadByte ? U'\uFFFD' : point.value);
        i += point.size;
    }
    return result;
}

}  // namespace

SourceFile::SourceFile(const std::filesystem::path& file) : file_(file), buffer_(kBufferSize) {
    const std::string doing = "Could not read the source " + file.string();
    // A pipe or device would wait for ever: only files are opened.
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) throw Error(doing + ".");
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error) throw Error(doing + ".");
    if (size > kLargestSource) throw Error(doing + ": it is too large.");
    size_ = static_cast<std::int64_t>(size);
    stream_.open(file, std::ios::binary);
    if (!stream_) throw Error(doing + ".");
    if (Fill() && std::string_view(buffer_.data(), end_).starts_with(kByteOrderMark)) {
        isUtf8_ = true;
        position_ = kByteOrderMark.size();
    }
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
    return isUtf8_ ? WithoutBadBytes(bytes) : text::FromWindows1252(bytes);
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
