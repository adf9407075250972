#include "authoring/entries/delete_word.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "condacts/language/load.h"
#include "condacts/language/parser.h"
#include "condacts/language/recompile.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::authoring {
namespace {

using condacts::Word;
using store::Adventure;
using store::Cursor;
using store::TableNum;

struct Deleted {
    int objects = 0;
    int entries = 0;
    int movements = 0;
};

std::optional<Word> ReadWord(Adventure& adventure, int vocindex) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Vocabulary, "word, vocnum, voctypen", "vocindex=?");
    if (!row.First({std::int64_t{vocindex}})) return std::nullopt;
    return Word{std::string(row.Text(0)), condacts::WordNumber(static_cast<int>(row.Number(1))),
                static_cast<condacts::WordType>(row.Number(2))};
}

/// Another word of the same number and type; "" when there is none.
std::string SynonymOf(Adventure& adventure, const Word& word, int vocindex) {
    store::PreparedQuery row =
        adventure.Prepare(TableNum::Vocabulary, "word", "vocnum=? and voctypen=? and vocindex<>?");
    const bool found =
        row.First({std::int64_t{word.number.value}, std::int64_t{word.type}, std::int64_t{vocindex}});
    return found ? std::string(row.Text(0)) : std::string();
}

/// The vocabulary as it will be without a word.
condacts::WordIndex WordsWithout(Adventure& adventure, const Word& word) {
    std::vector<Word> words = condacts::LoadWords(adventure).All();
    const auto found = std::find_if(words.begin(), words.end(), [&](const Word& each) {
        return each.number == word.number && each.type == word.type && each.word == word.word;
    });
    if (found != words.end()) words.erase(found);
    return condacts::WordIndex(std::move(words));
}

/// Whether the verb of an entry or the word of an exit, with the number of `deleted`, has gone with it. A
/// verb or a movement noun of the same spelling and number that is left keeps it. So does, for a spelling
/// that went before its synonyms, any such word of the number: GET stays while TAKE is left, whatever
/// becomes of the noun SWORD that shares their number.
bool HasGone(const condacts::WordIndex& words, const Word& deleted, std::string_view spelling) {
    const bool own = text::EqualsNoCase(spelling, deleted.word);
    return std::none_of(words.All().begin(), words.All().end(), [&](const Word& word) {
        return word.number == deleted.number && condacts::IsMovementWord(word) &&
               (!own || text::EqualsNoCase(word.word, spelling));
    });
}

bool MayNameObjects(const Word& word) {
    return word.type == condacts::kNoun || word.type == condacts::kAdjective;
}

/// The objects of a noun or an adjective.
Cursor& ObjectsOf(Adventure& adventure, const Word& word) {
    const std::string numberField = word.type == condacts::kNoun ? "objnumnoun" : "objnumadject";
    return adventure.OpenTable(TableNum::Free22, "* from objects",
                               numberField + "=" + std::to_string(word.number.value));
}

int DetachObjects(Adventure& adventure, const Word& word) {
    if (!MayNameObjects(word)) return 0;
    const bool noun = word.type == condacts::kNoun;
    const std::string numberField = noun ? "objnumnoun" : "objnumadject";
    const std::string wordField = noun ? "objnoun" : "objadject";
    Cursor& objects = ObjectsOf(adventure, word);
    for (; !objects.Eof(); objects.MoveNext()) {
        objects.SetField(wordField, std::string(condacts::kNoWord));
        objects.SetField(numberField, std::int64_t{condacts::kNoWordNumber.value});
        objects.Update();
    }
    return objects.RecordCount();
}

/// Whether a line asks, in a condition on words of this type, for the word as `parameter` writes it.
bool Asks(const condacts::ParsedLine& line, condacts::WordType wordType, std::string_view parameter) {
    return std::any_of(
        line.statements.begin(), line.statements.end(), [&](const condacts::Statement& statement) {
            const condacts::WordCondition* condition = condacts::FindWordCondition(statement.condAct->name);
            return condition != nullptr && condition->wordType == wordType && statement.paramsGiven > 0 &&
                   text::EqualsNoCase(line.Param(statement, 0), parameter);
        });
}

