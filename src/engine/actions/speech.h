#pragma once

namespace fabula::engine {

class Game;

/// PARSE (condact_table.cpp): reads the speech at the head of the pending line as ParsePhrase does. When it
/// is understood the entry ends, otherwise it goes on with the words of the player's own sentence.
bool Parse(Game& game);

}  // namespace fabula::engine
