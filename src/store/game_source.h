#pragma once

#include <string_view>

namespace fabula::store {

// The words of `source` that name no kind of file: where a game came from that was made here, and one of
// which nothing is known.
inline constexpr std::string_view kNewSource = "New";
inline constexpr std::string_view kUnknownSource = "Unknown";

}  // namespace fabula::store