/// Tells which process entries use a word that is deleted, by the words that are left.
class EntryUse {
  public:
    EntryUse(Adventure& adventure, const Word& word)
        : word_(word),
          catalogue_(condacts::LoadCatalogue(adventure)),
          words_(WordsWithout(adventure, word)) {}

    bool Used(const Cursor& entry) const {
        const bool verb = word_.type == condacts::kVerb;
        const bool noun = word_.type == condacts::kNoun;
        if ((verb || noun) && HasLost(entry, "w1", "w1num")) return true;
        if (noun && HasLost(entry, "w2", "w2num")) return true;
        // A verb can't stand in for the noun of an entry, even one of the same spelling and number.
        if (noun && entry.Number("w2num") == word_.number.value &&
            text::EqualsNoCase(entry.Text("w2"), word_.word))
            return true;
        return Asks(condacts::ParseLine(entry.Text("condacts"), catalogue_), word_.type, word_.word) ||
               Asks(condacts::ParseNumericLine(entry.Text("numericcondacts"), catalogue_), word_.type,
                    std::to_string(word_.number.value));
    }

  private:
    bool HasLost(const Cursor& entry, std::string_view wordField, std::string_view numberField) const {
        return entry.Number(numberField) == word_.number.value &&
               HasGone(words_, word_, entry.Text(wordField));
    }

    Word word_;
    condacts::Catalogue catalogue_;
    condacts::WordIndex words_;
};

int DeleteEntries(Adventure& adventure, const Word& word) {
    const EntryUse use(adventure, word);
    int deleted = 0;
    Cursor& entries = adventure.OpenTable(TableNum::Free22, "* from processtables");
    for (; !entries.Eof(); entries.MoveNext()) {
        if (!use.Used(entries)) continue;
        entries.Delete();
        ++deleted;
    }
    return deleted;
}

/// The pieces between blanks.
std::vector<std::string_view> Pieces(std::string_view list) {
    std::vector<std::string_view> pieces = text::Split(list, " ");
    std::erase(pieces, "");
    return pieces;
}

struct Exits {
    std::string words;
    std::string numbers;
    int tokens = 0;
    int deleted = 0;
};

void Append(std::string& list, std::string_view first, std::string_view second) {
    if (!list.empty()) list += ' ';
    list.append(first).append(" ").append(second);
}

/// The exits of a location without those that used the word.
Exits Without(const Word& word, const condacts::WordIndex& words, std::string_view exits,
              std::string_view numericExits) {
    const auto texts = Pieces(exits);
    const auto numbers = Pieces(numericExits);
    Exits kept;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        const bool named = i + 1 < texts.size();
        const bool uses = condacts::NumberOfToken(numbers[i]) == word.number.value &&
                          !(named && !HasGone(words, word, texts[i]));
        if (uses) {
            ++kept.deleted;
            continue;
        }
        Append(kept.numbers, numbers[i], numbers[i + 1]);
        if (named) Append(kept.words, texts[i], texts[i + 1]);
        kept.tokens += 2;
    }
    return kept;
}

int DeleteMovements(Adventure& adventure, const Word& word) {
    if (word.type != condacts::kVerb && word.type != condacts::kNoun) return 0;
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    int deleted = 0;
    Cursor& locations = adventure.OpenTable(
        TableNum::Free22, "locnum, numexits, exits, numericexits from locations", "numexits>0");
    for (; !locations.Eof(); locations.MoveNext()) {
        const Exits kept = Without(word, words, locations.Text("exits"), locations.Text("numericexits"));
        if (kept.deleted == 0) continue;
        locations.SetField("exits", kept.words);
        locations.SetField("numericexits", kept.numbers);
        locations.SetField("numexits", std::int64_t{kept.tokens});
        locations.Update();
        deleted += kept.deleted;
    }
    return deleted;
}

