#pragma once

namespace fabula::store {

/// The key of a character (`charkey`) is its set times this, and its number.
inline constexpr int kCharactersOfASet = 1000;
/// The highest number of a set.
inline constexpr int kHighestCharacterSet = 999;

}  // namespace fabula::store
