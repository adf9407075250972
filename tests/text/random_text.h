#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/random_source.h"

namespace fabula::text {

/// Up to `maxParts` parts, each drawn from `parts`, joined.
inline std::string RandomText(platform::RandomSource& random, int maxParts,
                              std::initializer_list<std::string_view> parts) {
    std::string text;
    for (int left = random.UpTo(maxParts + 1) - 1; left > 0; --left)
        text += parts.begin()[random.UpTo(static_cast<int>(parts.size())) - 1];
    return text;
}

/// Up to `maxBytes` bytes of any value: mostly text that is not valid UTF-8.
inline std::string RandomBytes(platform::RandomSource& random, int maxBytes) {
    std::string bytes;
    for (int left = random.UpTo(maxBytes + 1) - 1; left > 0; --left)
        bytes += static_cast<char>(random.UpTo(256) - 1);
    return bytes;
}

/// `count` copies of `part`, for texts of about a megabyte.
inline std::string Repeated(std::string_view part, int count) {
    std::string text;
    text.reserve(part.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        text += part;
    return text;
}

}  // namespace fabula::text
