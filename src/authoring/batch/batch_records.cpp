#include <optional>

#include "authoring/batch/batch_work.h"
#include "authoring/screens/flag_screen.h"
#include "authoring/screens/location_screen.h"
#include "authoring/screens/message_screen.h"
#include "authoring/screens/object_screen.h"
#include "authoring/screens/process_entry_screen.h"
#include "authoring/screens/word_screen.h"
#include "condacts/places.h"
#include "condacts/word_filters.h"
#include "condacts/words.h"
#include "store/comments.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

// The records that have a screen of their own.

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kEmptyRecord = "The new record holds nothing.";

void Put(std::optional<std::string> typed, std::string& field) {
    if (typed) field = std::move(*typed);
}

void PutComment(const BatchChange& change, RecordComment& comment) {
    Put(change.Text(store::kCommentField), comment.text);
}

std::string InQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

/// Chooses the word of an object; nothing stands for no word.
bool ChooseWordOf(const BatchChange& change, std::string_view field, std::string_view what,
                  DropList& list) {
    const auto typed = change.Text(field);
    if (!typed) return true;
    const std::string word = text::UpperCase(text::TrimBlanks(*typed));
    list.ChooseText(word.empty() ? std::string(condacts::kNoWord) : word);
    if (list.Chosen() != nullptr) return true;
    return change.Refuse(field, InQuotes(word) + " is no " + std::string(what) + " of the vocabulary.");
}

void ChoosePlace(const std::string& typed, ObjectScreen& screen) {
    const auto number = text::WholeNumber(text::TrimBlanks(typed));
    screen.initialPlace = InitialPlace::InRoom;
    screen.room.text = typed;
    if (number == condacts::place::kNotCreated.value) screen.initialPlace = InitialPlace::NotCreated;
    if (number == condacts::place::kWorn.value) screen.initialPlace = InitialPlace::Worn;
    if (number == condacts::place::kCarried.value) screen.initialPlace = InitialPlace::Carried;
}

/// "C", "WR", both or nothing.
bool ChooseAttributes(const BatchChange& change, ObjectScreen& screen) {
    const auto typed = change.Text("objattr");
    if (!typed) return true;
    std::string letters = text::UpperCase(text::TrimBlanks(*typed));
    screen.container = letters.starts_with('C');
    if (screen.container) letters.erase(0, 1);
    screen.wearable = letters == "WR";
    if (screen.wearable || letters.empty()) return true;
    return change.Refuse("objattr", "The attributes of an object are C, WR, CWR or nothing.");
}

bool CheckMarloObject(const BatchChange& change, const ObjectScreen& screen) {
    if (screen.HasAttributes()) return true;
    for (const std::string_view field : {"objadject", "objweight", "objattr"}) {
        if (change.Has(field)) {
            return change.Refuse(
                field, "Objects of a Marlo type Adventure have no adjective, weight or attributes.");
        }
    }
    return true;
}

/// The word of an entry by its `vocindex`: of the type that is usual in its place, or else any that may
/// stand there.
std::optional<int> IndexOfWord(store::Adventure& adventure, std::string_view word, int usual) {
    store::PreparedQuery rows = adventure.Prepare(TableNum::Vocabulary, "vocindex, voctypen",
                                                  "word=? and " + condacts::OfEntryVerbs());
    std::optional<int> found;
    for (bool more = rows.First({word}); more; more = rows.Next()) {
        if (!found || rows.Number(1) == usual) found = static_cast<int>(rows.Number(0));
    }
    return found;
}

bool ChooseEntryWord(BatchWork& work, const BatchChange& change, std::string_view field, int usual,
                     DropList& list) {
    const auto typed = change.Text(field);
    if (!typed) return true;
    std::string word = text::UpperCase(text::TrimBlanks(*typed));
    if (word.empty()) word = condacts::kNoWord;
    list.index = -1;
    if (const auto index = IndexOfWord(work.Adventure(), word, usual)) list.ChooseNumber(*index);
    return list.Chosen() != nullptr || change.Refuse(field, word + " is not a valid word");
}

std::optional<condacts::WordType> TypeNamed(std::string_view name) {
    for (int type = condacts::kVerb; type <= condacts::kPronoun; ++type) {
        if (text::EqualsNoCase(condacts::WordTypeName(type), name))
            return static_cast<condacts::WordType>(type);
    }
    return std::nullopt;
}

}  // namespace

