#include "authoring/screens/message_screen.h"

#include <array>
#include <optional>
#include <stdexcept>

#include "authoring/entries/record_keys.h"
#include "authoring/fields/texts/text_field.h"

namespace fabula::authoring {

using store::TableNum;

struct MessageScreen::Personality {
    TableNum table;
    std::string_view caption;
    std::string_view label;
    std::string_view previewCaption;
    std::string_view tableName;
    std::string_view key;
    std::string_view text;
    bool tagsAllowed;
    int first;  ///< the lowest number that may be edited
    std::string_view noun;
};

const MessageScreen::Personality& MessageScreen::PersonalityOf(TableNum table) {
    static constexpr std::array<Personality, 3> kPersonalities = {{
        {TableNum::Messages, "Messages Editor", "Message #:", "Converted Message", "messages", "msgnum",
         "msgmsg", true, 0, "message"},
        {TableNum::SystemMessages, "System Messages Editor", "System Message #:",
         "Converted System Message", "systemmessages", "smsgnum", "smsgmsg", true, 0, "system message"},
        {TableNum::ProcDesc, "Process Table Descriptions Editor", "Process Table #:", "", "procdesc",
         "pmsgnum", "pmsgmsg", false, 3, "description of process table"},
    }};
    for (const Personality& personality : kPersonalities) {
        if (personality.table == table) return personality;
    }
    throw std::logic_error("MessageScreen: the table has no texts");
}

MessageScreen::MessageScreen(ScreenContext& context, ScreenKey key)
    : EditScreen(context),
      personality_(PersonalityOf(context.currentTable)),
      key_(key),
      comment_(Adventure(), personality_.table, key) {
    Read();
}

std::string_view MessageScreen::Caption() const {
    return personality_.caption;
}

std::string_view MessageScreen::Label() const {
    return personality_.label;
}

std::string_view MessageScreen::PreviewCaption() const {
    return personality_.previewCaption;
}

bool MessageScreen::TagsAllowed() const {
    return personality_.tagsAllowed;
}

std::size_t MessageScreen::MostCharacters() const {
    const store::TableSchema& schema = Adventure().Schema(personality_.table);
    const std::optional<std::size_t> field = schema.Find(personality_.text);
    return field ? static_cast<std::size_t>(schema.fields[*field].size) : 0;
}

store::Cursor& MessageScreen::OpenRecord() const {
    return Adventure().OpenTable(TableNum::Free22, "* from " + std::string(personality_.tableName),
                                 std::string(personality_.key) + "=" + std::to_string(key_.key));
}

void MessageScreen::Read() {
    const store::Cursor& record = OpenRecord();
    text_ = record.Eof() ? std::string() : ToEdited(record.Text(personality_.text));
    changed_ = false;
    comment_ = RecordComment(Adventure(), personality_.table, key_);
}

void MessageScreen::GoTo(int key) {
    key_ = {.key = key};
    Read();
}

void MessageScreen::TypeMessage(std::string text) {
    text_ = std::move(text);
    changed_ = true;
}

bool MessageScreen::LeaveText() {
    if (!CheckText("text", text_, personality_.tagsAllowed)) return false;
    const std::size_t most = MostCharacters();
    return most == 0 || CheckLength("text", ToStored(text_), most);
}

std::string MessageScreen::ChangeName() const {
    return (key_.isNew ? "add " : "edit ") + std::string(personality_.noun) + " " +
           std::to_string(key_.key);
}

void MessageScreen::Store() {
    Change change(context_.document, ChangeName());
    // Another program may have added a text of that number meanwhile.
    if (key_.isNew && HasRecord(Adventure(), personality_.table, key_.key)) {
        key_.key = *NextKey(Adventure(), personality_.table);
        change.Rename(ChangeName());
    }
    store::Cursor& record = OpenRecord();
    if (record.Eof()) {
        record.AddNew();
        record.SetField(personality_.key, std::int64_t{key_.key});
    }
    if (changed_ || key_.isNew) record.SetField(personality_.text, ToStored(text_));
    comment_.Put(record);
    record.Update();
    change.Commit();
    key_.isNew = false;
    changed_ = false;
    comment_.Stored();
}

bool MessageScreen::Step(int step) {
    const std::string key(personality_.key);
    const std::string where = step < 0 ? key + "<? and " + key + ">=?" : key + ">? and " + key + ">=?";
    store::PreparedQuery neighbour =
        Adventure().Prepare(personality_.table, key, where, step < 0 ? key + " desc" : key);
    if (!neighbour.First({std::int64_t{key_.key}, std::int64_t{personality_.first}})) return false;
    const int number = static_cast<int>(neighbour.Number(0));
    neighbour.Reset();
    if (!LeaveText()) return false;
    if (Changed()) Store();
    key_ = {number, false};
    context_.currentEntry = number;
    Read();
    return true;
}

bool MessageScreen::Update() {
    if (!Changed()) return true;
    if (changed_ && !LeaveText()) return false;
    Store();
    return true;
}

}  // namespace fabula::authoring