/// What goes, or loses the word, when the last of its number and type is deleted.
std::vector<Affected> AffectedBy(Adventure& adventure, const Word& word) {
    std::vector<Affected> affected;
    if (MayNameObjects(word)) {
        for (Cursor& object = ObjectsOf(adventure, word); !object.Eof(); object.MoveNext())
            affected.push_back({TableNum::Objects, static_cast<int>(object.Number("objnum"))});
    }
    const EntryUse use(adventure, word);
    for (Cursor& entry = adventure.OpenTable(TableNum::Free22, "* from processtables"); !entry.Eof();
         entry.MoveNext()) {
        if (use.Used(entry))
            affected.push_back({TableNum::ProcessTables, static_cast<int>(entry.Number("canum")), true});
    }
    if (word.type != condacts::kVerb && word.type != condacts::kNoun) return affected;
    const condacts::WordIndex words = WordsWithout(adventure, word);
    for (Cursor& location = adventure.OpenTable(
             TableNum::Free22, "locnum, numexits, exits, numericexits from locations", "numexits>0");
         !location.Eof(); location.MoveNext()) {
        if (Without(word, words, location.Text("exits"), location.Text("numericexits")).deleted > 0)
            affected.push_back({TableNum::Locations, static_cast<int>(location.Number("locnum"))});
    }
    return affected;
}

bool AgreesToCascade(ScreenContext& context, const Word& word) {
    return context.dialogs.Proceed(
        "There are no more records with this word number. \n"
        "Deleting all entries in the Event & Status Tables with that word in it.\n"
        "Setting to _ any Object Words of " +
            word.word +
            ".\n"
            " Deleting any movements using this word.",
        "Delete Word");
}

std::string ReportOf(const Deleted& deleted) {
    std::string report;
    const auto add = [&](int count, std::string_view what) {
        if (count == 0) return;
        if (!report.empty()) report += '\n';
        report.append(std::to_string(count)).append(what);
    };
    add(deleted.objects, " Object record(s) had an object word set to _");
    add(deleted.entries, " Event/Status Table records were deleted.");
    add(deleted.movements, " Movements were deleted in the Locations Table.");
    return report.empty() ? "The word was deleted. No other record used it." : report;
}

}  // namespace

bool DeleteWord(ScreenContext& context, int vocindex, const BeforeDelete& before) {
    Adventure& adventure = context.document.Adventure();
    const std::optional<Word> word = ReadWord(adventure, vocindex);
    if (!word) return false;
    if (word->type == condacts::kReserved)
        return Refuse(context.dialogs, "Sorry, but you cannot delete word " + word->word);
    Deletion deletion{.table = TableNum::Vocabulary, .key = vocindex};
    deletion.synonym = SynonymOf(adventure, *word, vocindex);
    const bool isLast = deletion.synonym.empty();
    if (isLast) deletion.affected = AffectedBy(adventure, *word);
    if (!before(deletion)) return false;
    if (!context.dialogs.Confirm("Are you sure you want to delete word " + word->word + "?", "Confirm"))
        return false;
    // Everything is asked before the change begins, so that the file is not locked while a box is shown.
    const bool cascades = isLast && AgreesToCascade(context, *word);

    Change change(context.document, "delete word " + word->word);
    adventure.DeleteFrom(TableNum::Vocabulary, "vocindex=" + std::to_string(vocindex));
    Deleted deleted;
    if (cascades) {
        deleted.objects = DetachObjects(adventure, *word);
        deleted.entries = DeleteEntries(adventure, *word);
        deleted.movements = DeleteMovements(adventure, *word);
    }
    condacts::RecompileEntries(adventure);
    change.Commit();
    ReadNextKeys(context);
    if (cascades) context.dialogs.Tell(ReportOf(deleted), "Delete Word");
    return true;
}

}  // namespace fabula::authoring
