#pragma once

#include <optional>

#include "pictures/picture_book.h"

namespace fabula::store {
class Adventure;
}

namespace fabula::pictures {

/// Reads an adventure's commands, characters, pictures, locations' numbers and colours. Throws
/// fabula::Error when the file can't be read.
PictureBook LoadPictureBook(store::Adventure& adventure);

/// Its characters alone, and its commands alone.
CharacterSets LoadCharacterSets(store::Adventure& adventure);
CommandCatalogue LoadCommands(store::Adventure& adventure);

/// Its paper and its ink as the settings hold them, which may be no colours; nullopt without settings.
struct GameColours {
    int paper = 0;
    int ink = 0;
};
std::optional<GameColours> LoadColours(store::Adventure& adventure);

}  // namespace fabula::pictures
