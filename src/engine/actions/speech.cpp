#include "engine/actions/speech.h"

#include <algorithm>

#include "engine/cycle/parser.h"
#include "engine/game.h"

namespace fabula::engine {

namespace {

struct StoredFlag {
    FlagNumber flag;
    FlagNumber store;
};

/// The words of the player's own sentence, while PARSE reads what was said.
constexpr StoredFlag kStoredFlags[] = {{flag::kVerb, flag::kKeptVerb},
                                       {flag::kAdverb, flag::kKeptAdverb},
                                       {flag::kNoun, flag::kKeptNoun},
                                       {flag::kAdjective, flag::kKeptAdjective},
                                       {flag::kPronounNoun, flag::kKeptPronounNoun},
                                       {flag::kPronounAdjective, flag::kKeptPronounAdjective}};

/// Cuts the speech out of the pending line: what stands between the first double quote and the next, or the
/// end. `begin` is where it stood.
std::string CutSpeech(std::string& command, std::size_t& begin) {
    const std::size_t open = command.find(kQuote);
    if (open == std::string::npos) return {};
    begin = open + 1;
    const std::size_t close = std::min(command.find(kQuote, begin), command.size());
    std::string speech = command.substr(begin, close - begin);
    command.erase(begin, close - begin);
    return speech;
}

void TraceSpeech(Game& game) {
    if (!game.trace.On()) return;
    game.trace.Tell(SentenceRead{.words = SentenceWords(game), .isSpoken = true});
}

/// The words as they were before the first PARSE that understood what was said.
void TakeWordsBack(Game& game) {
    for (const StoredFlag& stored : kStoredFlags) {
        if (game.Flag(stored.store) != 0) game.SetFlag(stored.flag, game.Flag(stored.store));
        game.SetFlag(stored.store, 0);
    }
}

}  // namespace

bool Parse(Game& game) {
    for (const StoredFlag& stored : kStoredFlags) {
        if (game.Flag(stored.store) == 0) game.SetFlag(stored.store, game.Flag(stored.flag));
    }
    std::size_t begin = 0;
    std::string speech = CutSpeech(game.command, begin);
    const bool parsed = ParsePhrase(game, speech);
    TraceSpeech(game);
    if (!speech.empty()) {
        game.command.insert(begin, speech);  // further sentences were said: they wait for the next PARSE
        return !parsed;
    }
    std::erase(game.command, kQuote);
    if (game.command.starts_with(kSentenceEnd)) game.command.erase(0, 1);
    if (!parsed) TakeWordsBack(game);
    return !parsed;
}

}  // namespace fabula::engine
