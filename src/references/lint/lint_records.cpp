#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "condacts/places.h"
#include "condacts/words.h"
#include "references/lint/lint_game.h"
#include "text/encoding/utf8.h"
#include "text/line_ends.h"
#include "text/markup.h"
#include "text/str_edit.h"

namespace fabula::references {
namespace {

using condacts::ObjectNumber;
using condacts::PlaceNumber;
using condacts::WordNumber;
using store::TableNum;

void CheckExits(const LintGame& game, Findings& findings) {
    for (const LintLocation& location : game.locations) {
        std::set<std::string> seen;
        for (std::size_t i = 0; i < location.numbers.size(); i += 2) {
            if (seen.insert(location.numbers[i]).second) continue;
            const std::string word = i < location.exits.size() ? location.exits[i] : location.numbers[i];
            findings.Add("exit-twice", TableNum::Locations, location.number.value,
                         "Location " + std::to_string(location.number.value) + " has two exits for " +
                             word + "; the second is never taken.",
                         "exits", i);
        }
    }
}

void CheckVocabulary(const LintGame& game, Findings& findings) {
    std::set<std::pair<std::string, condacts::WordType>> seen;
    for (const LintWord& entry : game.words) {
        if (seen.insert({text::LowerCase(entry.word.word), entry.word.type}).second) continue;
        findings.Add("word-twice", TableNum::Vocabulary, entry.index,
                     "The vocabulary holds the " + std::string(condacts::WordTypeName(entry.word.type)) +
                         " " + entry.word.word + " twice.");
    }
}

void CheckObjects(const LintGame& game, Findings& findings) {
    std::map<PlaceNumber, PlaceNumber> inside;  ///< of containers, as places: where each is
    for (const LintObject& object : game.objects) {
        if (object.container) inside[condacts::Inside(object.number)] = object.place;
    }
    for (const auto& [container, place] : inside) {
        std::set<PlaceNumber> passed;
        auto at = inside.find(container);
        while (at != inside.end() && passed.insert(at->first).second && at->second != container)
            at = inside.find(at->second);
        if (at == inside.end() || at->second != container) continue;
        findings.Add("object-inside-itself", TableNum::Objects, container.value,
                     "Object " + std::to_string(container.value) + " is a container inside itself.",
                     "objloc");
    }
    std::map<std::tuple<PlaceNumber, WordNumber, WordNumber>, ObjectNumber> names;
    for (const LintObject& object : game.objects) {
        if (object.noun == condacts::kNoWordNumber || object.place == condacts::place::kNotCreated)
            continue;
        const auto [first, added] =
            names.try_emplace({object.place, object.noun, object.adjective}, object.number);
        if (added) continue;
        findings.Add("object-twin", TableNum::Objects, object.number.value,
                     "Objects " + std::to_string(first->second.value) + " and " +
                         std::to_string(object.number.value) +
                         " begin at one place with one name; a player can't tell them apart.");
    }
}

bool SaysNothing(std::string_view text) {
    std::string tags;
    const std::string plain = text::ReplaceAll(text::StripTags(text, tags), text::kLineEndMarker, " ");
    // A text of tags alone may be there for them: a colour, a line end.
    return tags.empty() && text::TrimBlanks(plain).empty() && text.find('\x8C') == std::string_view::npos;
}

void CheckTexts(const LintGame& game, Findings& findings) {
    for (const auto& message : game.messages) {
        const Target target{Kind::Message, message.number.value};
        if (!SaysNothing(message.text) || game.UsesOf(target).empty()) continue;
        findings.Add("text-empty", TableNum::Messages, message.number.value,
                     "Message " + std::to_string(message.number.value) + " is printed and says nothing.");
    }
}

std::int64_t Plain(std::int64_t number) {
    return number;
}

template <class Kind>
std::int64_t Plain(condacts::Numbered<Kind> number) {
    return number.value;
}

/// Numbers of a table, in their order, where none should be twice or missing.
template <typename Records>
void CheckNumbers(const Records& records, TableNum table, bool gaps, Findings& findings) {
    const std::string one(EntryOf(*KindOf(table)).name);
    std::int64_t last = -1;
    for (const auto& record : records) {
        const std::int64_t number = Plain(record.number);
        const std::string name = std::to_string(number);
        if (number == last)
            findings.Add("number-twice", table, number,
                         "Two records bear the number " + one + " " + name + ".");
        // The numbers of the places that are none are left out.
        const bool skips = table == TableNum::Locations && last < condacts::place::kFirstSpecial.value &&
                           number == condacts::place::kLastSpecial.value + 1;
        if (gaps && !skips && number > last + 1) {
            const std::string first = std::to_string(last + 1);
            findings.Add("gap", table, number,
                         number == last + 2 ? "There is no " + one + " " + first + "."
                                            : "There are no " + one + "s " + first + " to " +
                                                  std::to_string(number - 1) + ".");
        }
        last = number;
    }
}

}  // namespace

void CheckRecords(const LintGame& game, Findings& findings) {
    CheckExits(game, findings);
    CheckVocabulary(game, findings);
    CheckObjects(game, findings);
    CheckTexts(game, findings);
    CheckNumbers(game.locations, TableNum::Locations, true, findings);
    CheckNumbers(game.messages, TableNum::Messages, true, findings);
    CheckNumbers(game.objects, TableNum::Objects, true, findings);
    CheckNumbers(game.systemMessages, TableNum::SystemMessages, true, findings);
    CheckNumbers(game.processes, TableNum::ProcDesc, true, findings);
    CheckNumbers(game.flags, TableNum::Flags, false, findings);
    CheckNumbers(game.pictures, TableNum::Pictures, false, findings);
}

}  // namespace fabula::references
