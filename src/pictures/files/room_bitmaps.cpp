#include "pictures/files/room_bitmaps.h"

#include <filesystem>

#include "pictures/book_loader.h"
#include "pictures/drawing.h"
#include "pictures/files/image.h"
#include "platform/error.h"
#include "store/adventure.h"
#include "text/format.h"
#include "text/str_edit.h"

namespace fabula::pictures {
namespace {

using store::Cursor;
using store::TableNum;

constexpr const char* kNoDrawing = "END";

bool HasDefaultPicture(store::Adventure& adventure) {
    store::PreparedQuery settings = adventure.Prepare(TableNum::Adventure, "defpickey", "");
    return settings.First({}) && !text::TrimBlanks(settings.Text(0)).empty();
}

void SaveDefault(store::Adventure& adventure, const PictureBook& book) {
    Drawing drawing(book);
    drawing.CommDraw(Picture{}, kNoDrawing);
    const std::string bitmap = BitmapName(adventure, std::nullopt);
    SaveBitmap(adventure, bitmap, drawing.Planes());
    NameBitmap(adventure, std::nullopt, bitmap);
}

}  // namespace

std::string BitmapName(const store::Adventure& adventure, std::optional<int> room) {
    const std::string name = room ? text::FormatText("Room!%z3", {std::int64_t{*room}}) : "Default";
    return "pictures/" + adventure.CurrentFile().stem().string() + "/" + name + ".bmp";
}

void NameBitmap(store::Adventure& adventure, std::optional<int> room, const std::string& bitmap) {
    if (!room) {
        Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
        settings.SetField("defpickey", "Default");
        settings.SetField("defpicloc", bitmap);
        settings.Update();
        return;
    }
    const std::string number = std::to_string(*room);
    Cursor& location = adventure.OpenTable(TableNum::Locations, "def", "locnum=" + number);
    location.SetField("pickey", "Room" + number);
    location.SetField("picloc", bitmap);
    location.Update();
}

void SaveBitmap(const store::Adventure& adventure, const std::string& bitmap, const Canvas& canvas) {
    const std::filesystem::path file = adventure.GameDir() / bitmap;
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    if (error) {
        throw Error("Could not make the folder " + file.parent_path().string() + ": " + error.message() +
                    ".");
    }
    WriteImage(file, ImageOf(canvas.colour));
}

SavedBitmaps SaveRoomBitmaps(store::Adventure& adventure) {
    const PictureBook book = LoadPictureBook(adventure);
    SavedBitmaps result;
    store::Transaction transaction(adventure);
    for (const auto& [number, picture] : book.pictures) {
        if (picture.kind != PictureKind::Room || !book.locations.contains(number)) continue;
        std::optional<Canvas> canvas;
        try {
            canvas.emplace(DrawPicture(book, number));
        } catch (const Error& fault) {
            result.faults.emplace_back(fault.what());
            continue;
        }
        const std::string bitmap = BitmapName(adventure, number);
        SaveBitmap(adventure, bitmap, *canvas);
        NameBitmap(adventure, number, bitmap);
        Cursor& record = adventure.OpenTable(TableNum::Pictures, "def", "locnum=" + std::to_string(number));
        record.SetField("picname", bitmap);
        record.Update();
        ++result.saved;
    }
    if (result.saved > 0 && !HasDefaultPicture(adventure)) SaveDefault(adventure, book);
    transaction.Commit();
    return result;
}

}  // namespace fabula::pictures
