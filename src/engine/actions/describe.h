#pragma once

#include "engine/numbers.h"

namespace fabula::engine {

class Game;

/// `Describe`: carries out a pending description (flag 1014): automatic flags, clearing, picture, and the
/// text of the place, or system message 0 in the dark. Without one only the trace's status is shown.
void Describe(Game& game);

/// `DescribeLocation`: the long text at the first visit, or when bit 7 of flag 29 or flag 1003 asks for it;
/// otherwise the short one. Where there is no short text the long one serves.
void DescribeLocation(Game& game, PlaceNumber location);

/// `ShowRoomPicture`: as the graphics mode of GRAPHIC allows, in flag 29 ("marlo": 1013). With bit 6 (64)
/// no picture is shown; with bit 5 (32) always one; with neither only at the first visit, or when bit 7
/// asks for the long text. A location without a picture of its own shows the game's default picture.
void ShowRoomPicture(Game& game, PlaceNumber location);

/// The picture of a location whatever the graphics mode says.
void ShowPictureOf(Game& game, PlaceNumber location);

}  // namespace fabula::engine
