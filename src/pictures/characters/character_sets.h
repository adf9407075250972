#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "pictures/characters/glyph.h"

namespace fabula::pictures {

/// One character of one set, a row of the table `Characters`.
struct Character {
    int set = 0;
    int number = 0;
    std::string setName;  ///< `charsetname`, repeated in every row of the set
    Glyph glyph{};
};

/// Numbers of characters: 0 to 15 shades, 32 to 127 the font, 128 to 143 block graphics (143 is the solid
/// cell), 144 to 164 user-defined graphics. Shades and block graphics stand in set 0 alone.
inline constexpr int kLastShade = 15;
inline constexpr int kFirstCharacter = 32;
inline constexpr int kSolidCharacter = 143;
inline constexpr int kFirstUserGraphic = 144;
inline constexpr int kLastCharacter = 164;

/// The character sets of an adventure, by set and number.
class CharacterSets {
  public:
    /// Of two characters with the same set and number the first stays.
    void Add(const Character& character);

    bool HasSet(int set) const;

    /// The character, or nullptr.
    const Character* Find(int set, int number) const;

    /// The character of that number in the lowest set that has one, or nullptr. This is where the fills
    /// find their patterns, since only set 0 has shades.
    const Character* FindFirst(int number) const;

    /// The characters of a set in the order of their numbers; none when there is no such set.
    std::vector<const Character*> OfSet(int set) const;

    /// The numbers of the sets, in order.
    std::vector<int> Sets() const;

  private:
    std::map<int, std::map<int, Character>> sets_;
};

}  // namespace fabula::pictures
