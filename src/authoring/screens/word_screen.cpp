#include "authoring/screens/word_screen.h"

#include <algorithm>
#include <cstdint>

#include "authoring/entries/correct_word.h"
#include "condacts/language/recompile.h"
#include "condacts/limits.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kMarloHelp =
    "Words < 13 are direction words.\n"
    "Words relating to objects which can be worn should have word values > 199";
constexpr std::string_view kHelp =
    "Nouns and verbs < 14 are direction words.\n"
    "Nouns < 20 are conversion words (can be interpreted as a verb).\n"
    "Nouns > 50 can be referred to as 'IT'.";

}  // namespace

WordScreen::WordScreen(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Vocabulary, key, "word") {
    if (key.isNew) {
        if (IsMarlo()) type = condacts::kNoun;
        opened_ = Typed();
    } else {
        ReadRecord();
    }
}

void WordScreen::GoTo(int key) {
    SetKey(key);
    ReadRecord();
}

void WordScreen::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    word = record.Text("word");
    spelledBefore_ = word;
    number = std::to_string(record.Number("vocnum"));
    const std::int64_t stored = record.Number("voctypen");
    typeBefore_ = static_cast<condacts::WordType>(stored);
    type.reset();
    if (IsMarlo()) type = condacts::kNoun;
    if (stored >= condacts::kVerb && stored <= condacts::kPronoun) {
        type = static_cast<condacts::WordType>(stored);
    }
    opened_ = Typed();
}

std::string_view WordScreen::Help() const {
    return IsMarlo() ? kMarloHelp : kHelp;
}

std::size_t WordScreen::LongestWord() const {
    return static_cast<std::size_t>(condacts::SignificantLetters(Adventure().Kind()));
}

/// One above the highest number of the type. Below the lowest that a word may have there is nothing to
/// propose.
condacts::WordNumber WordScreen::NextNumber(condacts::WordType wordType) const {
    store::PreparedQuery highest =
        Adventure().Prepare(TableNum::VocabularyWalk, "vocnum", "voctypen=?", "vocnum desc");
    if (!highest.First({std::int64_t{wordType}})) return condacts::WordNumber(kLowestNumber);
    return condacts::WordNumber(std::max(NumberAfter(highest.Number(0)), kLowestNumber));
}

void WordScreen::ClickType(condacts::WordType chosen) {
    type = chosen;
    if (EditsNumber()) number = std::to_string(NextNumber(chosen).value);
}

bool WordScreen::LeaveWord() {
    // A word of another type of game may be longer than this one's.
    if (!Key().isNew && word == spelledBefore_) return true;
    const std::string typed = text::UpperCase(text::TrimBlanks(text::CollapseBlanks(word)));
    if (typed.empty()) return RefuseField("word", "The word cannot be spaces");
    if (typed.find(' ') != std::string::npos) {
        return RefuseField("word", "The word cannot hold spaces");
    }
    word = text::Left(typed, LongestWord());
    if (IsMarlo() && text::TrimBlanks(number).empty()) {
        number = std::to_string(NextNumber(condacts::kNoun).value);
    }
    return true;
}

bool WordScreen::LeaveNumber() {
    const auto typed = text::WholeNumber(text::TrimBlanks(number));
    if (!typed) return RefuseField("number", "The Word # is not numeric");
    if (*typed < kLowestNumber || *typed > kHighestNumber) {
        return RefuseField("number", condacts::kWordNumberFault);
    }
    return CheckClash(condacts::WordNumber(static_cast<int>(*typed)));
}

std::vector<condacts::Word> WordScreen::SameSpelling() const {
    store::PreparedQuery rows =
        Adventure().Prepare(TableNum::Vocabulary, "word, vocnum, voctypen", "word=? and vocindex<>?");
    std::vector<condacts::Word> words;
    const int key = Key().isNew ? -1 : Key().key;
    for (bool more = rows.First({std::string_view(word), std::int64_t{key}}); more; more = rows.Next()) {
        words.push_back({std::string(rows.Text(0)), condacts::WordNumber(static_cast<int>(rows.Number(1))),
                         static_cast<condacts::WordType>(rows.Number(2))});
    }
    return words;
}

/// Without a type there is nothing to clash with yet. A reserved word stands in for every type, so that it
/// clashes with all.
bool WordScreen::CheckClash(condacts::WordNumber typed) {
    if (!type) return true;
    const std::vector<condacts::Word> same = SameSpelling();
    const bool reserved = std::any_of(same.begin(), same.end(), [](const condacts::Word& each) {
        return each.type == condacts::kReserved;
    });
    if (!reserved && !condacts::Clashes({word, typed, *type}, same)) return true;
    const std::string typeName(condacts::WordTypeName(reserved ? condacts::kReserved : *type));
    if (reserved || *type == condacts::kVerb || *type == condacts::kNoun) {
        return RefuseField("number", "You already have " + word + " in the vocabulary as a " + typeName);
    }
    return RefuseField("number", "Duplicate words are not allowed as word type " + typeName);
}

std::vector<std::string> WordScreen::Typed() const {
    return {word, number, type ? std::to_string(*type) : ""};
}

void WordScreen::Store(Change& change) {
    store::Cursor& record = RecordToStore(change);
    if (Key().isNew) {
        record.SetField("vocnum", *text::WholeNumber(text::TrimBlanks(number)));
    }
    record.SetField("word", word);
    record.SetField("voctypen", std::int64_t{*type});
    record.SetField("voctype", std::string(condacts::WordTypeName(*type)));
    record.Update();
}

bool WordScreen::UpdateFields() {
    if (!Changed()) return true;
    if (!LeaveWord()) return false;
    if (!type) return RefuseField("type", "No value set for word type");
    if (!LeaveNumber()) return false;
    const std::string name = (Key().isNew ? "add word " : "edit word ") + word;
    Change change(context_.document, name);
    const condacts::WordNumber numbered(static_cast<int>(*text::WholeNumber(text::TrimBlanks(number))));
    Store(change);
    int uses = 0;
    if (!Key().isNew && word != spelledBefore_)
        uses = FollowCorrection(Adventure(), {spelledBefore_, numbered, typeBefore_}, word);
    uses += condacts::RecompileEntries(Adventure());
    if (uses > 0) change.Rename(name + " with " + std::to_string(uses) + (uses == 1 ? " use" : " uses"));
    change.Commit();
    if (Key().isNew) context_.nextWord = NumberAfter(Key().key);
    return true;
}

}  // namespace fabula::authoring
