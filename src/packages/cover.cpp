#include "packages/cover.h"

#include "pictures/files/image.h"
#include "pictures/files/image_reader.h"
#include "platform/error.h"
#include "platform/image_limits.h"
#include "platform/whole_file.h"
#include "store/game_path.h"

namespace fabula::packages {
namespace {

using store::TableNum;

std::string BytesInside(store::Adventure& adventure) {
    if (!adventure.Schema(TableNum::Adventure).Find("advpicgraphic")) return "";
    const store::Cursor& settings = adventure.OpenTable(TableNum::Adventure, "advpicgraphic");
    const text::Value value = settings.Field("advpicgraphic");
    const auto* blob = std::get_if<text::Blob>(&value);
    if (blob == nullptr) return "";
    return {reinterpret_cast<const char*>(blob->data()), blob->size()};
}

/// Throws fabula::Error when the picture can't be read.
std::string BytesOf(store::Adventure& adventure, const GameFacts& facts) {
    if (facts.picturesInside) return BytesInside(adventure);
    const store::GamePath found = store::FindGameFile(adventure.GameDir(), facts.aboutPicture);
    if (found.fault != store::GamePath::Fault::None)
        throw Error("The picture " + facts.aboutPicture + " is not in the game's folder.");
    return platform::ReadWholeFile(found.file, platform::kLargestImageFile,
                                   "read the picture " + facts.aboutPicture);
}

bool IsJpeg(std::string_view bytes) {
    return bytes.starts_with("\xFF\xD8\xFF");
}
bool IsPng(std::string_view bytes) {
    return bytes.starts_with("\x89PNG\r\n\x1A\n");
}

bool IsCoverSide(int side) {
    return side >= kSmallestCover && side <= kLargestCover;
}

CoverSearch Judge(std::string bytes, const GameFacts& facts) {
    const pictures::Image image = pictures::DecodeImage(bytes, facts.aboutPicture);
    if (!IsCoverSide(image.width) || !IsCoverSide(image.height)) {
        return {std::nullopt, "The picture " + facts.aboutPicture + " is " + std::to_string(image.width) +
                                  " by " + std::to_string(image.height) +
                                  " points; a cover has 120 to 1200 a side."};
    }
    Cover cover{std::move(bytes), "png", image.width, image.height};
    if (IsJpeg(cover.bytes)) {
        cover.format = "jpg";
    } else if (!IsPng(cover.bytes)) {
        cover.bytes = pictures::EncodePng(image);
    }
    return {std::move(cover), ""};
}

}  // namespace

CoverSearch FindCover(store::Adventure& adventure, const GameFacts& facts) {
    if (facts.aboutPicture.empty())
        return {std::nullopt, "The game has no picture for About this Adventure, so it has no cover."};
    try {
        return Judge(BytesOf(adventure, facts), facts);
    } catch (const Error& error) {
        return {std::nullopt, std::string("There is no cover: ") + error.what()};
    }
}

}  // namespace fabula::packages
