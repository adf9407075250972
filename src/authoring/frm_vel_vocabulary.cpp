#include "authoring/frm_vel_vocabulary.h"

#include <algorithm>
#include <cstdint>

#include "text/numbers.h"
#include "text/str_edit.h"
#include "text/utf8.h"

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

frmVelVocabulary::frmVelVocabulary(Session& session, ScreenKey key)
    : RecordScreen(session, TableNum::Vocabulary, key, "word") {
    if (IsMarlo()) optType = condacts::kNoun;
    if (!key.isNew) ReadRecord();
    opened_ = Typed();
}

void frmVelVocabulary::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    txtWord = record.Text("word");
    txtWordNum = std::to_string(record.Number("vocnum"));
    const std::int64_t type = record.Number("voctypen");
    if (type >= condacts::kVerb && type <= condacts::kPronoun) {
        optType = static_cast<condacts::WordType>(type);
    }
}

std::string_view frmVelVocabulary::Help() const {
    return IsMarlo() ? kMarloHelp : kHelp;
}

std::size_t frmVelVocabulary::LongestWord() const {
    if (IsMarlo()) return 4;
    return Adventure().AdventureTypeLower() == "vel" ? 5 : 30;
}

/// One above the highest number of the type. Below the lowest that a word may have there is nothing to
/// propose.
int frmVelVocabulary::NextNumber(condacts::WordType type) const {
    store::PreparedQuery highest =
        Adventure().Prepare(TableNum::VocabularyWalk, "vocnum", "voctypen=?", "vocnum desc");
    if (!highest.First({std::int64_t{type}})) return kLowestNumber;
    return std::max(NumberAfter(highest.Number(0)), kLowestNumber);
}

void frmVelVocabulary::ClickOptType(condacts::WordType type) {
    optType = type;
    if (EditsWord()) txtWordNum = std::to_string(NextNumber(type));
}

bool frmVelVocabulary::LeaveTxtWord() {
    const std::string word = text::UpperCase(text::TrimBlanks(text::CollapseBlanks(txtWord)));
    if (word.empty()) return RefuseField("txtWord", "The word cannot be spaces");
    if (word.find(' ') != std::string::npos) {
        return RefuseField("txtWord", "The word cannot hold spaces");
    }
    txtWord = text::Left(word, LongestWord());
    if (IsMarlo() && text::TrimBlanks(txtWordNum).empty()) {
        txtWordNum = std::to_string(NextNumber(condacts::kNoun));
    }
    return true;
}

bool frmVelVocabulary::LeaveTxtWordNum() {
    const auto number = text::WholeNumber(text::TrimBlanks(txtWordNum));
    if (!number) return RefuseField("txtWordNum", "The Word # is not numeric");
    if (*number < kLowestNumber || *number > kHighestNumber) {
        return RefuseField("txtWordNum", "Word # must be from 2 to 254 inclusive");
    }
    return CheckClash(static_cast<int>(*number));
}

std::vector<condacts::Word> frmVelVocabulary::SameSpelling() const {
    store::PreparedQuery rows =
        Adventure().Prepare(TableNum::Vocabulary, "word, vocnum, voctypen", "word=? and vocindex<>?");
    std::vector<condacts::Word> words;
    const int key = Key().isNew ? -1 : Key().key;
    for (bool more = rows.First({std::string_view(txtWord), std::int64_t{key}}); more; more = rows.Next()) {
        words.push_back({std::string(rows.Text(0)), static_cast<int>(rows.Number(1)),
                         static_cast<int>(rows.Number(2))});
    }
    return words;
}

/// Without a type there is nothing to clash with yet. A reserved word stands in for every type, so that it
/// clashes with all.
bool frmVelVocabulary::CheckClash(int number) {
    if (!optType) return true;
    const std::vector<condacts::Word> same = SameSpelling();
    const bool reserved = std::any_of(same.begin(), same.end(), [](const condacts::Word& word) {
        return word.type == condacts::kReserved;
    });
    if (!reserved && !condacts::Clashes({txtWord, number, *optType}, same)) return true;
    const std::string type(condacts::WordTypeName(reserved ? condacts::kReserved : *optType));
    if (reserved || *optType == condacts::kVerb || *optType == condacts::kNoun) {
        return RefuseField("txtWordNum", "You already have " + txtWord + " in the vocabulary as a " + type);
    }
    return RefuseField("txtWordNum", "Duplicate words are not allowed as word type " + type);
}

std::vector<std::string> frmVelVocabulary::Typed() const {
    return {txtWord, txtWordNum, optType ? std::to_string(*optType) : ""};
}

void frmVelVocabulary::Store() {
    store::Cursor& record = RecordToStore();
    if (Key().isNew) {
        record.SetField("vocindex", std::int64_t{session_.nextWord});
        record.SetField("vocnum", *text::WholeNumber(text::TrimBlanks(txtWordNum)));
        record.SetField("word", txtWord);
    }
    record.SetField("voctypen", std::int64_t{*optType});
    record.SetField("voctype", std::string(condacts::WordTypeName(*optType)));
    record.Update();
}

bool frmVelVocabulary::cmdUpdate() {
    if (Typed() == opened_) return true;
    if (!LeaveTxtWord()) return false;
    if (!optType) return RefuseField("optType", "No value set for word type");
    if (!LeaveTxtWordNum()) return false;
    Change change(session_.document, (Key().isNew ? "add word " : "edit word ") + txtWord);
    Store();
    change.Commit();
    if (Key().isNew) ++session_.nextWord;
    return true;
}

}  // namespace fabula::authoring
