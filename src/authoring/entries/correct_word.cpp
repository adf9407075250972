#include "authoring/entries/correct_word.h"

#include <algorithm>
#include <string_view>

#include "condacts/language/load.h"
#include "condacts/words.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::authoring {
namespace {

using condacts::Word;
using store::Adventure;
using store::Cursor;
using store::TableNum;

/// A field that names a word, and the one that holds its number.
struct WordFields {
    std::string_view table;
    std::string_view word;
    std::string_view number;
    bool (*takes)(const Word& word);  ///< words that may stand there
};

bool IsAdjective(const Word& word) {
    return word.type == condacts::kAdjective;
}

bool IsNoun(const Word& word) {
    return word.type == condacts::kNoun;
}

constexpr WordFields kFields[] = {
    {"processtables", "w1", "w1num", condacts::IsVerbOrNoun},
    {"processtables", "w2", "w2num", IsNoun},
    {"objects", "objnoun", "objnumnoun", IsNoun},
    {"objects", "objadject", "objnumadject", IsAdjective},
};

/// Whether a word of the old spelling and number is left that may stand there.
bool IsLeft(const condacts::WordIndex& words, const Word& before, bool (*takes)(const Word& word)) {
    return std::ranges::any_of(words.All(), [&](const Word& word) {
        return word.number == before.number && takes(word) && text::EqualsNoCase(word.word, before.word);
    });
}

int CorrectField(Adventure& adventure, const WordFields& fields, const Word& before,
                 const std::string& now) {
    int corrected = 0;
    for (Cursor& record = adventure.OpenTable(
             TableNum::Free22, "* from " + std::string(fields.table),
             std::string(fields.number) + "=" + std::to_string(before.number.value) + " and " +
                 std::string(fields.word) + "=" + store::QuoteText(before.word));
         !record.Eof(); record.MoveNext()) {
        record.SetField(fields.word, now);
        record.Update();
        ++corrected;
    }
    return corrected;
}

/// A line of exits with the new spelling; words and their numbers stand at the same places in both lines.
std::string Corrected(std::string_view exits, std::string_view numbers, const Word& before,
                      const std::string& now) {
    const auto words = text::Split(exits, " ");
    const auto known = text::Split(numbers, " ");
    std::string line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool uses = i % 2 == 0 && i < known.size() &&
                          known[i] == std::to_string(before.number.value) &&
                          text::EqualsNoCase(words[i], before.word);
        line.append(i == 0 ? "" : " ").append(uses ? std::string_view(now) : words[i]);
    }
    return line;
}

int CorrectExits(Adventure& adventure, const Word& before, const std::string& now) {
    int locations = 0;
    for (Cursor& location = adventure.OpenTable(TableNum::Free22, "* from locations", "numexits>0");
         !location.Eof(); location.MoveNext()) {
        const std::string exits(location.Text("exits"));
        std::string corrected = Corrected(exits, location.Text("numericexits"), before, now);
        if (corrected == exits) continue;
        location.SetField("exits", std::move(corrected));
        location.Update();
        ++locations;
    }
    return locations;
}

}  // namespace

int FollowCorrection(Adventure& adventure, const Word& before, const std::string& now) {
    int followed = 0;
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    for (const WordFields& fields : kFields) {
        if (fields.takes(before) && !IsLeft(words, before, fields.takes))
            followed += CorrectField(adventure, fields, before, now);
    }
    if (condacts::IsMovementWord(before) && !IsLeft(words, before, condacts::IsMovementWord))
        followed += CorrectExits(adventure, before, now);
    return followed;
}

}  // namespace fabula::authoring
