#include "interchange/target_file.h"

#include <cstdio>

#include "platform/error.h"
#include "text/line_ends.h"
#include "text/utf8.h"
#include "text/windows1252.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kFlushAt = 65536;

std::string NameOf(char32_t character) {
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(character));
    return text;
}

}  // namespace

TargetFile::TargetFile(std::filesystem::path target)
    : target_(std::move(target)),
      temporary_(store::TemporaryBeside(target_)),
      stream_(temporary_.Path(), std::ios::binary | std::ios::trunc) {
    if (!stream_) throw Error("Could not write the file " + target_.string() + ".");
}

std::optional<std::string> TargetFile::WriteLine(std::string_view line) {
    const text::Windows1252 written = text::ToWindows1252(line);
    if (written.unwritable)
        return NameOf(text::DecodeAt(line, text::OffsetOf(line, *written.unwritable)).value);
    pending_ += written.bytes;
    pending_ += text::kLineEnd;
    if (pending_.size() >= kFlushAt) Flush();
    return std::nullopt;
}

void TargetFile::Flush() {
    stream_.write(pending_.data(), static_cast<std::streamsize>(pending_.size()));
    if (!stream_) throw Error("Could not write the file " + target_.string() + ".");
    pending_.clear();
}

void TargetFile::Finish() {
    Flush();
    stream_.close();
    if (!stream_) throw Error("Could not write the file " + target_.string() + ".");
    store::MoveIntoPlace(temporary_.Path(), target_);
}

}  // namespace fabula::interchange
