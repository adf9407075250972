#pragma once

#include <map>
#include <string>
#include <vector>

#include "condacts/words.h"
#include "interchange/shared/keyed_table.h"

namespace fabula::interchange {

/// The vocabulary of a game while words are added to it. Nobody else may open the table meanwhile. Words
/// are in capitals.
class GameWords {
  public:
    explicit GameWords(store::Adventure& adventure);

    bool Has(const std::string& word) const { return bySpelling_.contains(word); }
    bool Has(const std::string& word, condacts::WordType type) const;
    /// The number of the first word of that spelling and type; nothing when there is none.
    std::optional<condacts::WordNumber> NumberOf(const std::string& word, condacts::WordType type) const;

    /// Adds a word at the next key. False, and nothing added, when there is no key left.
    bool Add(const condacts::Word& word);
    /// Adds a word of that spelling and type at the lowest number that no word in `types` has, from 20 up,
    /// unless there is one already. Directions and conversion nouns have the numbers below.
    void MakeSureOf(const std::string& word, condacts::WordType type,
                    std::vector<condacts::WordType> types = {});

  private:
    KeyedTable table_;
    std::map<std::string, std::vector<condacts::Word>> bySpelling_;
    std::vector<condacts::Word> words_;
};

/// The words of a new adventure's default data, taken out of it. They are added again behind the words of
/// the game: those that are missing, and all that are neither verbs, nouns nor adjectives.
class DefaultWords {
  public:
    explicit DefaultWords(store::Adventure& adventure);
    void AddTo(GameWords& words) const;

  private:
    std::vector<condacts::Word> words_;
};

}  // namespace fabula::interchange
