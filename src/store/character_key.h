#pragma once

namespace fabula::store {

/// The key of a character (`charkey`) is its set times this, and its number.
inline constexpr int kCharactersOfASet = 1000;
/// The highest number of a set by which a person may ask for one, and the highest that a set gets.
inline constexpr int kHighestCharacterSet = 999;
inline constexpr int kHighestNewCharacterSet = 998;

}  // namespace fabula::store