bool StoreLocation(BatchWork& work, const BatchChange& change) {
    if (!CheckPictureFile(work, change, "picloc")) return false;
    LocationScreen screen(work.context, change.key);
    Put(change.Text("locdesc"), screen.description);
    Put(change.Text("locshortdesc"), screen.shortDescription);
    Put(change.Text("picloc"), screen.picture);
    PutComment(change, *screen.Comment());
    if (change.key.isNew && !screen.Changed()) return change.Refuse("", kEmptyRecord);
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(),
                           {{"description", "locdesc"}, {"shortDescription", "locshortdesc"}});
}

bool StoreExits(BatchWork& work, const BatchChange& change) {
    LocationScreen screen(work.context, {change.key.key, false});
    Put(change.Words("exits"), screen.exits);
    screen.exits = text::UpperCase(screen.exits);
    return screen.Update() || change.RefuseAt(work.dialogs, "exits", {{"exits", "exits"}});
}

bool StoreObject(BatchWork& work, const BatchChange& change) {
    ObjectScreen screen(work.context, change.key);
    Put(change.Text("objdesc"), screen.description);
    Put(change.Text("objweight"), screen.weight);
    PutComment(change, *screen.Comment());
    if (const auto place = change.Text("objloc")) ChoosePlace(*place, screen);
    if (!CheckMarloObject(change, screen) || !ChooseAttributes(change, screen) ||
        !ChooseWordOf(change, "objnoun", "noun", screen.noun) ||
        !ChooseWordOf(change, "objadject", "adjective", screen.adjective))
        return false;
    if (change.key.isNew && !screen.Changed()) return change.Refuse("", kEmptyRecord);
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(),
                           {{"description", "objdesc"},
                            {"initialPlace", "objloc"},
                            {"room", "objloc"},
                            {"container", "objattr"},
                            {"weight", "objweight"}});
}

bool StoreWord(BatchWork& work, const BatchChange& change) {
    WordScreen screen(work.context, change.key);
    if (!change.key.isNew) {
        PutComment(change, *screen.Comment());
        const bool isCommentAlone = screen.Changed() && change.Changed().size() == 1;
        if (!isCommentAlone) return change.Refuse("vocnum", "Vocabulary cannot be edited");
        return screen.Update();
    }
    const auto type = TypeNamed(text::TrimBlanks(change.Text("voctype").value_or("")));
    if (!type) return change.Refuse("voctype", "No value set for word type");
    if (!screen.ChoosesType() && type != screen.type)
        return change.Refuse("voctype", "Every word of a Marlo type Adventure is a Noun.");
    screen.ClickType(*type);
    Put(change.Text("word"), screen.word);
    Put(change.Text("vocnum"), screen.number);
    PutComment(change, *screen.Comment());
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(),
                           {{"word", "word"}, {"number", "vocnum"}, {"type", "voctype"}});
}

bool StoreFlag(BatchWork& work, const BatchChange& change) {
    FlagScreen screen(work.context, change.key);
    if (const auto use = change.Text("flguse")) screen.use.ChooseText(std::string(text::TrimBlanks(*use)));
    Put(change.Text("flgdesc"), screen.description);
    PutComment(change, *screen.Comment());
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(), {{"use", "flguse"}, {"description", "flgdesc"}});
}

bool StoreMessage(BatchWork& work, const BatchChange& change) {
    const TableNum table = work.context.currentTable;
    const std::string_view field = table == TableNum::Messages         ? "msgmsg"
                                   : table == TableNum::SystemMessages ? "smsgmsg"
                                                                       : "pmsgmsg";
    MessageScreen screen(work.context, change.key);
    if (change.key.isNew || change.Has(field)) screen.TypeMessage(change.Text(field).value_or(""));
    PutComment(change, *screen.Comment());
    return screen.Update() || change.RefuseAt(work.dialogs, "text", {{"text", field}});
}

bool StoreProcessEntry(BatchWork& work, const BatchChange& change) {
    if (change.key.isNew && !change.Has("estype"))
        return change.Refuse("", "A new entry needs the number of its process table.");
    ProcessEntryScreen screen(
        work.context,
        {.screen = Screen::ProcessEntry, .key = change.key, .table = TableNum::ProcessTables});
    Put(change.Text("estype"), screen.process);
    Put(change.Words("condacts"), screen.line);
    PutComment(change, *screen.Comment());
    if (!ChooseEntryWord(work, change, "w1", condacts::kVerb, screen.verb) ||
        !ChooseEntryWord(work, change, "w2", condacts::kNoun, screen.noun))
        return false;
    if (screen.Update()) return true;
    return change.RefuseAt(work.dialogs, screen.Refused(), {{"process", "estype"}, {"line", "condacts"}});
}

}  // namespace fabula::authoring
