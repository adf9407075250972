#include "engine/cycle/parser.h"

#include "engine/game.h"
#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::engine {

namespace {

using condacts::kFirstPlainNoun;
using condacts::kFirstReferableNoun;

constexpr FlagNumber kResetFlags[] = {flag::kVerb,        flag::kAdverb, flag::kNoun,      flag::kAdjective,
                                      flag::kPreposition, flag::kNoun2,  flag::kAdjective2};
constexpr std::size_t kMarloKeeps = 2;  ///< the first two stay from the sentence before

void SetWord(Game& game, FlagNumber wordFlag, WordNumber number, std::string_view word) {
    game.SetFlag(wordFlag, number.value);
    game.state.WordText(wordFlag) = word;
}

void CopyWord(Game& game, FlagNumber from, FlagNumber to) {
    SetWord(game, to, game.Word(from), std::string(game.state.WordText(from)));
}

bool HasWord(const Game& game, FlagNumber wordFlag) {
    return game.Word(wordFlag) != kNoWordNumber;
}

/// A new sentence begins: the history moves on, and the words of the last one are cleared.
void BeginSentence(Game& game) {
    game.state.ShiftHistory();
    if (game.wordsCleared) {
        const auto before = game.state.Flags(1);
        before[static_cast<std::size_t>(flag::kVerb.value)] =
            static_cast<std::int16_t>(game.clearedVerb.value);
        before[static_cast<std::size_t>(flag::kAdverb.value)] =
            static_cast<std::int16_t>(game.clearedAdverb.value);
        game.wordsCleared = false;
    }
    game.state.oldWordText = game.state.wordText;
    for (std::size_t i = game.IsMarlo() ? kMarloKeeps : 0; i < std::size(kResetFlags); ++i) {
        SetWord(game, kResetFlags[i], kNoWordNumber, kNoWordText);
    }
}

/// The words of one sentence of type "fabula" or "vel", one after the other.
class SentenceReader {
  public:
    explicit SentenceReader(Game& game) : game_(game) {}

    void Take(const std::vector<VocabularyWord>& rows) {
        const VocabularyWord& row = rows.front();
        switch (row.type) {
            case condacts::kVerb:
                return TakeVerb(rows);
            case condacts::kAdverb:
                return TakeAdverb(row);
            case condacts::kPreposition:
                if (!HasWord(game_, flag::kPreposition))
                    SetWord(game_, flag::kPreposition, row.number, row.word);
                return;
            default:
                break;
        }
        if (secondNounSeen_) return;
        if (row.type == condacts::kAdjective) return TakeAdjective(row);
        if (row.type == condacts::kPronoun) return TakePronoun();
        TakeNoun(row.number, row.word);
    }

    void Finish() {
        if (!adverbSeen_) SetWord(game_, flag::kAdverb, kNoWordNumber, kNoWordText);
        KeepForPronoun(flag::kNoun2, flag::kAdjective2);
        KeepForPronoun(flag::kNoun, flag::kAdjective);
        if (game_.Word(flag::kNoun) < kFirstPlainNoun && !verbSeen_)
            CopyWord(game_, flag::kNoun, flag::kVerb);
    }

  private:
    /// A second verb that is a noun too, and nothing else, is that noun.
    void TakeVerb(const std::vector<VocabularyWord>& rows) {
        if (!verbSeen_) {
            verbSeen_ = true;
            return SetWord(game_, flag::kVerb, rows[0].number, rows[0].word);
        }
        if (rows.size() != 2 || rows[1].type != condacts::kNoun || secondNounSeen_) return;
        TakeNoun(rows[1].number, rows[1].word);
    }

    void TakeAdverb(const VocabularyWord& row) {
        if (adverbSeen_) return;
        adverbSeen_ = true;
        SetWord(game_, flag::kAdverb, row.number, row.word);
    }

    void TakeAdjective(const VocabularyWord& row) {
        if (adjectivePending_) return;
        adjectivePending_ = true;
        SetWord(game_, nounSeen_ ? flag::kAdjective2 : flag::kAdjective, row.number, row.word);
    }

    void TakePronoun() {
        if (!HasWord(game_, flag::kPronounNoun)) return;
        CopyWord(game_, flag::kPronounAdjective, nounSeen_ ? flag::kAdjective2 : flag::kAdjective);
        TakeNoun(game_.Word(flag::kPronounNoun), std::string(game_.state.WordText(flag::kPronounNoun)));
    }

