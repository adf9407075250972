#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "references/kinds.h"

namespace fabula::references {

/// What a use does with what it names. Only flags and objects are read and set; all else is named.
enum class Access : std::uint8_t { Names, Reads, Sets, Both };

std::string_view NameOf(Access access);  ///< "names", "reads", "sets", "reads and sets"

/// A place that names something.
struct Use {
    Target target;
    store::TableNum table = store::TableNum::ProcessTables;
    std::int64_t record = 0;      ///< the number of the record that names it; 0 for the settings
    std::string_view field = {};  ///< of the record, in lower case: "condacts", "exits", "objloc" ...
    std::size_t token = 0;  ///< which word of the field, from 0; of a text with markup the place in bytes
    Access access = Access::Names;
    bool possible = false;           ///< it may be meant, for a flag decides, or a number that a flag holds
    WordTypes wordTypes = kAnyType;  ///< of a word: as which types it may be meant here

    friend bool operator==(const Use&, const Use&) = default;
};

/// A use as the index keeps it: with what tells of the numbers that flags hold.
struct KeptUse {
    Use use;
    /// What the value of the flag is taken for here: MESSGF prints a message of it.
    std::optional<Kind> carries = std::nullopt;
    /// A number that the flag is compared with or given; it stands behind the flag.
    std::optional<int> value = std::nullopt;
    /// The flag is given a number that does not stand here: PLUS, RANDOM, COPYFF ...
    bool computes = false;
    std::int64_t storeKey = 0;  ///< of the record that names it, whose number others may bear too
};

}  // namespace fabula::references
