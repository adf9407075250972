#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/numbers.h"
#include "store/adventure.h"
#include "store/adventure_kind.h"

namespace fabula::engine {

/// A row of the vocabulary.
struct VocabularyWord {
    WordNumber number;
    int type = 0;      ///< `voctypen`
    std::string word;  ///< as stored
};

/// The texts and words of an adventure. For the type "fabula" each text is looked up in the file when it is
/// first used; the other types have theirs in memory from the start. Words are looked up when they are
/// first typed. What was looked up stays in memory within a bound: beyond it all of its kind is let go and
/// looked up anew.
///
/// A text is in the markup, with its line-end markers; it is valid until the next call for a text of the
/// same kind. A text that does not exist throws RunFailure.
class GameTexts {
  public:
    GameTexts(store::Adventure& adventure, store::AdventureKind type);

    std::string_view Location(PlaceNumber location);
    std::string_view ShortLocation(PlaceNumber location);
    std::string_view Object(ObjectNumber object);
    std::string_view Message(MessageNumber message);
    std::string_view SystemMessage(SystemMessageNumber message);
    bool HasSystemMessage(SystemMessageNumber message);

    /// The rows of a word as typed, in the order of type and number; for "marlo" only verbs, nouns and
    /// reserved words. Valid until the next call.
    const std::vector<VocabularyWord>& FindWord(std::string_view word);

    /// True when it is the number of a noun (and no reserved word's).
    bool IsNoun(WordNumber word);
    /// The first word of a number and the type's name ("Verb"); "" when there is none.
    std::string WordOf(WordNumber word, std::string_view typeName);

  private:
    /// One kind of text: its look-up, and its texts that are in memory, by number.
    struct Kind {
        const char* name;
        store::PreparedQuery query;
        std::vector<std::optional<std::string>> texts;
        std::size_t bytes = 0;  ///< of those that were looked up
    };

    /// The look-up of the texts that a table is there for.
    static Kind TextsOf(store::Adventure& adventure, const char* name, store::TableNum table);
    void Load(store::Adventure& adventure, Kind& kind, store::TableNum table, std::string_view fields);
    std::string_view Find(Kind& kind, int number);
    std::optional<std::string_view> Seek(Kind& kind, int number);
    static std::string_view Keep(Kind& kind, std::size_t index, std::string_view text);
    std::vector<VocabularyWord> LookUp(std::string_view word);

    bool inMemory_;
    Kind locations_;
    Kind shortLocations_;
    Kind objects_;
    Kind messages_;
    Kind systemMessages_;
    store::PreparedQuery words_;
    store::PreparedQuery nouns_;
    store::PreparedQuery wordsByNumber_;
    /// The rows of the words typed so far, by what was typed.
    std::map<std::string, std::vector<VocabularyWord>, std::less<>> known_;
    std::size_t knownRows_ = 0;
    std::vector<VocabularyWord> found_;
};

/// How much is kept of what was looked up: bytes of text of one kind, and rows and spellings of words.
inline constexpr std::size_t kMostTextKept = 1024 * 1024;
inline constexpr std::size_t kMostWordsKept = 8192;

}  // namespace fabula::engine
