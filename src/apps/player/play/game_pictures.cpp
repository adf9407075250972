#include "player/play/game_pictures.h"

#include "platform/error.h"
#include "platform/image_limits.h"
#include "qt/look/game_image.h"
#include "store/adventure.h"
#include "store/game_path.h"

namespace fabula::player {

namespace {

using store::TableNum;

QByteArray BytesOf(const text::Value& value) {
    const auto* bytes = std::get_if<text::Blob>(&value);
    if (bytes == nullptr || bytes->size() > platform::kLargestImageFile) return {};
    return {reinterpret_cast<const char*>(bytes->data()), static_cast<qsizetype>(bytes->size())};
}

}  // namespace

GamePictures::GamePictures(store::Adventure& adventure, Tell tell)
    : adventure_(adventure), tell_(std::move(tell)) {
    const auto& settings = adventure_.OpenTable(TableNum::Adventure, "graphicsindb");
    kept_ = !settings.Eof() && settings.Truth("graphicsindb");
}

QImage GamePictures::Load(const engine::Picture& picture) {
    if (!kept_) return FromFile(picture.path);
    const QImage image = FromStore(picture.location);
    if (image.isNull()) Fail(picture.path, "The picture " + picture.path + " can't be shown.");
    return image;
}

QImage GamePictures::FromStore(engine::PlaceNumber location) {
    try {
        if (location == engine::Picture::kOfTheGame) {
            const auto& settings = adventure_.OpenTable(TableNum::Adventure, "defpicgraphic");
            return settings.Eof() ? QImage() : qt::DecodeImage(BytesOf(settings.Field("defpicgraphic")));
        }
        const auto& room = adventure_.OpenTable(TableNum::LocationsWalk, "picgraphic",
                                                "locnum=" + std::to_string(location.value));
        return room.Eof() ? QImage() : qt::DecodeImage(BytesOf(room.Field("picgraphic")));
    } catch (const Error& error) {
        Fail("", error.what());
        return {};
    }
}

QImage GamePictures::FromFile(const std::string& path) {
    const store::GamePath found = store::FindGameFile(adventure_.GameDir(), path);
    switch (found.fault) {
        case store::GamePath::Fault::Outside:
            Fail(path, "The picture " + path + " is refused: it lies outside the game's folder.");
            return {};
        case store::GamePath::Fault::Missing:
            Fail(path, "The picture " + path + " is missing.");
            return {};
        case store::GamePath::Fault::None:
            break;
    }
    const QImage image = qt::ReadImage(found.file);
    if (image.isNull()) Fail(path, "The picture " + path + " can't be shown.");
    return image;
}

void GamePictures::Fail(const std::string& path, const std::string& sentence) {
    if (told_.insert(path).second) tell_(sentence);
}

}  // namespace fabula::player
