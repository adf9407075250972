#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "condacts/numbers.h"

namespace fabula::condacts {

/// The types of words, as `voctypen` numbers them. Reserved words stand in for every type. What a file
/// holds may be none of them.
enum WordType : int {
    kVerb = 0,
    kAdverb = 1,
    kNoun = 2,
    kAdjective = 3,
    kPreposition = 4,
    kConjunction = 5,
    kPronoun = 6,
    kReserved = 7,
};

/// The types of the words that may stand where an entry has its verb.
inline constexpr WordType kEntryVerbTypes[] = {kVerb, kNoun, kReserved};

/// The name of a type as `voctype` holds it: "Verb", ... "Conjugation", "Pronoun", "RESERVED"; "" for a
/// number that is no type.
std::string_view WordTypeName(int wordType);

/// The word that stands for "no word", and the number that goes with it.
inline constexpr std::string_view kNoWord = "_";
inline constexpr WordNumber kNoWordNumber{255};
/// The number of the other word that stands for any word in an entry; not in games of type "Marlo".
inline constexpr WordNumber kAnyWordNumber{1};

/// Verbs below this number are directions: one that leads nowhere has an answer of its own.
inline constexpr WordNumber kFirstPlainVerb{14};
/// Nouns below this number may stand in for a verb and name a direction.
inline constexpr WordNumber kFirstPlainNoun{20};
/// A pronoun can stand for nouns from this number on. Games of type "Marlo" remember only those above it.
inline constexpr WordNumber kFirstReferableNoun{50};
/// The nouns from this number on name what can be worn, in games of type "Marlo".
inline constexpr WordNumber kFirstMarloWearable{200};

/// A row of the vocabulary. One spelling may have several, with other numbers or types.
struct Word {
    std::string word;
    WordNumber number;      ///< `vocnum`; synonyms share it
    WordType type = kVerb;  ///< `voctypen`
};

/// Which words a look-up takes.
using WordTest = bool (*)(const Word&);

bool AnyWord(const Word& word);
bool IsNounOrReserved(const Word& word);
/// Of the kEntryVerbTypes.
bool MayBeEntryVerb(const Word& word);
bool IsAdjectiveOrReserved(const Word& word);
/// A verb, or a noun that may stand in for one.
bool IsVerbOrNoun(const Word& word);
bool IsMovementWord(const Word& word);
bool IsMovementWordOrReserved(const Word& word);

/// Whether `word` may not stand beside the words of the same spelling: a verb beside a verb of its number,
/// a noun beside a noun of its number, and a word of any other type beside any word.
bool Clashes(const Word& word, std::span<const Word> sameSpelling);

/// What a source is told whose word clashes.
std::string DuplicateWordFault(std::string_view word);

/// A vocabulary in memory, in its order: where several words fit, the first in that order is found.
/// Spelling is compared without regard to case.
class WordIndex {
  public:
    WordIndex() = default;
    explicit WordIndex(std::vector<Word> words);

    /// The first word of this spelling that passes `test`; nullptr when there is none.
    const Word* Find(std::string_view spelling, WordTest test = AnyWord) const;
    /// The first word of this spelling that is of type `wordType` or reserved.
    const Word* FindTyped(std::string_view spelling, WordType wordType) const;
    /// The word that a condition on words of `wordType` names, of that type or reserved. The whole spelling
    /// counts first. Only one that no word has, of whatever type, is cut to its first five letters, as
    /// older games write their words; nullptr then, too, where words of different numbers fit.
    const Word* FindAsked(std::string_view spelling, WordType wordType) const;
    /// Whether any word has this spelling.
    bool Has(std::string_view spelling) const { return Find(spelling) != nullptr; }
    /// The first word of this number that passes `test`.
    const Word* FindNumber(WordNumber number, WordTest test) const;
    /// The first word of this number that is of type `wordType` or reserved.
    const Word* FindNumberTyped(WordNumber number, WordType wordType) const;

    const std::vector<Word>& All() const { return words_; }

  private:
    std::vector<Word> words_;
    std::unordered_map<std::string, std::vector<std::size_t>> bySpelling_;
    std::unordered_map<int, std::vector<std::size_t>> byNumber_;
};

}  // namespace fabula::condacts
