#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "interchange/shared/keyed_table.h"
#include "pictures/characters/character_sets.h"

namespace fabula::interchange {

/// An array of bytes of a listing, as in "static char udg_bits[] = {", lines of "0x01, 0x02," and "};".
/// Each byte is one row of a character, mirrored; eight are one character.
class BitArray {
  public:
    /// The name of the array that the line opens ("udg_bits"); empty when it opens none.
    static std::string_view NameIn(std::string_view line);

    /// Takes the bytes of a line, up to "}". Anything else in it is passed over.
    void TakeLine(std::string_view line);
    /// Whether "}" was met.
    bool Closed() const { return closed_; }

    /// The whole characters, at most `most`, each as eight numbers with a blank between two (`charvals`).
    std::vector<std::string> Characters(std::size_t most) const;

  private:
    std::vector<std::uint8_t> rows_;
    bool closed_ = false;
};

/// The arrays of a section, line by line. Each is given away with its name as soon as it ends: at its "}",
/// at the head of the next one, or with the section.
class ArrayReader {
  public:
    using Take = std::function<void(const std::string& name, const BitArray& array)>;

    explicit ArrayReader(Take take) : take_(std::move(take)) {}

    void Line(std::string_view line);
    void Finish();

  private:
    Take take_;
    std::string name_;  ///< of the array that is being read
    BitArray array_;
};

/// The rows of the table `Characters` while sets are read into them. Nobody else may open the table
/// meanwhile.
class ListedCharacters {
  public:
    explicit ListedCharacters(store::Adventure& adventure)
        : table_(adventure, store::TableNum::Characters) {}

    /// Stores characters of a set, from number `first` up. Those that are there are written over.
    void Store(int set, int first, const std::vector<std::string>& characters, const std::string& setName);

  private:
    KeyedTable table_;
};

/// How many characters of each kind a listing has.
inline constexpr std::size_t kUserGraphics = pictures::kLastCharacter - pictures::kFirstUserGraphic + 1;
/// Of the user-defined graphics a listing is written with the first ones alone.
inline constexpr int kWrittenUserGraphics = 19;
inline constexpr std::size_t kFontCharacters = pictures::kLastOfFont - pictures::kFirstCharacter + 1;

}  // namespace fabula::interchange
