#include "interchange/listing/listing_job.h"

#include "condacts/words.h"
#include "interchange/shared/given_records.h"

namespace fabula::interchange {
namespace {

using store::Cursor;
using store::TableNum;

}  // namespace

void StoreLocation(KeyedTable& locations, std::int64_t number, const std::string& text) {
    Cursor& record = locations.GoToOrAdd(number);
    record.SetField("locdesc", text);
    record.SetField("numexits", std::int64_t{0});
    for (const char* field : {"exits", "numericexits", "picloc", "pickey", "locshortdesc", "oldpicloc"})
        record.SetField(field, std::string());
    locations.Update();
}

void StoreObject(KeyedTable& objects, std::int64_t number, const std::string& text) {
    Cursor& record = objects.GoToOrAdd(number);
    record.SetField("objdesc", text);
    for (const char* field : {"objnoun", "objadject"})
        record.SetField(field, std::string(condacts::kNoWord));
    for (const char* field : {"objnumnoun", "objnumadject"})
        record.SetField(field, std::int64_t{condacts::kNoWordNumber.value});
    SetPlace(record, condacts::place::kNotCreated);
    record.SetField("objweight", std::int64_t{1});
    record.SetField("objattr", std::string());
    record.SetField("objattrn", std::int64_t{0});
    objects.Update();
}

void StoreText(KeyedTable& texts, std::string_view field, std::int64_t number, const std::string& text) {
    texts.GoToOrAdd(number).SetField(field, text);
    texts.Update();
}

void SetPlace(Cursor& object, condacts::PlaceNumber place) {
    object.SetField("objloc", std::int64_t{place.value});
    object.SetField("objlocdesc", condacts::DescriptionOfPlace(place));
}

void AddScriptMessages(store::Adventure& adventure) {
    for (const std::string_view text : kScriptMessages) {
        const std::string message(text);
        store::PreparedQuery there = adventure.Prepare(TableNum::SystemMessages, "smsgnum", "smsgmsg=?");
        if (there.First({message})) continue;
        there.Reset();
        KeyedTable messages(adventure, TableNum::SystemMessages);
        StoreText(messages, "smsgmsg", messages.HighestKey() + 1, message);
    }
}

void SetSetting(store::Adventure& adventure, std::string_view field, std::int64_t value) {
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    settings.SetField(field, value);
    settings.Update();
}

}  // namespace fabula::interchange
