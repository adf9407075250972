#pragma once

#include <string>

#include "store/adventure.h"

namespace fabula::packages {

/// What a package and its papers say of a game, from its settings: texts without blanks at their ends, with
/// "\n" for line ends.
struct GameFacts {
    std::string name;
    std::string saveName;
    std::string author;
    std::string version;
    std::string description;
    std::string contact;
    std::string ifid;            ///< "" for none
    std::string defaultPicture;  ///< a path, as stored
    std::string aboutPicture;
    bool picturesInside = false;  ///< `graphicsindb`

    /// What the game is called where it needs a name: `name`, or else `saveName`.
    const std::string& Title() const { return name.empty() ? saveName : name; }
};

/// Throws fabula::Error when the settings can't be read.
GameFacts ReadFacts(store::Adventure& adventure);

/// The name of a game as a name of a file: what leads to folders, and what other systems refuse in names,
/// becomes "_".
std::string AsFileName(const std::string& title);

}  // namespace fabula::packages
