#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/canvas.h"

namespace fabula::store {
class Adventure;
}

namespace fabula::pictures {

// The bitmaps that a game shows of its drawn pictures: pictures/NAME/RoomNNN.bmp for rooms, and
// pictures/NAME/Default.bmp for the dark and for rooms without a picture, beside the adventure NAME.fbd.

/// The bitmap of a room, or without one the default; relative to the adventure's folder.
std::string BitmapName(const store::Adventure& adventure, std::optional<int> room);

/// Makes the room, or without one the settings, show the bitmap of that name.
void NameBitmap(store::Adventure& adventure, std::optional<int> room, const std::string& bitmap);

/// Writes the canvas. Throws fabula::Error when the file or its folder can't be made.
void SaveBitmap(const store::Adventure& adventure, const std::string& bitmap, const Canvas& canvas);

/// What SaveRoomBitmaps did.
struct SavedBitmaps {
    int saved = 0;
    /// What could not be drawn, a sentence each.
    std::vector<std::string> faults;
};

/// Draws every picture of a room, saves its bitmap and makes the room show it. Where the adventure has no
/// default picture, an empty one is made. Does nothing in an adventure without pictures of rooms. Throws
/// fabula::Error when a file can't be written; the adventure is then as it was.
SavedBitmaps SaveRoomBitmaps(store::Adventure& adventure);

}  // namespace fabula::pictures
