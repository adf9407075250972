#include "pictures/files/picture_folder.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "pictures/book_loader.h"
#include "pictures/drawing.h"
#include "pictures/drawstring.h"
#include "pictures/drawstring_check.h"
#include "pictures/files/room_bitmaps.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/adventure.h"
#include "store/record_limits.h"
#include "text/colours.h"

namespace fabula::pictures {
namespace {

using store::Cursor;
using store::TableNum;

/// No location will ever have it.
constexpr int kDefaultPictureNumber = store::kHighestRecord + 1;

/// The words of a drawing without its remarks.
std::vector<std::string> ReadWords(const std::filesystem::path& file) {
    std::istringstream stream(
        platform::ReadWholeFile(file, kLargestDrawing, "read the drawing " + file.string()));
    std::string text;
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line.front() != '#') text += line + " ";
    }
    return DrawstringWords(text);
}

/// Takes the word and its colour off the front; nothing there leaves `colour` as it is.
void TakeColour(std::vector<std::string>& words, const std::string& word, int& colour,
                const std::filesystem::path& file) {
    if (words.size() < 2 || words[0] != word) return;
    const std::optional<int> number = ParameterValue(words[1]);
    if (!number || *number < 0 || *number > text::kHighestColour) {
        throw Error(file.string() + ": " + words[1] + " is no colour for " + word + ".");
    }
    colour = *number;
    words.erase(words.begin(), words.begin() + 2);
}

Picture ReadPicture(const std::filesystem::path& file, int number, PictureKind kind) {
    std::vector<std::string> words = ReadWords(file);
    Picture picture;
    picture.number = number;
    picture.kind = kind;
    TakeColour(words, "DEFPAPER", picture.paper, file);
    TakeColour(words, "DEFINK", picture.ink, file);
    picture.drawstring = JoinWords(words);
    return picture;
}

/// A drawing of the folder, and what it is for.
struct DrawingFile {
    std::filesystem::path file;
    int number = 0;
    bool isDefault = false;
};

/// The drawings, the default picture last.
std::vector<DrawingFile> FindDrawings(const std::filesystem::path& folder) {
    std::vector<DrawingFile> found;
    std::optional<std::filesystem::path> defaultFile;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder, error);
    if (error) throw Error("Could not read the folder " + folder.string() + ": " + error.message() + ".");
    for (const auto& entry : entries) {
        const std::filesystem::path& file = entry.path();
        if (file.extension() != ".draw") continue;
        if (file.stem() == "default") {
            defaultFile = file;
            continue;
        }
        const std::optional<int> number = ParameterValue(file.stem().string());
        if (!number || *number < 0 || *number > store::kHighestRecord) {
            throw Error(file.string() + " is named after no picture.");
        }
        found.push_back({file, *number, false});
    }
    if (defaultFile) found.push_back({*defaultFile, kDefaultPictureNumber, true});
    return found;
}

void StorePicture(store::Adventure& adventure, const Picture& picture, const std::string& bitmap,
                  int room) {
    const std::string where = "locnum=" + std::to_string(picture.number);
    adventure.DeleteFrom(TableNum::Pictures, where);
    Cursor& cursor = adventure.OpenTable(TableNum::Pictures, "def", where);
    cursor.AddNew();
    cursor.SetField("locnum", picture.number);
    cursor.SetField("loctype", picture.kind == PictureKind::Subroutine ? "Subroutine" : "Picture");
    cursor.SetField("locpaper", picture.paper);
    cursor.SetField("locink", picture.ink);
    cursor.SetField("drawstring", picture.drawstring);
    cursor.SetField("picname", bitmap);
    cursor.SetField("roompicnum", room);
    cursor.Update();
}

}  // namespace

void AddPictureFolder(store::Adventure& adventure, const std::filesystem::path& folder) {
    PictureBook book = LoadPictureBook(adventure);
    const std::vector<DrawingFile> drawings = FindDrawings(folder);
    if (drawings.empty()) throw Error("There is no drawing in the folder " + folder.string() + ".");
    const auto isShown = [&book](const DrawingFile& drawing) {
        return drawing.isDefault || book.locations.count(drawing.number) > 0;
    };
    for (const DrawingFile& drawing : drawings) {
        const auto kind = isShown(drawing) ? PictureKind::Room : PictureKind::Subroutine;
        book.pictures[drawing.number] = ReadPicture(drawing.file, drawing.number, kind);
    }
    std::vector<std::pair<int, std::string>> bitmaps;
    store::Transaction transaction(adventure);
    for (const DrawingFile& drawing : drawings) {
        const Picture& picture = book.pictures.at(drawing.number);
        const DrawstringCheck check = ValidateDrawString(book, picture.drawstring, picture.kind);
        if (!check.Passed()) throw Error(drawing.file.string() + ": " + check.fault);
        const std::optional<int> room = drawing.isDefault ? std::nullopt : std::optional(drawing.number);
        const std::string bitmap = isShown(drawing) ? BitmapName(adventure, room) : "";
        StorePicture(adventure, picture, bitmap,
                     isShown(drawing) && !drawing.isDefault ? drawing.number : kNoRoom);
        if (bitmap.empty()) continue;
        NameBitmap(adventure, room, bitmap);
        DrawPicture(book, drawing.number);
        bitmaps.emplace_back(drawing.number, bitmap);
    }
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    settings.SetField("graphics", true);
    settings.Update();
    transaction.Commit();
    // No bitmap is replaced before all drawings have shown that they can be drawn. They are drawn once more
    // rather than all kept.
    for (const auto& [number, bitmap] : bitmaps)
        SaveBitmap(adventure, bitmap, DrawPicture(book, number));
}

}  // namespace fabula::pictures
