#pragma once

#include <chrono>

namespace fabula::player {

/// How long flashing text shows each of its two looks: 16 pictures of a display of 50 a second, as home
/// computers had it.
inline constexpr std::chrono::milliseconds kFlashTime{320};

}  // namespace fabula::player
