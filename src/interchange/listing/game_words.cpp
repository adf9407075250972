#include "interchange/listing/game_words.h"

#include <algorithm>
#include <limits>

#include "condacts/language/load.h"
#include "condacts/limits.h"
#include "condacts/word_record.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using condacts::WordNumber;
using condacts::WordType;
using store::TableNum;

constexpr std::int64_t kHighestIndex = std::numeric_limits<std::int16_t>::max();

bool IsFixedKind(WordType type) {
    return type == condacts::kVerb || type == condacts::kNoun || type == condacts::kAdjective;
}

}  // namespace

GameWords::GameWords(store::Adventure& adventure)
    : table_(adventure, TableNum::Vocabulary), words_(condacts::LoadWords(adventure).All()) {
    for (const Word& word : words_)
        bySpelling_[word.word].push_back(word);
}

bool GameWords::Has(const std::string& word, WordType type) const {
    return NumberOf(word, type).has_value();
}

std::optional<WordNumber> GameWords::NumberOf(const std::string& word, WordType type) const {
    const auto found = bySpelling_.find(word);
    if (found == bySpelling_.end()) return std::nullopt;
    for (const Word& candidate : found->second) {
        if (candidate.type == type) return candidate.number;
    }
    return std::nullopt;
}

bool GameWords::Add(const Word& word) {
    if (table_.HighestKey() >= kHighestIndex) return false;
    condacts::SetWord(table_.Add(table_.HighestKey() + 1), word);
    table_.Update();
    bySpelling_[word.word].push_back(word);
    words_.push_back(word);
    return true;
}

void GameWords::MakeSureOf(const std::string& word, WordType type, std::vector<WordType> types) {
    if (Has(word, type)) return;
    types.push_back(type);
    for (int i = condacts::kFirstPlainNoun.value; i <= condacts::limit::kHighestWord; ++i) {
        const WordNumber number(i);
        const bool taken = std::any_of(words_.begin(), words_.end(), [&](const Word& other) {
            return other.number == number &&
                   std::find(types.begin(), types.end(), other.type) != types.end();
        });
        if (taken) continue;
        Add({word, number, type});
        return;
    }
}

DefaultWords::DefaultWords(store::Adventure& adventure) {
    store::PreparedQuery rows =
        adventure.Prepare(TableNum::Vocabulary, "word, vocnum, voctypen", "", "vocindex");
    for (bool more = rows.First({}); more; more = rows.Next()) {
        words_.push_back({std::string(rows.Text(0)), WordNumber(static_cast<int>(rows.Number(1))),
                          static_cast<WordType>(rows.Number(2))});
    }
    rows.Reset();
    adventure.DeleteFrom(TableNum::Vocabulary);
}

void DefaultWords::AddTo(GameWords& words) const {
    for (const Word& word : words_) {
        if (words.Has(word.word, word.type)) continue;
        if (!words.Has(word.word) || !IsFixedKind(word.type)) words.Add(word);
    }
}

}  // namespace fabula::interchange
