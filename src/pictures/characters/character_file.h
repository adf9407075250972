#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pictures/characters/character_sets.h"

namespace fabula::pictures {

/// A character set file (*.chr) carries sets from one adventure to another, as plain text:
///
///     CHARSETS
///     Delim=|
///     SET0003
///     Runes
///     65|0|24|36|66|126|66|66|0
///     ENDSET
///
/// The lines from SET to ENDSET come once a set; the delimiter is whatever the second line says.

/// One set of a file.
struct CharacterFileSet {
    std::string line;  ///< "SET0003"
    std::string name;
    std::vector<Character> characters;  ///< of set 0 and without a name
};

/// All that a character set file holds.
struct CharacterFile {
    std::vector<CharacterFileSet> sets;
    bool isCharacterFile = true;  ///< false when the first line is another; nothing more is read then
};

/// Reads the text of a file. Throws fabula::Error, naming `fileName` and the line, when a line is not as it
/// must be: a character is a number from 0 to 999 and eight numbers from 0 to 255; a name has at most 20
/// characters.
CharacterFile ReadCharacterFile(std::string_view text, std::string_view fileName);

/// "There is no character set 3."
std::string NoSetMessage(std::string_view set);

/// The text of a file with those sets, in that order. Of set 0 only the shades and the user-defined
/// graphics are written, for the rest of it is the same everywhere. Throws fabula::Error for a set that
/// does not exist.
std::string WriteCharacterFile(const CharacterSets& sets, const std::vector<int>& numbers);

}  // namespace fabula::pictures