    void TakeNoun(WordNumber number, std::string_view word) {
        adjectivePending_ = false;
        if (!nounSeen_) {
            nounSeen_ = true;
            return SetWord(game_, flag::kNoun, number, word);
        }
        // One noun twice names one thing, unless two different adjectives tell the things apart.
        const bool twoThings = HasWord(game_, flag::kAdjective) && HasWord(game_, flag::kAdjective2) &&
                               game_.Flag(flag::kAdjective) != game_.Flag(flag::kAdjective2);
        if (number == game_.Word(flag::kNoun) && !twoThings) return;
        secondNounSeen_ = true;
        SetWord(game_, flag::kNoun2, number, word);
    }

    void KeepForPronoun(FlagNumber noun, FlagNumber adjective) {
        if (game_.Word(noun) < kFirstReferableNoun || !HasWord(game_, noun)) return;
        CopyWord(game_, noun, flag::kPronounNoun);
        CopyWord(game_, adjective, flag::kPronounAdjective);
    }

    Game& game_;
    bool verbSeen_ = false;
    bool adverbSeen_ = false;
    bool nounSeen_ = false;
    bool secondNounSeen_ = false;
    bool adjectivePending_ = false;
};

/// The words of one sentence of type "marlo": two count.
class MarloReader {
  public:
    explicit MarloReader(Game& game) : game_(game) {}

    void Take(const std::vector<VocabularyWord>& rows) {
        ++known_;
        if (known_ == 1) SetWord(game_, flag::kVerb, rows[0].number, rows[0].word);
        if (known_ == 2) TakeSecond(rows[0]);
    }

    void Finish() {}

  private:
    void TakeSecond(const VocabularyWord& row) {
        if (row.number < kFirstPlainNoun && !HasWord(game_, flag::kVerb)) {
            return SetWord(game_, flag::kVerb, row.number, row.word);
        }
        if (HasWord(game_, flag::kNoun)) return SetWord(game_, flag::kNoun2, row.number, row.word);
        SetWord(game_, flag::kNoun, row.number, row.word);
        if (row.number > kFirstReferableNoun) SetWord(game_, flag::kPronounNoun, row.number, row.word);
    }

    Game& game_;
    int known_ = 0;
};

/// Hands the words of a sentence to a reader. Returns what it leaves: speech, with what follows it.
template <class Reader>
std::string_view ReadWords(Game& game, std::string_view sentence, Reader reader) {
    const auto letters = static_cast<std::size_t>(game.data.significantLetters);
    while (!sentence.empty() && sentence.front() != kQuote) {
        const std::size_t blank = sentence.find(' ');
        const std::string_view word = sentence.substr(0, blank);
        sentence.remove_prefix(blank == std::string_view::npos ? sentence.size() : blank + 1);
        const std::vector<VocabularyWord>& rows = game.texts.FindWord(text::Left(word, letters));
        if (!rows.empty()) reader.Take(rows);
    }
    reader.Finish();
    return sentence;
}

}  // namespace

std::string SplitSentences(std::string_view line, const std::vector<std::string>& conjunctions) {
    constexpr std::string_view kSentenceEnds = ",;.!?";
    std::string text = text::ReplaceAll(line, "\r\n", " ");
    for (char& c : text) {
        if (c == '\r' || c == '\n') c = ' ';
    }
    for (const std::string& conjunction : conjunctions) {
        if (text.find(conjunction) == std::string::npos) continue;
        text = text::ReplaceAll(text, " " + conjunction + " ", std::string(1, kSentenceEnd));
    }
    for (char& c : text) {
        if (kSentenceEnds.find(c) != std::string_view::npos) c = kSentenceEnd;
    }
    while (text.ends_with(kSentenceEnd))
        text.pop_back();
    return text;
}

bool ParsePhrase(Game& game, std::string& text) {
    if (text.empty()) return false;
    if (game.trace.On()) game.trace.Tell(PhraseBegun{text});
    BeginSentence(game);
    const std::size_t end = text.find(kSentenceEnd);
    const std::string collapsed = text::CollapseBlanks(std::string_view(text).substr(0, end));
    const std::string_view sentence = text::TrimBlanks(collapsed);
    if (game.IsMarlo()) {
        ReadWords(game, sentence, MarloReader(game));
        text.clear();
    } else {
        const std::string_view speech = ReadWords(game, sentence, SentenceReader(game));
        const std::string rest = end == std::string::npos ? "" : text.substr(end);
        text = text::TrimBlanks(std::string(speech) + rest);
        text.erase(0, std::min(text.find_first_not_of(kSentenceEnd), text.size()));
    }
    return HasWord(game, flag::kVerb) || HasWord(game, flag::kNoun);
}

std::string SentenceWords(const Game& game) {
    std::string words;
    for (const FlagNumber wordFlag :
         {flag::kAdverb, flag::kVerb, flag::kAdjective, flag::kNoun, flag::kPreposition}) {
        if (!words.empty()) words += ' ';
        words += game.state.WordText(wordFlag);
    }
    return words;
}

}  // namespace fabula::engine
