#include "interchange/fabula/companion_texts.h"

#include <cstdint>
#include <optional>

#include "condacts/language/convert.h"
#include "condacts/language/parser.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "interchange/shared/source_file.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using condacts::Word;
using condacts::WordIndex;

/// What makes a companion of a field.
enum class Maker {
    CondActs,
    Exits,
    Attributes,
    Location,
    Adjective,
    Noun,
    WordType,
    FirstWord,
    SecondWord
};

struct Companion {
    std::string_view numericField;
    std::string_view field;
    Maker maker;
};

constexpr Companion kCompanions[] = {
    {"numericcondacts", "CondActs", Maker::CondActs},
    {"numericexits", "Exits", Maker::Exits},
    {"objattrn", "ObjAttr", Maker::Attributes},
    {"objloc", "ObjLocDesc", Maker::Location},
    {"objnumadject", "ObjAdject", Maker::Adjective},
    {"objnumnoun", "ObjNoun", Maker::Noun},
    {"voctypen", "VocType", Maker::WordType},
    {"w1num", "W1", Maker::FirstWord},
    {"w2num", "W2", Maker::SecondWord},
};

constexpr std::string_view kAttributes[] = {"", "C", "WR", "CWR"};

const Companion* Find(std::string_view numericField) {
    for (const Companion& companion : kCompanions) {
        if (text::EqualsNoCase(companion.numericField, numericField)) return &companion;
    }
    return nullptr;
}

bool IsFirstWord(const Word& word) {
    return condacts::IsVerbOrNoun(word) || word.type == condacts::kReserved;
}

std::string WordText(const WordIndex& words, std::int64_t number, condacts::WordTest test) {
    if (number < 0 || number >= condacts::kBeyondNumbers) return "";
    const Word* word = words.FindNumber(condacts::WordNumber(static_cast<int>(number)), test);
    return word == nullptr ? "" : word->word;
}

std::optional<std::string> AttributesText(std::int64_t attributes) {
    if (attributes < 0 || attributes >= static_cast<std::int64_t>(std::size(kAttributes)))
        return std::nullopt;
    return std::string(kAttributes[attributes]);
}

std::optional<std::string> LocationText(std::int64_t location) {
    if (location == condacts::place::kHere.value) return std::nullopt;
    if (location == condacts::place::kNotCreated.value) return "Not Created";
    if (location == condacts::place::kWorn.value) return "Worn";
    if (location == condacts::place::kCarried.value) return "Carried";
    return "At " + std::to_string(location);
}

std::optional<std::string> WordTypeText(std::int64_t type) {
    if (type < condacts::kVerb || type > condacts::kReserved) return std::nullopt;
    return std::string(condacts::WordTypeName(static_cast<int>(type)));
}

}  // namespace

bool CompanionTexts::Knows(std::string_view numericField) {
    return Find(numericField) != nullptr;
}

void CompanionTexts::Make(store::Cursor& record, std::string_view numericField) const {
    const Companion& companion = *Find(numericField);
    std::optional<std::string> text;
    switch (companion.maker) {
        case Maker::CondActs:
            text = condacts::NumericToCondActs(record.Text(numericField), catalogue_, words_).line;
            break;
        case Maker::Exits:
            text = ExitsText(record.Text(numericField));
            break;
        case Maker::Attributes:
            text = AttributesText(record.Number(numericField));
            break;
        case Maker::Location:
            text = LocationText(record.Number(numericField));
            break;
        case Maker::Adjective:
            text = WordText(words_, record.Number(numericField), condacts::IsAdjectiveOrReserved);
            break;
        case Maker::Noun:
        case Maker::SecondWord:
            text = WordText(words_, record.Number(numericField), condacts::IsNounOrReserved);
            break;
        case Maker::WordType:
            text = WordTypeText(record.Number(numericField));
            break;
        case Maker::FirstWord:
            text = WordText(words_, record.Number(numericField), IsFirstWord);
            break;
    }
    if (text) record.SetField(companion.field, *text);
}

std::string CompanionTexts::ExitsText(std::string_view numericExits) const {
    std::string text;
    const auto tokens = SplitWords(numericExits);
    for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
        const auto number = text::WholeNumber(tokens[i]);
        if (!text.empty()) text += ' ';
        text += WordText(words_, number.value_or(-1), condacts::IsVerbOrNoun);
        text += ' ';
        text += tokens[i + 1];
    }
    return std::string(text::TrimBlanks(text));
}

}  // namespace fabula::interchange
