#include <limits>
#include <optional>

#include "authoring/batch/batch_work.h"
#include "authoring/fields/picture_choice.h"
#include "authoring/fields/record_comment.h"
#include "condacts/limits.h"
#include "pictures/book_loader.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "store/comments.h"
#include "store/game_path.h"
#include "text/encoding/utf8.h"
#include "text/numbers.h"
#include "text/str_edit.h"

// Pictures, checked as their editor checks them; what they draw is not drawn.

namespace fabula::authoring {
namespace {

using store::TableNum;

constexpr std::string_view kTypes[] = {"Picture", "Subroutine"};

bool StoreColour(const BatchChange& change, const char* field, store::Cursor& record) {
    const auto typed = change.Text(field);
    if (!typed) return true;
    const auto colour = text::WholeNumber(text::TrimBlanks(*typed));
    const bool good =
        colour && *colour >= pictures::kColourOfTheAdventure && *colour <= condacts::limit::kHighestColour;
    if (!good) return change.Refuse(field, "A colour is a number from 0 to 15, or -1 for the adventure's.");
    record.SetField(field, *colour);
    return true;
}

bool StoreType(const BatchChange& change, store::Cursor& record, pictures::PictureKind& kind) {
    const auto typed = change.Text("loctype");
    if (!typed) return true;
    for (const std::string_view type : kTypes) {
        if (!text::EqualsNoCase(type, text::TrimBlanks(*typed))) continue;
        record.SetField("loctype", std::string(type));
        kind = type == kTypes[0] ? pictures::PictureKind::Room : pictures::PictureKind::Subroutine;
        return true;
    }
    return change.Refuse("loctype", "A picture is of type Picture or Subroutine.");
}

bool StoreRoom(const BatchChange& change, const pictures::PictureBook& book, store::Cursor& record) {
    const auto typed = change.Text("roompicnum");
    if (!typed) return true;
    const auto room = text::WholeNumber(text::TrimBlanks(*typed));
    const bool known = room && *room <= std::numeric_limits<int>::max() &&
                       (*room == -1 || book.locations.contains(static_cast<int>(*room)));
    if (!known) return change.Refuse("roompicnum", *typed + " is not a valid room number");
    record.SetField("roompicnum", *room);
    return true;
}

/// The bitmap need not be there: it is made by the editor.
bool StoreFile(BatchWork& work, const BatchChange& change, store::Cursor& record) {
    const auto typed = change.Text("picname");
    if (!typed) return true;
    const std::string name(text::TrimBlanks(*typed));
    const auto found = store::FindGameFile(work.Adventure().GameDir(), name).fault;
    if (!name.empty() && found == store::GamePath::Fault::Outside)
        return change.Refuse("picname", kPictureOutside);
    record.SetField("picname", name);
    return true;
}

bool StoreDrawstring(const BatchChange& change, const pictures::PictureBook& book,
                     pictures::PictureKind kind, store::Cursor& record) {
    const auto typed = change.Words("drawstring");
    if (!typed && !change.Has("loctype")) return true;
    const std::string drawstring = typed ? *typed : std::string(record.Text("drawstring"));
    const auto check = pictures::ValidateDrawString(book, drawstring, kind);
    if (!check.Passed()) return change.Refuse(typed ? "drawstring" : "loctype", check.fault);
    record.SetField("drawstring", pictures::JoinWords(check.words));
    return true;
}

}  // namespace

bool StorePicture(BatchWork& work, const BatchChange& change) {
    store::Adventure& adventure = work.Adventure();
    const pictures::PictureBook book = pictures::LoadPictureBook(adventure);
    const std::string number = std::to_string(change.key.key);
    Change step(work.context.document, (change.key.isNew ? "add picture " : "edit picture ") + number);
    store::Cursor& record = adventure.OpenTable(TableNum::Pictures, "def", "locnum=" + number);
    pictures::PictureKind kind = book.locations.contains(change.key.key)
                                     ? pictures::PictureKind::Room
                                     : pictures::PictureKind::Subroutine;
    if (const pictures::Picture* stored = book.FindPicture(change.key.key)) kind = stored->kind;
    if (change.key.isNew) {
        record.AddNew();
        record.SetField("locnum", std::int64_t{change.key.key});
        record.SetField("loctype", std::string(kTypes[kind == pictures::PictureKind::Room ? 0 : 1]));
        record.SetField("locpaper", std::int64_t{pictures::kColourOfTheAdventure});
        record.SetField("locink", std::int64_t{pictures::kColourOfTheAdventure});
        record.SetField("roompicnum", std::int64_t{pictures::kNoRoom});
        record.SetField("picname", std::string());
        record.SetField("drawstring", std::string("END"));
    }
    const bool good = StoreType(change, record, kind) && StoreColour(change, "locpaper", record) &&
                      StoreColour(change, "locink", record) && StoreRoom(change, book, record) &&
                      StoreFile(work, change, record) && StoreDrawstring(change, book, kind, record);
    if (!good) {
        record.CancelUpdate();
        return false;
    }
    if (const auto comment = change.Text(store::kCommentField))
        record.SetField(store::kCommentField, RecordComment::ValueOf(*comment));
    record.Update();
    step.Commit();
    return true;
}

}  // namespace fabula::authoring
