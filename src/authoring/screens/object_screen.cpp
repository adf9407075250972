#include "authoring/screens/object_screen.h"

#include <cstdint>

#include "authoring/fields/location_names.h"
#include "authoring/fields/text_field.h"
#include "condacts/load.h"
#include "condacts/places.h"
#include "condacts/words.h"
#include "text/numbers.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

namespace place = condacts::place;
using store::TableNum;

// Bits of `objattrn`.
constexpr int kContainerBit = 1;
constexpr int kWearableBit = 2;

constexpr const char* kUsualWeight = "1";

std::vector<ListItem> WordItems(const condacts::WordIndex& words, condacts::WordTest test) {
    std::vector<ListItem> items;
    for (const condacts::Word& word : words.All()) {
        if (test(word)) items.push_back({word.number, word.word});
    }
    return items;
}

/// Chooses a record's word; where synonyms share its number, the one that is written in the record.
void ChooseWord(DropList& list, std::string_view word, int number) {
    list.ChooseText(std::string(word));
    if (list.Chosen() == nullptr || list.Chosen()->number != number) list.ChooseNumber(number);
}

}  // namespace

ObjectScreen::ObjectScreen(ScreenContext& context, ScreenKey key)
    : RecordScreen(context, TableNum::Objects, key, "object"), weight(kUsualWeight) {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    noun.items = WordItems(words, condacts::IsNounOrReserved);
    adjective.items = WordItems(words, condacts::IsAdjectiveOrReserved);
    noun.ChooseNumber(condacts::kNoWordNumber);
    adjective.ChooseNumber(condacts::kNoWordNumber);
    room.items = LocationNames(Adventure());
    if (!key.isNew) ReadRecord();
    opened_ = Typed();
}

void ObjectScreen::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    description = ToEdited(record.Text("objdesc"));
    ChooseWord(noun, record.Text("objnoun"), static_cast<int>(record.Number("objnumnoun")));
    ChooseWord(adjective, record.Text("objadject"), static_cast<int>(record.Number("objnumadject")));
    ReadPlace(static_cast<int>(record.Number("objloc")));
    const std::int64_t attributes = record.Number("objattrn");
    container = (attributes & kContainerBit) != 0;
    wearable = (attributes & kWearableBit) != 0;
    weight = std::to_string(record.Number("objweight"));
}

void ObjectScreen::ReadPlace(int place) {
    switch (place) {
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
            room.text = std::to_string(place);
    }
}

bool ObjectScreen::LeaveDescription() {
    return CheckText("description", description, true);
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
    if (inside.Eof()) return RefuseField("container", "There is no location with this object number");
    if (inside.Number("numexits") == 0) return true;
    return RefuseField("container", "This Location has exits. A container cannot have exits.");
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
    return RefuseField("weight", "Weight must be from 0 to 63");
}

int ObjectScreen::Place() const {
    switch (*initialPlace) {
        case InitialPlace::NotCreated:
            return place::kNotCreated.value;
        case InitialPlace::Worn:
            return place::kWorn.value;
        case InitialPlace::Carried:
            return place::kCarried.value;
        case InitialPlace::InRoom:
            break;
    }
    return static_cast<int>(*text::WholeNumber(text::TrimBlanks(room.text)));
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
            weight};
}

/// A list without a chosen item, as for a word that the vocabulary has lost, stores "no word".
void ObjectScreen::StoreWord(store::Cursor& record, const DropList& list, int wordType,
                             const char* wordField, const char* numberField) const {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    const ListItem* chosen = list.Chosen();
    const int number = chosen ? chosen->number : condacts::kNoWordNumber;
    const condacts::Word* first = words.FindNumberTyped(number, wordType);
    record.SetField(numberField, std::int64_t{number});
    record.SetField(wordField, first ? first->word : std::string(condacts::kNoWord));
}

void ObjectScreen::StorePlace(store::Cursor& record) const {
    const int place = Place();
    record.SetField("objloc", std::int64_t{place});
    record.SetField("objlocdesc", condacts::DescriptionOfPlace(condacts::PlaceNumber(place)));
}

void ObjectScreen::StoreAttributes(store::Cursor& record) const {
    const int attributes = (container ? kContainerBit : 0) + (wearable ? kWearableBit : 0);
    record.SetField("objattr", std::string(container ? "C" : "") + (wearable ? "WR" : ""));
    record.SetField("objattrn", std::int64_t{attributes});
    record.SetField("objweight", *text::WholeNumber(text::TrimBlanks(weight)));
}

bool ObjectScreen::UpdateFields() {
    if (!Changed()) return true;
    if (!LeaveDescription() || !LeaveInitialPlace() || !LeaveRoom()) return false;
    if (HasAttributes() && (!CheckContainer() || !LeaveWeight())) return false;
    Change change(context_.document, ChangeName());
    store::Cursor& record = RecordToStore(change);
    record.SetField("objdesc", ToStored(description));
    StoreWord(record, noun, condacts::kNoun, "objnoun", "objnumnoun");
    StorePlace(record);
    if (HasAttributes() || Key().isNew) {
        StoreWord(record, adjective, condacts::kAdjective, "objadject", "objnumadject");
        StoreAttributes(record);
    }
    record.Update();
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
