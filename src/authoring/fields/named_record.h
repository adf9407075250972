#pragma once

#include <optional>
#include <string_view>

#include "condacts/numbers.h"
#include "store/adventure.h"
#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// A record that a field of a screen names.
struct NamedRecord {
    store::TableNum table = store::TableNum::Locations;
    int key = 0;

    friend bool operator==(const NamedRecord&, const NamedRecord&) = default;
};

/// The record of a table with the number that was typed; nullopt for what is no number.
std::optional<NamedRecord> NamedByNumber(store::TableNum table, std::string_view typed);

/// The first word of this spelling and number; nullopt when there is none.
std::optional<NamedRecord> NamedWord(store::Adventure& adventure, std::string_view word,
                                     condacts::WordNumber number);

}  // namespace fabula::authoring
