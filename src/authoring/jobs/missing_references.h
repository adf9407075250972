#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "condacts/language/facts.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// Something in a record that names what is not there, or can't be so.
struct MissingReference {
    store::TableNum table;
    std::int64_t key;       ///< the record's number; 0 for the settings
    std::string field;      ///< of the record: "exits", "objloc", "w1" ...
    std::size_t place = 0;  ///< which word of the field, from 0
    std::string message;    ///< in the words of the record's screen

    friend bool operator==(const MissingReference&, const MissingReference&) = default;
};

/// What the records of an adventure name besides the conditions and actions of entries (which
/// `condacts::AllFaults` checks): the start, the words and the destinations of exits, the words and the
/// places of objects, the places that containers need, containers that are inside themselves, the words of
/// entries, and the pictures that drawstrings call. In the order of the tables, then of the records.
///
/// 252 to 255 are no place to be entered, whatever records there are.
std::vector<MissingReference> FindMissingReferences(store::Adventure& adventure,
                                                    const condacts::Facts& facts);

}  // namespace fabula::authoring
