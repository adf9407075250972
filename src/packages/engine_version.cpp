#include "packages/engine_version.h"

#include <algorithm>
#include <cstdint>

#include "text/numbers.h"

namespace fabula::packages {
namespace {

// "VS_VERSION_INFO" as the resource holds it, and the mark of the numbers that follow it.
constexpr std::string_view kKey("V\0S\0_\0V\0E\0R\0S\0I\0O\0N\0_\0I\0N\0F\0O\0\0\0", 32);
constexpr std::string_view kMark("\xBD\x04\xEF\xFE", 4);
constexpr std::size_t kMostPadding = 4;
constexpr std::size_t kVersionAt = 8;
constexpr std::size_t kVersionSize = 8;

unsigned Word(std::string_view bytes, std::size_t at) {
    return static_cast<std::uint8_t>(bytes[at]) |
           static_cast<unsigned>(static_cast<std::uint8_t>(bytes[at + 1])) << 8;
}

}  // namespace

std::optional<std::string> FileVersion(std::string_view program) {
    const std::size_t key = program.find(kKey);
    if (key == std::string_view::npos) return std::nullopt;
    const std::size_t start = key + kKey.size();
    const std::size_t mark = program.substr(0, start + kMostPadding + kMark.size()).find(kMark, start);
    if (mark == std::string_view::npos || mark + kVersionAt + kVersionSize > program.size())
        return std::nullopt;
    // Two numbers of two words each, the high word of each behind its low one.
    std::string version;
    for (const std::size_t at : {2U, 0U, 6U, 4U}) {
        if (!version.empty()) version += '.';
        version += std::to_string(Word(program, mark + kVersionAt + at));
    }
    return version;
}

int MajorVersion(std::string_view version) {
    const auto number = text::WholeNumber(version.substr(0, version.find('.')));
    return static_cast<int>(std::clamp<std::int64_t>(number.value_or(0), 0, INT32_MAX));
}

}  // namespace fabula::packages
