#include "text/encoding/windows1252.h"

#include <algorithm>
#include <iterator>

#include "text/encoding/utf8.h"

namespace fabula::text {
namespace {

/// The characters of the bytes 0x80 to 0x9F. All other bytes are the code points of their number.
constexpr char32_t kFrom0x80[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
static_assert(std::size(kFrom0x80) == 0x20);

std::optional<unsigned char> ByteOf(char32_t value) {
    if (value < 0x80 || (value >= 0xA0 && value <= 0xFF)) return static_cast<unsigned char>(value);
    const char32_t* const found = std::find(std::begin(kFrom0x80), std::end(kFrom0x80), value);
    if (found == std::end(kFrom0x80)) return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - kFrom0x80));
}

}  // namespace

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        AppendCodePoint(text, byte >= 0x80 && byte < 0xA0 ? kFrom0x80[byte - 0x80] : byte);
    }
    return text;
}

Windows1252 ToWindows1252(std::string_view text) {
    Windows1252 result;
    result.bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = DecodeAt(text, at);
        const std::optional<unsigned char> byte = ByteOf(point.value);
        if (!byte) {
            result.unwritable = result.bytes.size();
            return result;
        }
        result.bytes += static_cast<char>(*byte);
        at += point.size;
    }
    return result;
}

}  // namespace fabula::text
