#pragma once

#include <string_view>

namespace fabula::text {

/// With it a text in UTF-8 may begin.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace fabula::text
