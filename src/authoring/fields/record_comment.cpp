#include "authoring/fields/record_comment.h"

#include "authoring/fields/texts/text_field.h"
#include "store/comments.h"

namespace fabula::authoring {

RecordComment::RecordComment(store::Adventure& adventure, store::TableNum table, ScreenKey key) {
    if (key.isNew) return;
    store::PreparedQuery record =
        adventure.Prepare(table, store::kCommentField, std::string(store::FindTable(table)->key) + "=?");
    if (record.First({std::int64_t{key.key}})) text = ToEdited(record.Text(0));
    stored_ = text;
}

text::Value RecordComment::ValueOf(std::string_view typed) {
    const bool isBlank = typed.find_first_not_of(" \n") == std::string_view::npos;
    return isBlank ? text::Value() : text::Value(ToStored(typed));
}

void RecordComment::Put(store::Cursor& record) const {
    if (Changed()) record.SetField(store::kCommentField, ValueOf(text));
}

}  // namespace fabula::authoring
