#include "authoring/record_screen.h"

#include "platform/error.h"
#include "store/tags.h"
#include "text/markup.h"

namespace fabula::authoring {

RecordScreen::RecordScreen(Session& session, store::TableNum table, ScreenKey key, std::string_view noun)
    : session_(session), table_(table), key_(key), noun_(noun) {
    if (!key_.isNew) OpenRecord();
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
    if (!key_.isNew) return OpenRecord();
    store::Cursor& record = Adventure().OpenTable(table_, "def", Criterion());
    record.AddNew();
    record.SetField(store::FindTable(table_)->key, std::int64_t{key_.key});
    return record;
}

std::string RecordScreen::ChangeName() const {
    return (key_.isNew ? "add " : "edit ") + noun_ + " " + std::to_string(key_.key);
}

bool RecordScreen::RefuseField(std::string_view control, std::string_view message, std::string_view title) {
    session_.dialogs.Tell(message, title);
    return KeepFocus(control);
}

bool RecordScreen::KeepFocus(std::string_view control) {
    refused_ = control;
    return false;
}

bool RecordScreen::CheckText(std::string_view control, std::string_view typed, bool tagsAllowed) {
    const text::TagCatalogue tags = store::LoadTagCatalogue(Adventure());
    if (text::ValidateDescription(typed, tagsAllowed, tags, &session_.dialogs).IsValid()) return true;
    return KeepFocus(control);
}

}  // namespace fabula::authoring
