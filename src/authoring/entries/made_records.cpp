#include "authoring/entries/made_records.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "authoring/entries/record_keys.h"
#include "condacts/language/catalogue.h"
#include "condacts/language/load.h"
#include "condacts/limits.h"
#include "condacts/word_record.h"
#include "condacts/words.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::TableNum;

/// The first noun that games of all types remember for a pronoun.
constexpr int kFirstNounOfIt = condacts::kFirstReferableNoun.value + 1;
/// In the oldest games the words below are directions.
constexpr int kFirstMarloNoun = 13;

}  // namespace

void AddPlace(Adventure& adventure, condacts::PlaceNumber number, const std::string& name) {
    store::Cursor& record = adventure.OpenTable(TableNum::Free22, "* from locations", "locnum<0");
    record.AddNew();
    record.SetField("locnum", std::int64_t{number.value});
    record.SetField("locdesc", std::string(" "));
    record.SetField("locshortdesc", name);
    for (const char* field : {"exits", "numericexits", "picloc", "pickey"})
        record.SetField(field, std::string());
    record.SetField("numexits", std::int64_t{0});
    record.SetField("oldpicloc", std::string(" "));
    record.Update();
}

std::optional<condacts::WordNumber> NumberOfNewNoun(Adventure& adventure) {
    const bool marlo = adventure.Kind() == store::AdventureKind::Marlo;
    const int first = marlo ? kFirstMarloNoun : kFirstNounOfIt;
    std::set<int> taken;
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    for (const condacts::Word& word : words.All()) {
        if (word.type == condacts::kNoun && word.number.value <= condacts::limit::kHighestWord)
            taken.insert(word.number.value);
    }
    const int next = taken.empty() ? first : std::max(first, *taken.rbegin() + 1);
    if (next <= condacts::limit::kHighestWord) return condacts::WordNumber(next);
    for (int number = first; number <= condacts::limit::kHighestWord; ++number) {
        if (!taken.contains(number)) return condacts::WordNumber(number);
    }
    return std::nullopt;
}

void AddNoun(Adventure& adventure, const std::string& word, condacts::WordNumber number) {
    const std::optional<int> key = NextKey(adventure, TableNum::Vocabulary);
    store::Cursor& record = adventure.OpenTable(TableNum::Free22, "* from vocabulary", "vocindex<0");
    record.AddNew();
    record.SetField("vocindex", std::int64_t{*key});
    condacts::SetWord(record, {.word = word, .number = number, .type = condacts::kNoun});
    record.Update();
}

}  // namespace fabula::authoring
