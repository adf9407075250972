#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fabula::engine {

class Game;

/// The separator of sentences in a pending line.
inline constexpr char kSentenceEnd = '\r';

/// Speech begins at a word that begins with it.
inline constexpr char kQuote = '"';

/// Cuts a typed line into sentences: at line ends a blank, at each conjunction that has a blank on either
/// side and at each of , ; . ! ? a kSentenceEnd. None stands at the end.
std::string SplitSentences(std::string_view line, const std::vector<std::string>& conjunctions);

/// `ParsePhrase`: takes the first sentence off `text` and puts its words into flags 33 to 36, 43 to 47.
/// Speech (from a word that begins with a double quote on) stays in `text`. True when the sentence has a
/// verb or a noun. An empty text changes nothing; any other shifts the history.
bool ParsePhrase(Game& game, std::string& text);

/// The words of the sentence behind flags 36, 33, 35, 34 and 43, for the trace.
std::string SentenceWords(const Game& game);

}  // namespace fabula::engine
