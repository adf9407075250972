#pragma once

namespace fabula::store {

/// The key of a character (`charkey`) is its set times this, and its number.
inline constexpr int kCharactersOfASet = 1000;

}  // namespace fabula::store
