#pragma once

#include <map>
#include <set>
#include <string>

#include "pictures/characters/character_sets.h"
#include "pictures/command_catalogue.h"
#include "pictures/palette.h"

namespace fabula::pictures {

/// What a picture is for (`loctype`). A subroutine is drawn by GOSUB and may scale nothing itself.
enum class PictureKind { Room, Subroutine };

/// The `locpaper` and `locink` of a picture that takes its colour from the adventure's settings.
inline constexpr int kColourOfTheAdventure = -1;

/// The `roompicnum` of a picture that is no room's.
inline constexpr int kNoRoom = -1;

/// One picture, a row of the table `Pictures`.
struct Picture {
    int number = 0;  ///< `locnum`
    PictureKind kind = PictureKind::Room;
    int paper = kColourOfTheAdventure;  ///< `locpaper`, a palette number
    int ink = kColourOfTheAdventure;    ///< `locink`, a palette number
    std::string drawstring = "END";
};

/// All of an adventure that checking and drawing its pictures take: plain data, made by `LoadPictureBook`
/// or by a test. It does not follow later changes of the file.
struct PictureBook {
    CommandCatalogue commands;
    CharacterSets characters;
    std::map<int, Picture> pictures;  ///< by number
    std::set<int> locations;          ///< the numbers of the adventure's locations
    Colour backColour = IndexToColour(7);
    Colour textColour = IndexToColour(0);

    /// The picture of that number, or nullptr.
    const Picture* FindPicture(int number) const {
        const auto found = pictures.find(number);
        return found == pictures.end() ? nullptr : &found->second;
    }
};

}  // namespace fabula::pictures
