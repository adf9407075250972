#include <filesystem>

#include "authoring/drawing/picture_editor.h"
#include "authoring/fields/picture_choice.h"
#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "pictures/files/image.h"
#include "platform/error.h"
#include "store/game_path.h"
#include "text/format.h"
#include "text/numbers.h"
#include "text/str_edit.h"

// What Update does: the checks, the record, the bitmap and the room that shows it.

namespace fabula::authoring {

namespace fs = std::filesystem;

using store::TableNum;

bool PictureEditor::Browse() {
    const fs::path folder = Adventure().GameDir();
    platform::FileQuestion question;
    question.title = "Save Graphics Picture As";
    question.filter = "Bitmap Picture(*.bmp)|*.bmp";
    question.extension = "bmp";
    question.forWriting = true;
    question.asksToOverwrite = false;  // Update asks
    const auto room = text::WholeNumber(text::TrimBlanks(roomNumber));
    if (saveAsRoomPicture && room)
        question.start = folder / text::FormatText("Room!%z3", {*room});
    else
        question.start = fileName.empty() ? folder : BitmapFile();
    const std::optional<fs::path> file = Dialogs().ChooseFile(question);
    if (!file) return false;
    const std::optional<std::string> stored = store::PathInGame(folder, *file);
    if (!stored) return Refuse(Dialogs(), kPictureOutside);
    fileName = *stored;
    return true;
}

bool PictureEditor::LeaveRoomNumber() {
    if (!saveAsRoomPicture) return true;
    const std::string typed(text::TrimBlanks(roomNumber));
    if (typed.empty()) return RefuseField("RoomNumber", "To save it, you must have a Room Number");
    const auto room = text::WholeNumber(typed);
    const bool known = room && *room >= 0 && *room <= pictures::kLargestNumber &&
                       book_.locations.contains(static_cast<int>(*room));
    return known || RefuseField("RoomNumber", typed + " is not a valid room number");
}

bool PictureEditor::UpdateFields() {
    if (!LeaveCommandLine() || !LeaveDrawstring() || !LeaveRoomNumber()) return false;
    const bool good = PictureIsGood();
    if (!good) {
        fileName.clear();
        saveAsRoomPicture = false;
    }
    bool saveBitmap = good && !fileName.empty();
    if (saveBitmap) {
        const fs::path file = BitmapFile();
        if (!store::PathInGame(Adventure().GameDir(), file)) return Refuse(Dialogs(), kPictureOutside);
        std::error_code error;
        if (fs::exists(file, error))
            saveBitmap = Dialogs().Confirm("File " + fileName + " Exists. OverWrite", "File Exists");
    }
    DoUpdate(saveBitmap);
    return true;
}

/// What is saved must have been seen whole.
bool PictureEditor::PictureIsGood() {
    if (fileName.empty() || image_ || position_ == EndPosition()) return true;
    saying("Drawing Picture so it can be saved.");
    if (!CommRedraw()) return false;
    const bool good = Dialogs().Confirm("Does picture draw OK", "Confirm");
    saying("");
    return good;
}

/// The bitmap is written before the record is: a disk that is full then leaves both as they were.
void PictureEditor::DoUpdate(bool saveBitmap) {
    Change change(context_.document, ChangeName());
    StorePicture();
    if (saveBitmap) SaveBitmap();
    if (saveAsRoomPicture && !fileName.empty()) StoreRoom();
    change.Commit();
}

void PictureEditor::StorePicture() {
    store::Cursor& record = RecordToStore();
    if (Key().isNew) {
        record.SetField("loctype", kind_);
        record.SetField("roompicnum", std::int64_t{pictures::kNoRoom});
    }
    record.SetField("locink", std::int64_t{picture_.ink});
    record.SetField("locpaper", std::int64_t{picture_.paper});
    record.SetField("drawstring", pictures::JoinWords(words_));
    record.SetField("picname", fileName);
    if (saveAsRoomPicture) record.SetField("roompicnum", *text::WholeNumber(text::TrimBlanks(roomNumber)));
    record.Update();
}

/// The room shows the bitmap from now on; where pictures are kept in the adventure, what the file holds
/// now.
void PictureEditor::StoreRoom() {
    const std::string number(text::TrimBlanks(roomNumber));
    const bool kept = Adventure().OpenTable(TableNum::Adventure, "graphicsindb").Truth("graphicsindb");
    store::Cursor& room = Adventure().OpenTable(TableNum::Locations, "def", "locnum=" + number);
    room.SetField("picloc", fileName);
    room.SetField("pickey", "Room" + number);
    const fs::path file = BitmapFile();
    std::error_code error;
    if (kept && fs::exists(file, error)) {
        room.StoreFileInField(file, "picgraphic", "oldpicloc");
        room.SetField("oldpicloc", fileName);
    }
    room.Update();
}

/// The file that the name stands for. One that is there already may be written in another way.
fs::path PictureEditor::BitmapFile() const {
    const store::GamePath found = store::FindGameFile(Adventure().GameDir(), fileName);
    if (found.fault == store::GamePath::Fault::None) return found.file;
    return Adventure().GameDir() / text::ReplaceAll(fileName, "\\", "/");
}

void PictureEditor::SaveBitmap() {
    const fs::path file = BitmapFile();
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    if (error) {
        throw Error("Could not make the folder " + file.parent_path().string() + ": " + error.message() +
                    ".");
    }
    pictures::WriteImage(file, image_ ? image_->ToImage() : pictures::ImageOf(Planes().colour));
}

void PictureEditor::TakeImage(const pictures::CellImage& image, bool asDrawstring) {
    if (!asDrawstring) {
        image_ = image;
        return;
    }
    const std::string text = pictures::DrawstringOf(image, State().defaultPaper);
    Do({0, words_, pictures::DrawstringWords(text), {}, {}}, 0, KeyCursorGoes::WithTheDrawing, true);
    DrawUpTo(EndPosition());
    done_.back().after = Now();
}

}  // namespace fabula::authoring
