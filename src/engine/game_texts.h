#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/game_data.h"
#include "store/adventure.h"

namespace fabula::engine {

/// A row of the vocabulary.
struct VocabularyWord {
    int number = 0;
    int type = 0;      ///< `voctypen`
    std::string word;  ///< as stored
};

/// The texts and words of an adventure. For the type "fabula" each text is looked up in the file when it is
/// used; the other types have theirs in memory. Words are always looked up.
///
/// A text is in the markup, with its line-end markers; it is valid until the next call for a text of the
/// same kind. A text that does not exist throws RunFailure.
class GameTexts {
  public:
    GameTexts(store::Adventure& adventure, GameType type);

    std::string_view Location(int location);
    std::string_view ShortLocation(int location);
    std::string_view Object(int object);
    std::string_view Message(int message);
    std::string_view SystemMessage(int message);

    /// The rows of a word as typed, in the order of type and number; for "marlo" only verbs, nouns and
    /// reserved words. Valid until the next call.
    const std::vector<VocabularyWord>& FindWord(std::string_view word);

    /// True when a noun (and no reserved word) has this number.
    bool IsNoun(int number);
    /// The first word of a number and the type's name ("Verb"); "" when there is none.
    std::string WordOf(int number, std::string_view typeName);

  private:
    /// One kind of text: its look-up, and its texts when they are in memory.
    struct Kind {
        const char* name;
        store::PreparedQuery query;
        std::vector<std::optional<std::string>> texts;
    };

    void Load(store::Adventure& adventure, Kind& kind, store::TableNum table, std::string_view fields);
    std::string_view Find(Kind& kind, int number);

    bool inMemory_;
    Kind locations_;
    Kind shortLocations_;
    Kind objects_;
    Kind messages_;
    Kind systemMessages_;
    store::PreparedQuery words_;
    store::PreparedQuery nouns_;
    store::PreparedQuery wordsByNumber_;
    std::vector<VocabularyWord> found_;
};

}  // namespace fabula::engine
