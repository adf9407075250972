#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "interchange/shared/keyed_table.h"
#include "pictures/command_catalogue.h"

namespace fabula::interchange {

/// A picture of a listing.
struct ListedPicture {
    int number = 0;
    bool isSubroutine = false;
    int ink = 0;    ///< 0 to 15; -1 is that of the adventure
    int paper = 0;  ///< likewise
    std::string drawstring;
};

/// The head of a picture: "Location   5 graphics flags: Not Picture Ink=0 Paper=7", perhaps behind an
/// address. "Location=5" behind the colon goes before the number in front of it.
struct PictureHead {
    std::optional<int> number;
    bool isSubroutine = false;
    std::optional<int> ink;
    std::optional<int> paper;

    /// Nothing when the line is no head.
    static std::optional<PictureHead> Read(std::string_view line);
};

/// What is told of a head without its colours.
std::string NoColoursMessage(int picture);

/// One command of a listing in the language of drawstrings, or why it is none.
struct ListedCommand {
    std::string words;  ///< empty where there is a fault, and for a blank line
    std::string fault;
    bool isEnd = false;
};

/// Translates a line such as "LINE      o  -012  034": leading zeros go, and the letters "o" and "i" in
/// front of the numbers become the parameter of over and inverse. AMOVE and "ABS MOVE" are ABSMOVE, MOVE
/// and "REL MOVE" RELMOVE. With the letter "q" among the flags, FILL is QFILL and SHADE is QSHADE.
/// Parameters are numbers; whether they fit the picture is not asked here.
ListedCommand TranslateCommand(std::string_view line, const pictures::CommandCatalogue& commands);

/// Stores a picture; one of that number is written over. The drawstring gets its END where it lacks it.
void StorePicture(KeyedTable& pictures, const ListedPicture& picture);

}  // namespace fabula::interchange
