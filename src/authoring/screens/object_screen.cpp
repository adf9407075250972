#include "authoring/screens/object_screen.h"

#include <algorithm>
#include <cstdint>

#include "authoring/entries/made_records.h"
#include "authoring/entries/record_keys.h"
#include "authoring/fields/location_names.h"
#include "authoring/fields/texts/brief_text.h"
#include "authoring/fields/texts/text_field.h"
#include "condacts/language/load.h"
#include "condacts/language/recompile.h"
#include "condacts/limits.h"
#include "condacts/object_attributes.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "store/adventure_kind.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

namespace place = condacts::place;
using condacts::PlaceNumber;
using condacts::WordNumber;
using store::TableNum;

constexpr const char* kUsualWeight = "1";

/// Articles and the like are no nouns.
constexpr std::size_t kShortestProposal = 2;

std::vector<ListItem> WordItems(const condacts::WordIndex& words, condacts::WordTest test) {
    std::vector<ListItem> items;
    for (const condacts::Word& word : words.All()) {
        if (test(word)) items.push_back({word.number.value, word.word});
    }
    return items;
}

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80 || c == '-' || c == '\'';
}

/// The words of the first sentence of a description that could be nouns, in capitals.
std::vector<std::string> WordsOf(std::string_view description, std::size_t longest) {
    const std::string upper = text::UpperCase(BriefText(description));
    std::vector<std::string> words;
    std::string word;
    for (const char c : upper + ' ') {
        if (IsLetter(c)) {
            word += c;
            continue;
        }
        if (text::Length(word) > kShortestProposal) words.emplace_back(text::Left(word, longest));
        word.clear();
        if (c != ' ') break;
    }
    return words;
}

/// Chooses a record's word; where synonyms share its number, the one that is written in the record.
void ChooseWord(DropList& list, std::string_view word, WordNumber number) {
    list.ChooseText(std::string(word));
    if (list.Chosen() == nullptr || list.Chosen()->number != number.value) list.ChooseNumber(number.value);
}

}  // namespace

ObjectScreen::ObjectScreen(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Objects, key, "object"), weight(kUsualWeight) {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    noun.items = WordItems(words, condacts::IsNounOrReserved);
    adjective.items = WordItems(words, condacts::IsAdjectiveOrReserved);
    noun.ChooseNumber(condacts::kNoWordNumber.value);
    adjective.ChooseNumber(condacts::kNoWordNumber.value);
    room.items = LocationNames(Adventure());
    if (key.isNew) {
        opened_ = Typed();
    } else {
        ReadRecord();
    }
}

void ObjectScreen::GoTo(int key) {
    SetKey(key);
    ReadRecord();
}

void ObjectScreen::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    description = ToEdited(record.Text("objdesc"));
    ChooseWord(noun, record.Text("objnoun"), WordNumber(static_cast<int>(record.Number("objnumnoun"))));
    ChooseWord(adjective, record.Text("objadject"),
               WordNumber(static_cast<int>(record.Number("objnumadject"))));
    ReadPlace(PlaceNumber(static_cast<int>(record.Number("objloc"))));
    const std::int64_t attributes = record.Number("objattrn");
    container = (attributes & condacts::attribute::kContainer) != 0;
    wearable = (attributes & condacts::attribute::kWearable) != 0;
    weight = std::to_string(record.Number("objweight"));
    opened_ = Typed();
}

void ObjectScreen::ReadPlace(PlaceNumber place) {
    room.text.clear();
    switch (place.value) {
        case place::kNotCreated.value:
            initialPlace = InitialPlace::NotCreated;
            return;
        case place::kWorn.value:
            initialPlace = InitialPlace::Worn;
            return;
        case place::kCarried.value:
            initialPlace = InitialPlace::Carried;
            return;
        default:
            initialPlace = InitialPlace::InRoom;
            room.text = std::to_string(place.value);
    }
}

bool ObjectScreen::LeaveDescription() {
    if (!CheckText("description", description, true)) return false;
    ProposeNoun();
    hasProposed_ = !proposedNoun_.empty();
    return true;
}

/// As the vocabulary has it.
std::string ObjectScreen::AsNoun(std::string_view typed) const {
    return std::string(
        text::Left(text::UpperCase(text::TrimBlanks(text::CollapseBlanks(typed))), LongestWord()));
}

