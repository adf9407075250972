#include "text/encoding/bad_bytes.h"

#include "text/encoding/utf8.h"

namespace fabula::text {

std::string WithoutBadBytes(std::string_view bytes) {
    if (IsValidUtf8(bytes)) return std::string(bytes);
    std::string result;
    for (std::size_t i = 0; i < bytes.size();) {
        const CodePoint point = DecodeAt(bytes, i);
        AppendCodePoint(result, point.value >= kBadByte ? U'\uFFFD' : point.value);
        i += point.size;
    }
    return result;
}

}  // namespace fabula::text
