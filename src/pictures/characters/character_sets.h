#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "pictures/characters/glyph.h"
#include "text/character_numbers.h"

namespace fabula::pictures {

/// One character of one set, a row of the table `Characters`.
struct Character {
    int set = 0;
    int number = 0;
    std::string setName;  ///< `charsetname`, repeated in every row of the set
    Glyph glyph{};
};

// Shades and block graphics stand in set 0 alone.
using text::kFirstBlock;
using text::kFirstCharacter;
using text::kFirstUserGraphic;
using text::kLastCharacter;
using text::kLastOfFont;
using text::kLastShade;
using text::kShades;
using text::kSolidCharacter;

/// How many characters the name of a set has at most.
inline constexpr std::size_t kLongestSetName = 20;

/// Whether an author may change the character: in set 0 the shades and the user-defined graphics, in the
/// others all.
constexpr bool IsEditableCharacter(int set, int number) {
    return set > 0 || !text::IsFixedCharacter(number);
}

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
