#pragma once

namespace fabula::player {

/// How much of a game is kept to look back at where the player has not chosen, in lines of text or rows of
/// characters.
inline constexpr int kDefaultKeptLines = 5000;

}  // namespace fabula::player
