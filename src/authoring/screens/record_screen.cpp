#include "authoring/screens/record_screen.h"

#include "authoring/entries/record_keys.h"
#include "platform/error.h"

namespace fabula::authoring {

RecordScreen::RecordScreen(ScreenContext& context, store::TableNum table, ScreenKey key,
                           std::string_view noun)
    : EditScreen(context), table_(table), key_(key), noun_(noun), comment_(Adventure(), table, key) {
    if (!key_.isNew) OpenRecord();
}

void RecordScreen::SetKey(int key) {
    key_ = {.key = key};
    OpenRecord();
    comment_ = RecordComment(Adventure(), table_, key_);
}

std::string RecordScreen::Criterion() const {
    return std::string(store::FindTable(table_)->key) + "=" + std::to_string(key_.key);
}

store::Cursor& RecordScreen::OpenRecord() const {
    store::Cursor& record = Adventure().OpenTable(table_, "def", Criterion());
    if (record.Eof()) {
        throw Error("Could not edit " + noun_ + " " + std::to_string(key_.key) + ": it is not there.");
    }
    return record;
}

store::Cursor& RecordScreen::RecordToStore() const {
    if (!key_.isNew) {
        store::Cursor& record = OpenRecord();
        comment_.Put(record);
        return record;
    }
    if (HasRecord(Adventure(), table_, key_.key)) {
        throw Error("Could not add " + noun_ + " " + std::to_string(key_.key) +
                    ": another program has added it meanwhile.");
    }
    store::Cursor& record = Adventure().OpenTable(table_, "def", Criterion());
    record.AddNew();
    record.SetField(store::FindTable(table_)->key, std::int64_t{key_.key});
    comment_.Put(record);
    return record;
}

store::Cursor& RecordScreen::RecordToStore(Change& change) {
    if (key_.isNew && HasRecord(Adventure(), table_, key_.key)) {
        key_.key = NextKey(Adventure(), table_).value_or(key_.key);
        change.Rename(ChangeName());
    }
    return RecordToStore();
}

bool RecordScreen::Update() {
    if (!key_.isNew && comment_.Changed() && !FieldsChanged()) {
        Change change(context_.document, ChangeName());
        RecordToStore().Update();
        change.Commit();
    } else if (!UpdateFields()) {
        return false;
    }
    comment_.Stored();
    return true;
}

std::string RecordScreen::ChangeName() const {
    return (key_.isNew ? "add " : "edit ") + noun_ + " " + std::to_string(key_.key);
}

}  // namespace fabula::authoring
