#include "condacts/words.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "condacts/limits.h"
#include "text/encoding/utf8.h"

namespace fabula::condacts {
namespace {

constexpr std::string_view kTypeNames[] = {
    "Verb", "Adverb", "Noun", "Adjective", "Preposition", "Conjugation", "Pronoun", "RESERVED",
};

template <typename Key, typename Fits>
const Word* FirstFitting(const std::vector<Word>& words,
                         const std::unordered_map<Key, std::vector<std::size_t>>& index, const Key& key,
                         Fits fits) {
    const auto found = index.find(key);
    if (found == index.end()) return nullptr;
    for (const std::size_t i : found->second) {
        if (fits(words[i])) return &words[i];
    }
    return nullptr;
}

}  // namespace

std::string_view WordTypeName(int wordType) {
    if (wordType < 0 || wordType >= static_cast<int>(std::size(kTypeNames))) return "";
    return kTypeNames[wordType];
}

bool AnyWord(const Word& /*word*/) {
    return true;
}

bool IsNounOrReserved(const Word& word) {
    return word.type == kNoun || word.type == kReserved;
}

bool MayBeEntryVerb(const Word& word) {
    return std::ranges::find(kEntryVerbTypes, word.type) != std::end(kEntryVerbTypes);
}

bool IsAdjectiveOrReserved(const Word& word) {
    return word.type == kAdjective || word.type == kReserved;
}

bool IsVerbOrNoun(const Word& word) {
    return word.type == kVerb || word.type == kNoun;
}

bool IsMovementWord(const Word& word) {
    return word.type == kVerb || (word.type == kNoun && word.number < kFirstPlainNoun);
}

bool IsMovementWordOrReserved(const Word& word) {
    return IsMovementWord(word) || word.type == kReserved;
}

bool Clashes(const Word& word, std::span<const Word> sameSpelling) {
    if (word.type != kVerb && word.type != kNoun) return !sameSpelling.empty();
    return std::any_of(sameSpelling.begin(), sameSpelling.end(), [&](const Word& other) {
        return other.type == word.type && other.number == word.number;
    });
}

std::string DuplicateWordFault(std::string_view word) {
    return "ERROR: Duplicate Word.\nWord " + std::string(word) + " deleted.";
}

WordIndex::WordIndex(std::vector<Word> words) : words_(std::move(words)) {
    for (std::size_t i = 0; i < words_.size(); ++i) {
        bySpelling_[text::LowerCase(words_[i].word)].push_back(i);
        byNumber_[words_[i].number.value].push_back(i);
    }
}

const Word* WordIndex::Find(std::string_view spelling, WordTest test) const {
    return FirstFitting(words_, bySpelling_, text::LowerCase(spelling), test);
}

const Word* WordIndex::FindTyped(std::string_view spelling, WordType wordType) const {
    return FirstFitting(words_, bySpelling_, text::LowerCase(spelling), [wordType](const Word& word) {
        return word.type == wordType || word.type == kReserved;
    });
}

const Word* WordIndex::FindAsked(std::string_view spelling, WordType wordType) const {
    if (Has(spelling)) return FindTyped(spelling, wordType);
    const std::string_view cut = spelling.substr(0, SignificantLetters(store::AdventureKind::Vel));
    const Word* found = FindTyped(cut, wordType);
    if (found == nullptr) return nullptr;
    const auto otherwise = [&](std::size_t i) {
        const Word& word = words_[i];
        return (word.type == wordType || word.type == kReserved) && word.number != found->number;
    };
    const std::vector<std::size_t>& same = bySpelling_.at(text::LowerCase(cut));
    return std::any_of(same.begin(), same.end(), otherwise) ? nullptr : found;
}

const Word* WordIndex::FindNumber(WordNumber number, WordTest test) const {
    return FirstFitting(words_, byNumber_, number.value, test);
}

const Word* WordIndex::FindNumberTyped(WordNumber number, WordType wordType) const {
    return FirstFitting(words_, byNumber_, number.value, [wordType](const Word& word) {
        return word.type == wordType || word.type == kReserved;
    });
}

}  // namespace fabula::condacts
