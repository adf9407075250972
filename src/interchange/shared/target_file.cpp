#include "interchange/shared/target_file.h"

#include <cstdio>

#include "store/file/file_copy.h"
#include "text/encoding/utf8.h"
#include "text/encoding/windows1252.h"
#include "text/line_ends.h"

namespace fabula::interchange {
namespace {

std::string NameOf(char32_t character) {
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(character));
    return text;
}

}  // namespace

std::optional<std::string> TargetFile::WriteLine(std::string_view line) {
    const text::Windows1252 written = text::ToWindows1252(line);
    if (written.unwritable)
        return NameOf(text::DecodeAt(line, text::OffsetOf(line, *written.unwritable)).value);
    bytes_ += written.bytes;
    bytes_ += text::kLineEnd;
    return std::nullopt;
}

void TargetFile::Finish() {
    store::WriteFile(target_, bytes_);
}

}  // namespace fabula::interchange
