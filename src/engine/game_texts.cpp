#include "engine/game_texts.h"

#include <algorithm>
#include <tuple>

#include "condacts/word_filters.h"
#include "engine/run_failure.h"
#include "store/schema/record_fields.h"

namespace fabula::engine {

using store::TableNum;

namespace {

/// A text that stands nowhere near a number this high is not kept in memory.
constexpr std::int64_t kHighestText = condacts::kHighestNumber;

std::string WordFilter(store::AdventureKind type) {
    const std::string word = "word=?";
    return type == store::AdventureKind::Marlo ? word + " and " + condacts::OfEntryVerbs() : word;
}

}  // namespace

GameTexts::GameTexts(store::Adventure& adventure, store::AdventureKind type)
    : inMemory_(type != store::AdventureKind::Fabula),
      locations_(TextsOf(adventure, "location", TableNum::Locations)),
      shortLocations_{"location", adventure.Prepare(TableNum::Locations, "locshortdesc", "locnum=?"), {}},
      objects_(TextsOf(adventure, "object", TableNum::Objects)),
      messages_(TextsOf(adventure, "message", TableNum::Messages)),
      systemMessages_(TextsOf(adventure, "system message", TableNum::SystemMessages)),
      words_(adventure.Prepare(TableNum::Vocabulary, "vocnum, voctypen, Word", WordFilter(type), "")),
      nouns_(adventure.Prepare(TableNum::Vocabulary, "vocnum",
                               condacts::OfWordTypes({condacts::kNoun}) + " and vocnum=?",
                               "voctypen, vocnum, word")),
      wordsByNumber_(adventure.Prepare(TableNum::Vocabulary, "Word", "voctype=? and vocnum=?",
                                       "voctypen, vocnum, word")) {
    if (!inMemory_) return;
    Load(adventure, locations_, TableNum::Locations, store::KeyAndText(TableNum::Locations));
    Load(adventure, shortLocations_, TableNum::Locations, "locnum, locshortdesc");
    Load(adventure, objects_, TableNum::Objects, store::KeyAndText(TableNum::Objects));
    Load(adventure, messages_, TableNum::Messages, store::KeyAndText(TableNum::Messages));
    Load(adventure, systemMessages_, TableNum::SystemMessages, store::KeyAndText(TableNum::SystemMessages));
}

GameTexts::Kind GameTexts::TextsOf(store::Adventure& adventure, const char* name, TableNum table) {
    return {name, adventure.Prepare(table, store::TextField(table), store::KeyField(table) + "=?"), {}};
}

void GameTexts::Load(store::Adventure& adventure, Kind& kind, TableNum table, std::string_view fields) {
    store::PreparedQuery row = adventure.Prepare(table, fields, "");
    for (bool more = row.First({}); more; more = row.Next()) {
        const std::int64_t number = row.Number(0);
        if (number < 0 || number > kHighestText) continue;
        const auto index = static_cast<std::size_t>(number);
        if (kind.texts.size() <= index) kind.texts.resize(index + 1);
        if (!kind.texts[index]) kind.texts[index] = std::string(row.Text(1));
    }
}

std::string_view GameTexts::Find(Kind& kind, int number) {
    const std::optional<std::string_view> text = Seek(kind, number);
    if (!text) FailMissing(kind.name, number);
    return *text;
}

std::optional<std::string_view> GameTexts::Seek(Kind& kind, int number) {
    const auto index = static_cast<std::size_t>(number);
    if (index < kind.texts.size() && kind.texts[index]) return *kind.texts[index];
    if (inMemory_ || !kind.query.First({number})) return std::nullopt;
    const std::string_view text = kind.query.Text(0);
    const bool keeps = number >= 0 && number <= kHighestText && text.size() <= kMostTextKept;
    return keeps ? Keep(kind, index, text) : text;
}

std::string_view GameTexts::Keep(Kind& kind, std::size_t index, std::string_view text) {
    if (kind.bytes + text.size() > kMostTextKept) {
        kind.texts.clear();
        kind.bytes = 0;
    }
    if (kind.texts.size() <= index) kind.texts.resize(index + 1);
    kind.bytes += text.size();
    return kind.texts[index].emplace(text);
}

std::string_view GameTexts::Location(PlaceNumber location) {
    return Find(locations_, location.value);
}

std::string_view GameTexts::ShortLocation(PlaceNumber location) {
    return Find(shortLocations_, location.value);
}

std::string_view GameTexts::Object(ObjectNumber object) {
    return Find(objects_, object.value);
}

std::string_view GameTexts::Message(MessageNumber message) {
    return Find(messages_, message.value);
}

std::string_view GameTexts::SystemMessage(SystemMessageNumber message) {
    return Find(systemMessages_, message.value);
}

bool GameTexts::HasSystemMessage(SystemMessageNumber message) {
    return Seek(systemMessages_, message.value).has_value();
}

const std::vector<VocabularyWord>& GameTexts::FindWord(std::string_view word) {
    const auto known = known_.find(word);
    if (known != known_.end()) return known->second;
    found_ = LookUp(word);
    const std::size_t rows = found_.size() + 1;  // a spelling that is no word counts too
    if (rows > kMostWordsKept) return found_;
    if (knownRows_ + rows > kMostWordsKept) {
        known_.clear();
        knownRows_ = 0;
    }
    knownRows_ += rows;
    return known_.emplace(word, std::move(found_)).first->second;
}

std::vector<VocabularyWord> GameTexts::LookUp(std::string_view word) {
    std::vector<VocabularyWord> found;
    for (bool more = words_.First({word}); more; more = words_.Next()) {
        found.push_back({WordNumber(static_cast<int>(words_.Number(0))), static_cast<int>(words_.Number(1)),
                         std::string(words_.Text(2))});
    }
    // Two rows at most, as a rule: sorting them here costs less than asking the file for an order.
    std::sort(found.begin(), found.end(), [](const VocabularyWord& left, const VocabularyWord& right) {
        return std::tie(left.type, left.number, left.word) < std::tie(right.type, right.number, right.word);
    });
    return found;
}

bool GameTexts::IsNoun(WordNumber word) {
    return nouns_.First({word.value});
}

std::string GameTexts::WordOf(WordNumber word, std::string_view typeName) {
    if (!wordsByNumber_.First({typeName, word.value})) return {};
    return std::string(wordsByNumber_.Text(0));
}

}  // namespace fabula::engine
