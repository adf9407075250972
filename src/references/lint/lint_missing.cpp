#include <algorithm>
#include <string>

#include "condacts/places.h"
#include "references/lint/lint_game.h"

namespace fabula::references {
namespace {

using store::TableNum;

/// What is told of a use of something that is not there.
struct Missing {
    Kind kind;
    std::string_view field;  ///< "" for all others
    std::string_view code;
    std::string_view sentence;  ///< "#" stands for the number
};

/// The first that fits counts.
constexpr Missing kMissing[] = {
    {Kind::Location, "exits", "exit-missing", "has an exit to location #, which does not exist"},
    {Kind::Location, "startloc", "start-missing", "begin in location #, which does not exist"},
    {Kind::Location, "objloc", "place-missing", "begins at location #, which does not exist"},
    {Kind::Location, "objattr", "container-placeless", "is a container, but there is no location #"},
    {Kind::Location, "roompicnum", "room-missing", "belongs to location #, which does not exist"},
    {Kind::Location, "", "location-missing", "names location #, which does not exist"},
    {Kind::Object, "", "object-missing", "names object #, which does not exist"},
    {Kind::Message, "", "message-missing", "prints message #, which does not exist"},
    {Kind::SystemMessage, "", "sysmess-missing", "prints system message #, which does not exist"},
    {Kind::Flag, "", "flag-missing", "names flag #, which does not exist"},
    {Kind::Process, "estype", "process-missing", "belongs to process table #, which has no description"},
    {Kind::Process, "", "process-missing", "calls process table #, which does not exist"},
    {Kind::Picture, "", "picture-missing", "calls picture #, which does not exist"},
    {Kind::CharacterSet, "", "set-missing", "names character set #, which does not exist"},
    {Kind::Character, "", "character-missing", "shows character #, which does not exist"},
    {Kind::Word, "w1", "entry-word-missing", "answers to the word number #, which no word has"},
    {Kind::Word, "w2", "entry-word-missing", "answers to the word number #, which no noun has"},
    {Kind::Word, "exits", "exit-word-missing", "has an exit with the word number #, which no word has"},
    {Kind::Word, "objnoun", "object-word-missing", "is called by the word number #, which no noun has"},
    {Kind::Word, "objadject", "object-word-missing",
     "is called by the word number #, which no adjective has"},
    {Kind::Word, "condacts", "asked-word-missing", "asks for the word number #, which no such word has"},
};

const Missing& FindMissing(const Use& use) {
    return *std::find_if(std::begin(kMissing), std::end(kMissing), [&](const Missing& missing) {
        return missing.kind == use.target.kind && (missing.field.empty() || missing.field == use.field);
    });
}

bool HasWord(const LintGame& game, const Use& use) {
    const WordTypes types = use.wordTypes | TypeBit(condacts::kReserved);
    return std::any_of(game.words.begin(), game.words.end(), [&](const LintWord& word) {
        return word.word.number.value == use.target.number && (TypeBit(word.word.type) & types) != 0;
    });
}

bool Exists(const LintGame& game, const Use& use) {
    const int number = use.target.number;
    switch (use.target.kind) {
        case Kind::Flag:
            return game.facts.flags.contains(condacts::FlagNumber(number));
        case Kind::Object:
            return game.facts.objects.contains(condacts::ObjectNumber(number));
        case Kind::Location:
            return game.facts.locations.contains(condacts::PlaceNumber(number)) &&
                   !condacts::IsSpecialPlace(condacts::PlaceNumber(number));
        case Kind::Message:
            return game.facts.messages.contains(condacts::MessageNumber(number));
        case Kind::SystemMessage:
            return game.facts.systemMessages.contains(condacts::SystemMessageNumber(number));
        case Kind::Process:
            return game.facts.processes.contains(condacts::ProcessNumber(number));
        case Kind::Word:
            return number <= condacts::kAnyWordNumber.value || HasWord(game, use);
        case Kind::Picture:
            return std::any_of(game.pictures.begin(), game.pictures.end(),
                               [&](const LintPicture& picture) { return picture.number == number; });
        case Kind::CharacterSet:
            return game.characterSetNumbers.contains(number);
        case Kind::Character:
            return game.characters.contains(number);
    }
    return true;
}

std::string Subject(const LintGame& game, const KeptUse& kept) {
    const Use& use = kept.use;
    if (use.table == TableNum::Adventure) return "Play would ";
    if (use.table == TableNum::ProcessTables) {
        std::string name = NameOf(game.EntryOf(kept));
        name[0] = 'P';
        return name + " ";
    }
    std::string name(EntryOf(*KindOf(use.table)).name);
    name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name + " " + std::to_string(use.record) + " ";
}

}  // namespace

void CheckMissing(const LintGame& game, Findings& findings) {
    for (const auto& [target, uses] : game.uses) {
        for (const KeptUse& kept : uses) {
            const Use& use = kept.use;
            if (use.possible || Exists(game, use)) continue;
            const std::string number = std::to_string(target.number);
            const bool nowhere = use.field == "exits" && target.kind == Kind::Location &&
                                 condacts::IsSpecialPlace(target.number);
            if (nowhere) {
                findings.Add("exit-nowhere", use.table, use.record,
                             Subject(game, kept) + "has an exit to " + number + ", which is no place.",
                             use.field, use.token);
                continue;
            }
            const Missing& missing = FindMissing(use);
            std::string sentence(missing.sentence);
            sentence.replace(sentence.find('#'), 1, number);
            findings.Add(missing.code, use.table, use.record, Subject(game, kept) + sentence + ".",
                         use.field, use.token);
        }
    }
}

}  // namespace fabula::references
