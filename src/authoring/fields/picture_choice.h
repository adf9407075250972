#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

/// What is told of a picture elsewhere than in the game's folder.
inline constexpr std::string_view kPictureOutside =
    "The Picture must be at or below the directory of the game";

/// The button `ChoosePicture`: lets the author choose a picture's file, in a box with this title. It must
/// lie at or below the game's folder; a copy of one that does not is offered, under a name that the author
/// gives. `current` is the picture so far, or "". Gives the path for the record, relative to the game's
/// folder and with "/" between folders; nullopt when the picture stays as it was. Throws Error when the
/// file can't be read or copied. A copy of a file is not taken back by Undo.
std::optional<std::string> ChoosePicture(ScreenContext& context, std::string_view title,
                                         std::string_view current);

/// The file of a stored picture, for reading into the adventure. Throws Error when it is missing or lies
/// outside of the game's folder.
std::filesystem::path PictureFile(ScreenContext& context, std::string_view stored);

}  // namespace fabula::authoring