/// "" for none.
std::string ObjectScreen::ChosenNoun() const {
    if (!newNoun.empty()) return AsNoun(newNoun);
    const ListItem* chosen = noun.Chosen();
    return chosen && chosen->number != condacts::kNoWordNumber.value ? chosen->text : "";
}

void ObjectScreen::ProposeNoun() {
    if (!Key().isNew || hasProposed_ || ChosenNoun() != proposedNoun_) return;
    const std::vector<std::string> words = WordsOf(description, LongestWord());
    newNoun.clear();
    noun.index = -1;
    for (auto word = words.rbegin(); word != words.rend() && !noun.Chosen(); ++word)
        noun.ChooseText(*word);
    if (!noun.Chosen()) {
        noun.ChooseNumber(condacts::kNoWordNumber.value);
        if (!words.empty()) newNoun = words.back();
    }
    proposedNoun_ = ChosenNoun();
}

std::string ObjectScreen::OfferedNoun() const {
    if (!newNoun.empty()) return AsNoun(newNoun);
    if (!ChosenNoun().empty()) return "";
    const std::vector<std::string> words = WordsOf(description, LongestWord());
    const bool isKnown = std::ranges::any_of(words, [&](const std::string& word) {
        return std::ranges::any_of(noun.items, [&](const ListItem& item) { return item.text == word; });
    });
    return words.empty() || isKnown ? "" : words.back();
}

void ObjectScreen::ClickMakeNoun(bool make) {
    newNoun = make ? OfferedNoun() : "";
    noun.ChooseNumber(condacts::kNoWordNumber.value);
}

std::size_t ObjectScreen::LongestWord() const {
    return condacts::SignificantLetters(Adventure().Kind());
}

bool ObjectScreen::LeaveNoun() {
    if (text::TrimBlanks(newNoun).find(' ') != std::string_view::npos)
        return RefuseField("noun", "The word cannot hold spaces");
    const std::string typed = AsNoun(newNoun);
    newNoun.clear();
    if (typed.empty()) return true;
    noun.ChooseText(typed);
    if (noun.Chosen() != nullptr) return true;
    newNoun = typed;
    if (NumberOfNewNoun(Adventure())) return true;
    return RefuseField("noun", "There is no number left for a noun");
}

bool ObjectScreen::LeaveInitialPlace() {
    if (initialPlace) return true;
    return RefuseField("initialPlace", "No Initial Location is set");
}

bool ObjectScreen::LeaveRoom() {
    if (initialPlace != InitialPlace::InRoom) return true;
    const std::string_view typed = text::TrimBlanks(room.text);
    if (typed.empty()) return RefuseField("room", "No room specified");
    const auto number = text::WholeNumber(typed);
    for (const ListItem& item : room.items) {
        if (item.number == number) return true;
    }
    return RefuseField("room", "Invalid location");
}

/// A container's inside is the location of its number.
bool ObjectScreen::CheckContainer() {
    if (!container) return true;
    const store::Cursor& inside =
        Adventure().OpenTable(TableNum::LocationsWalk, "numexits", "locnum=" + std::to_string(Key().key));
    if (inside.Eof()) return MakesInside();
    if (inside.Number("numexits") == 0) return true;
    return RefuseField("container", "This Location has exits. A container cannot have exits.");
}

bool ObjectScreen::MakesInside() {
    if (makesInside_) return true;
    const int highest = condacts::HighestRecord(Adventure().Kind());
    if (condacts::IsSpecialPlace(Key().key) || Key().key > highest)
        return RefuseField("container", "There is no location with this object number");
    const std::string number = std::to_string(Key().key);
    makesInside_ = context_.dialogs.Confirm(
        "What a container holds lies in the location of its number. "
        "There is no location " +
            number + ". Make it?",
        "New location");
    return makesInside_ || KeepFocus("container");
}

std::string ObjectScreen::Inside() const {
    if (!container) return "";
    const std::string place = "location " + std::to_string(Key().key);
    for (const ListItem& item : room.items) {
        if (item.number != Key().key) continue;
        return "What is in it lies in " + place + (item.text.empty() ? "." : ", " + item.text + ".");
    }
    return "What is in it lies in " + place + (makesInside_ ? ", which is made." : ", which is missing.");
}

bool ObjectScreen::ClickContainer() {
    if (CheckContainer()) return true;
    container = false;
    return false;
}

