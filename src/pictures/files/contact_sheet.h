#pragma once

#include <vector>

#include "pictures/canvas.h"
#include "pictures/characters/character_sets.h"
#include "pictures/files/image.h"

namespace fabula::pictures {

/// A drawn picture and its number.
struct NumberedPicture {
    int number = 0;
    Image image;  ///< 256 by 176, as `ImageOf` makes it
};

/// One image of small pictures side by side, each with its number below it, so that all pictures of an
/// adventure can be looked at together. The numbers are written with the digits of set 0, and left out
/// where it has none. `columns` is 1 or more.
Image ContactSheet(const std::vector<NumberedPicture>& pictures, const CharacterSets& characters,
                   int columns);

}  // namespace fabula::pictures
