#include "ide/editors/record_picture.h"

#include "condacts/numbers.h"
#include "ide/editors/plane_image.h"
#include "pictures/book_loader.h"
#include "pictures/drawing.h"
#include "platform/error.h"
#include "platform/image_limits.h"
#include "qt/look/game_image.h"
#include "store/game_path.h"

namespace fabula::ide {

using store::TableNum;

namespace {

QImage KeptImage(store::Adventure& adventure, const std::string& where) {
    const store::Cursor& settings = adventure.OpenTable(TableNum::Free22, "graphicsindb from adventure");
    if (settings.Eof() || !settings.Truth("graphicsindb")) return {};
    const store::Cursor& room = adventure.OpenTable(TableNum::Free22, "picgraphic from locations", where);
    if (room.Eof()) return {};
    const text::Value value = room.Field("picgraphic");
    const auto* bytes = std::get_if<text::Blob>(&value);
    if (bytes == nullptr || bytes->size() > platform::kLargestImageFile) return {};
    return qt::DecodeImage(
        QByteArray(reinterpret_cast<const char*>(bytes->data()), static_cast<qsizetype>(bytes->size())));
}

QImage LocationImage(store::Adventure& adventure, condacts::PlaceNumber location) {
    const std::string where = "locnum=" + std::to_string(location.value);
    const QImage kept = KeptImage(adventure, where);
    if (!kept.isNull()) return kept;
    const store::Cursor& room = adventure.OpenTable(TableNum::Free22, "picloc from locations", where);
    if (room.Eof()) return {};
    const store::GamePath found = store::FindGameFile(adventure.GameDir(), room.Text("picloc"));
    if (found.fault == store::GamePath::Fault::None) return qt::ReadImage(found.file);
    return DrawnPicture(adventure, location.value);
}

}  // namespace

QImage DrawnPicture(store::Adventure& adventure, int number) {
    try {
        const pictures::PictureBook book = pictures::LoadPictureBook(adventure);
        if (book.FindPicture(number) == nullptr) return {};
        return ImageOfPlane(pictures::DrawPicture(book, number).colour);
    } catch (const Error&) {
        // The editor tells what is wrong with it.
        return {};
    }
}

QImage PictureOfRecord(store::Adventure& adventure, TableNum table, int key) {
    if (table == TableNum::Pictures) return DrawnPicture(adventure, key);
    if (table == TableNum::Locations && adventure.GraphicsOn())
        return LocationImage(adventure, condacts::PlaceNumber(key));
    return {};
}

}  // namespace fabula::ide
