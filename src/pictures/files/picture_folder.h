#pragma once

#include <cstdint>
#include <filesystem>

namespace fabula::store {
class Adventure;
}

namespace fabula::pictures {

/// The largest drawing that is read, in bytes.
inline constexpr std::uintmax_t kLargestDrawing = 1024 * 1024;

/// Puts the drawings of a folder into an adventure as its room pictures, for games whose source form has no
/// place for drawstrings. A drawing is a text file:
///
///     7.draw         the picture of room 7; a subroutine when there is no room 7
///     default.draw   what is shown in the dark and in rooms without a picture. It gets the number 1000,
///                    which no room can have
///
/// A drawing may begin with DEFPAPER n and DEFINK n, in this order, each 0 to 15. The rest is a drawstring,
/// over as many lines as it takes. A line that begins with # is a remark.
///
/// Each drawing becomes a record of `Pictures`, in place of one with its number. The pictures of rooms are
/// saved as pictures/NAME/RoomNNN.bmp and pictures/NAME/Default.bmp beside the adventure NAME.fbd, the
/// rooms name them, and `graphics` is on. Throws fabula::Error for a folder without drawings and for one
/// that does not pass the check of drawstrings or can't be drawn; adventure and bitmaps are then as they
/// were. A bitmap that can't be written is an error too, but the adventure has its drawings by then.
void AddPictureFolder(store::Adventure& adventure, const std::filesystem::path& folder);

}  // namespace fabula::pictures
