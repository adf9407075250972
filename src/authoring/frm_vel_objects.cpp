#include "authoring/frm_vel_objects.h"

#include <cstdint>

#include "authoring/location_names.h"
#include "authoring/text_field.h"
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

frmVelObjects::frmVelObjects(Session& session, ScreenKey key)
    : RecordScreen(session, TableNum::Objects, key, "object"), txtWeight(kUsualWeight) {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    cboObjWord.items = WordItems(words, condacts::IsNounOrReserved);
    cboAdjective.items = WordItems(words, condacts::IsAdjectiveOrReserved);
    cboObjWord.ChooseNumber(condacts::kNoWordNumber);
    cboAdjective.ChooseNumber(condacts::kNoWordNumber);
    cboInRoom.items = LocationNames(Adventure());
    if (!key.isNew) ReadRecord();
    opened_ = Typed();
}

void frmVelObjects::ReadRecord() {
    const store::Cursor& record = OpenRecord();
    txtObjDesc = ToEdited(record.Text("objdesc"));
    ChooseWord(cboObjWord, record.Text("objnoun"), static_cast<int>(record.Number("objnumnoun")));
    ChooseWord(cboAdjective, record.Text("objadject"), static_cast<int>(record.Number("objnumadject")));
    ReadPlace(static_cast<int>(record.Number("objloc")));
    const std::int64_t attributes = record.Number("objattrn");
    chkContainer = (attributes & kContainerBit) != 0;
    chkWearRemove = (attributes & kWearableBit) != 0;
    txtWeight = std::to_string(record.Number("objweight"));
}

void frmVelObjects::ReadPlace(int place) {
    switch (place) {
        case place::kNotCreated.value:
            optInitiaLloc = InitialPlace::NotCreated;
            return;
        case place::kWorn.value:
            optInitiaLloc = InitialPlace::Worn;
            return;
        case place::kCarried.value:
            optInitiaLloc = InitialPlace::Carried;
            return;
        default:
            optInitiaLloc = InitialPlace::InRoom;
            cboInRoom.text = std::to_string(place);
    }
}

bool frmVelObjects::LeaveTxtObjDesc() {
    return CheckText("txtObjDesc", txtObjDesc, true);
}

bool frmVelObjects::LeaveOptInitiaLloc() {
    if (optInitiaLloc) return true;
    return RefuseField("optInitiaLloc", "No Initial Location is set");
}

bool frmVelObjects::LeaveCboInRoom() {
    if (optInitiaLloc != InitialPlace::InRoom) return true;
    const std::string_view room = text::TrimBlanks(cboInRoom.text);
    if (room.empty()) return RefuseField("cboInRoom", "No room specified");
    const auto number = text::WholeNumber(room);
    for (const ListItem& item : cboInRoom.items) {
        if (item.number == number) return true;
    }
    return RefuseField("cboInRoom", "Invalid location");
}

/// A container's inside is the location of its number.
bool frmVelObjects::CheckContainer() {
    if (!chkContainer) return true;
    const store::Cursor& inside =
        Adventure().OpenTable(TableNum::LocationsWalk, "numexits", "locnum=" + std::to_string(Key().key));
    if (inside.Eof()) return RefuseField("chkContainer", "There is no location with this object number");
    if (inside.Number("numexits") == 0) return true;
    return RefuseField("chkContainer", "This Location has exits. A container cannot have exits.");
}

bool frmVelObjects::ClickChkContainer() {
    if (CheckContainer()) return true;
    chkContainer = false;
    return false;
}

bool frmVelObjects::LeaveTxtWeight() {
    if (!HasAttributes()) return true;
    const auto weight = text::WholeNumber(text::TrimBlanks(txtWeight));
    if (weight && *weight >= 0 && *weight <= kHeaviest) return true;
    return RefuseField("txtWeight", "Weight must be from 0 to 63");
}

int frmVelObjects::Place() const {
    switch (*optInitiaLloc) {
        case InitialPlace::NotCreated:
            return place::kNotCreated.value;
        case InitialPlace::Worn:
            return place::kWorn.value;
        case InitialPlace::Carried:
            return place::kCarried.value;
        case InitialPlace::InRoom:
            break;
    }
    return static_cast<int>(*text::WholeNumber(text::TrimBlanks(cboInRoom.text)));
}

std::vector<std::string> frmVelObjects::Typed() const {
    const int option = optInitiaLloc ? static_cast<int>(*optInitiaLloc) : -1;
    return {txtObjDesc,
            std::to_string(cboObjWord.index),
            std::to_string(cboAdjective.index),
            std::to_string(option),
            cboInRoom.text,
            chkContainer ? "C" : "",
            chkWearRemove ? "WR" : "",
            txtWeight};
}

/// A list without a chosen item, as for a word that the vocabulary has lost, stores "no word".
void frmVelObjects::StoreWord(store::Cursor& record, const DropList& list, int wordType,
                              const char* wordField, const char* numberField) const {
    const condacts::WordIndex words = condacts::LoadWords(Adventure());
    const ListItem* chosen = list.Chosen();
    const int number = chosen ? chosen->number : condacts::kNoWordNumber;
    const condacts::Word* first = words.FindNumberTyped(number, wordType);
    record.SetField(numberField, std::int64_t{number});
    record.SetField(wordField, first ? first->word : std::string(condacts::kNoWord));
}

void frmVelObjects::StorePlace(store::Cursor& record) const {
    const int place = Place();
    record.SetField("objloc", std::int64_t{place});
    record.SetField("objlocdesc", condacts::DescriptionOfPlace(condacts::PlaceNumber(place)));
}

void frmVelObjects::StoreAttributes(store::Cursor& record) const {
    const int attributes = (chkContainer ? kContainerBit : 0) + (chkWearRemove ? kWearableBit : 0);
    record.SetField("objattr", std::string(chkContainer ? "C" : "") + (chkWearRemove ? "WR" : ""));
    record.SetField("objattrn", std::int64_t{attributes});
    record.SetField("objweight", *text::WholeNumber(text::TrimBlanks(txtWeight)));
}

bool frmVelObjects::cmdUpdate() {
    if (Typed() == opened_) return true;
    if (!LeaveTxtObjDesc() || !LeaveOptInitiaLloc() || !LeaveCboInRoom()) return false;
    if (HasAttributes() && (!CheckContainer() || !LeaveTxtWeight())) return false;
    Change change(session_.document, ChangeName());
    store::Cursor& record = RecordToStore();
    record.SetField("objdesc", ToStored(txtObjDesc));
    StoreWord(record, cboObjWord, condacts::kNoun, "objnoun", "objnumnoun");
    StorePlace(record);
    if (HasAttributes() || Key().isNew) {
        StoreWord(record, cboAdjective, condacts::kAdjective, "objadject", "objnumadject");
        StoreAttributes(record);
    }
    record.Update();
    change.Commit();
    return true;
}

}  // namespace fabula::authoring