bool ObjectScreen::LeaveWeight() {
    if (!HasAttributes()) return true;
    const auto number = text::WholeNumber(text::TrimBlanks(weight));
    if (number && *number >= 0 && *number <= kHeaviest) return true;
    return RefuseField("weight", condacts::kWeightFault);
}

PlaceNumber ObjectScreen::Place() const {
    switch (*initialPlace) {
        case InitialPlace::NotCreated:
            return place::kNotCreated;
        case InitialPlace::Worn:
            return place::kWorn;
        case InitialPlace::Carried:
            return place::kCarried;
        case InitialPlace::InRoom:
            break;
    }
    return PlaceNumber(static_cast<int>(*text::WholeNumber(text::TrimBlanks(room.text))));
}

std::vector<std::string> ObjectScreen::Typed() const {
    const int option = initialPlace ? static_cast<int>(*initialPlace) : -1;
    return {description,
            std::to_string(noun.index),
            std::to_string(adjective.index),
            std::to_string(option),
            room.text,
            container ? "C" : "",
            wearable ? "WR" : "",
            weight,
            newNoun};
}

/// A list without a chosen item, as for a word that the vocabulary has lost, stores "no word".
void ObjectScreen::StoreWord(store::Cursor& record, const DropList& list, condacts::WordType wordType,
                             const char* wordField, const char* numberField) const {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    const ListItem* chosen = list.Chosen();
    const WordNumber number = chosen ? WordNumber(chosen->number) : condacts::kNoWordNumber;
    const condacts::Word* first = words.FindNumberTyped(number, wordType);
    record.SetField(numberField, std::int64_t{number.value});
    record.SetField(wordField, first ? first->word : std::string(condacts::kNoWord));
}

void ObjectScreen::StorePlace(store::Cursor& record) const {
    const PlaceNumber place = Place();
    record.SetField("objloc", std::int64_t{place.value});
    record.SetField("objlocdesc", condacts::DescriptionOfPlace(place));
}

void ObjectScreen::StoreAttributes(store::Cursor& record) const {
    const int attributes =
        (container ? condacts::attribute::kContainer : 0) + (wearable ? condacts::attribute::kWearable : 0);
    record.SetField("objattr", std::string(container ? "C" : "") + (wearable ? "WR" : ""));
    record.SetField("objattrn", std::int64_t{attributes});
    record.SetField("objweight", *text::WholeNumber(text::TrimBlanks(weight)));
}

void ObjectScreen::StoreNewNoun(store::Cursor& record) {
    const WordNumber number = NumberOfNewNoun(Adventure()).value_or(condacts::kNoWordNumber);
    record.SetField("objnumnoun", std::int64_t{number.value});
    record.SetField("objnoun", newNoun);
    AddNoun(Adventure(), newNoun, number);
    condacts::RecompileEntries(Adventure());
}

void ObjectScreen::StoreInside() {
    if (!container || !makesInside_ || HasRecord(Adventure(), TableNum::Locations, Key().key)) return;
    AddPlace(Adventure(), condacts::Inside(condacts::ObjectNumber(Key().key)),
             "Inside " + BriefText(description, "object " + std::to_string(Key().key)));
}

bool ObjectScreen::UpdateFields() {
    if (!Changed()) return true;
    if (!LeaveDescription() || !LeaveInitialPlace() || !LeaveRoom()) return false;
    if (HasAttributes() && (!CheckContainer() || !LeaveWeight())) return false;
    if (!LeaveNoun()) return false;
    Change change(context_.document, ChangeName());
    store::Cursor& record = RecordToStore(change);
    record.SetField("objdesc", ToStored(description));
    if (newNoun.empty())
        StoreWord(record, noun, condacts::kNoun, "objnoun", "objnumnoun");
    else
        StoreNewNoun(record);
    StorePlace(record);
    if (HasAttributes() || Key().isNew) {
        StoreWord(record, adjective, condacts::kAdjective, "objadject", "objnumadject");
        StoreAttributes(record);
    }
    record.Update();
    StoreInside();
    if (!newNoun.empty()) change.Rename(ChangeName() + " with word " + newNoun);
    change.Commit();
    if (!newNoun.empty()) ReadNextKeys(context_);
    return true;
}

}  // namespace fabula::authoring
