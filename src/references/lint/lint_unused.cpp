#include <algorithm>
#include <set>
#include <string>

#include "condacts/flags.h"
#include "condacts/limits.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "references/lint/lint_game.h"
#include "text/str_edit.h"

namespace fabula::references {
namespace {

using store::TableNum;

/// What an import writes where a source tells nothing of a flag.
constexpr std::string_view kImportedDescription = "Used by this Adventure.";

/// The system messages that every new adventure has.
constexpr condacts::SystemMessageNumber kLastOfTheData{55};

bool IsUsed(const LintGame& game, Kind kind, std::int64_t number, WordTypes types = kAnyType) {
    return !game.index.UsesOf({kind, static_cast<int>(number)}, types).empty();
}

void CheckFlags(const LintGame& game, Findings& findings) {
    for (const LintFlag& flag : game.flags) {
        if (flag.system || flag.number == condacts::flag::kPauseFunction) continue;
        const std::string name = "Flag " + std::to_string(flag.number.value);
        bool reads = false;
        bool sets = false;
        bool named = false;
        for (const KeptUse& kept : game.UsesOf(Target::Of(flag.number))) {
            reads = reads || kept.use.access == Access::Reads;
            sets = sets || kept.use.access == Access::Sets || kept.use.access == Access::Both;
            named = true;
        }
        const std::string_view description = text::TrimBlanks(flag.description);
        if (!named && !description.empty() && description != kImportedDescription)
            findings.Add("flag-unused", TableNum::Flags, flag.number.value,
                         name + " is described and never used.");
        if (reads && !sets)
            findings.Add("flag-unset", TableNum::Flags, flag.number.value,
                         name + " is read but never set.");
        if (sets && !reads)
            findings.Add("flag-unread", TableNum::Flags, flag.number.value,
                         name + " is set but never read.");
    }
}

/// What is not there at first has to be brought by a rule: one that moves it, or any that takes its number
/// from a flag.
void CheckUnusedObjects(const LintGame& game, Findings& findings) {
    for (const LintObject& object : game.objects) {
        if (object.place != condacts::place::kNotCreated) continue;
        const auto uses = game.index.UsesOf(Target::Of(object.number));
        const bool brought = std::any_of(uses.begin(), uses.end(), [](const Use& use) {
            return use.possible || use.access == Access::Sets || use.access == Access::Both;
        });
        if (!brought)
            findings.Add("object-nowhere", TableNum::Objects, object.number.value,
                         "Object " + std::to_string(object.number.value) +
                             " is not created at first, and no rule brings it.");
    }
}

void CheckUnusedTexts(const LintGame& game, Findings& findings) {
    for (const auto& message : game.messages) {
        if (IsUsed(game, Kind::Message, message.number.value)) continue;
        findings.Add("message-unused", TableNum::Messages, message.number.value,
                     "No rule prints message " + std::to_string(message.number.value) + ".");
    }
    for (const auto& message : game.systemMessages) {
        if (message.number <= kLastOfTheData || IsUsed(game, Kind::SystemMessage, message.number.value))
            continue;
        findings.Add("sysmess-unused", TableNum::SystemMessages, message.number.value,
                     "Neither the engine nor a rule prints system message " +
                         std::to_string(message.number.value) + ".");
    }
}

/// Words that are there for rules and objects. The others help the parser to read a sentence, and the
/// engine itself answers to a direction without an exit.
bool IsForRules(const condacts::Word& word) {
    if (word.type == condacts::kAdjective) return true;
    return (word.type == condacts::kVerb || word.type == condacts::kNoun) &&
           word.number >= condacts::kFirstPlainNoun;
}

void CheckWords(const LintGame& game, Findings& findings) {
    std::set<std::pair<condacts::WordType, condacts::WordNumber>> told;
    for (const LintWord& entry : game.words) {
        const condacts::Word& word = entry.word;
        if (!IsForRules(word) || IsUsed(game, Kind::Word, word.number.value, TypeBit(word.type))) continue;
        if (!told.insert({word.type, word.number}).second) continue;
        findings.Add("word-unused", TableNum::Vocabulary, entry.index,
                     "Nothing uses the " + std::string(condacts::WordTypeName(word.type)) + " " +
                         word.word + " (" + std::to_string(word.number.value) + ").");
    }
}

void CheckProcesses(const LintGame& game, Findings& findings) {
    std::set<condacts::ProcessNumber> withEntries;
    for (const auto& entry : game.entries)
        withEntries.insert(entry->process);
    for (const auto& process : game.processes) {
        const auto& uses = game.UsesOf({Kind::Process, process.number.value});
        const bool called = std::any_of(uses.begin(), uses.end(),
                                        [](const KeptUse& kept) { return kept.use.field == "condacts"; });
        const std::string name = std::to_string(process.number.value);
        if (!called && process.number > condacts::limit::kLastFixedProcess)
            findings.Add("process-unused", TableNum::ProcDesc, process.number.value,
                         "No rule calls process table " + name + ".");
        if (called && !withEntries.contains(process.number))
            findings.Add("process-empty", TableNum::ProcDesc, process.number.value,
                         "Process table " + name + " is called and has no entries.");
    }
}

void CheckPictures(const LintGame& game, Findings& findings) {
    if (!game.draws) return;
    for (const LintPicture& picture : game.pictures) {
        if (!picture.subroutine || IsUsed(game, Kind::Picture, picture.number) ||
            game.facts.locations.contains(condacts::PlaceNumber(static_cast<int>(picture.number))))
            continue;
        findings.Add("picture-unused", TableNum::Pictures, picture.number,
                     "No drawing calls picture " + std::to_string(picture.number) + ".");
    }
    for (const int set : game.characterSetNumbers) {
        // Set 0 is what is written with at first, and what shades are made of.
        if (set == 0 || IsUsed(game, Kind::CharacterSet, set)) continue;
        findings.Add("set-unused", TableNum::Characters, set,
                     "Nothing names character set " + std::to_string(set) + ".");
    }
}

}  // namespace

void CheckUnused(const LintGame& game, Findings& findings) {
    CheckFlags(game, findings);
    CheckUnusedObjects(game, findings);
    CheckUnusedTexts(game, findings);
    CheckWords(game, findings);
    CheckProcesses(game, findings);
    CheckPictures(game, findings);
}

}  // namespace fabula::references
