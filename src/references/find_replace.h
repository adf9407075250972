#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "references/pattern.h"
#include "store/adventure.h"

namespace fabula::references {

/// A field of a table that is searched: a text of the game with tags, a note without, the conditions and
/// actions, or an author's comment, which may hold anything.
struct SearchedField {
    store::TableNum table;
    std::string_view key;
    std::string_view field;
    std::string_view name;  ///< "messages", as the author chooses it
    enum class Form { Markup, Note, Rules, Comment } form;
};

std::span<const SearchedField> SearchedFields();

/// Something that was found, at one place.
struct Hit {
    const SearchedField* where = nullptr;
    std::int64_t record = 0;  ///< its number
    std::string text;         ///< the whole field
    Match match;              ///< in `text`
    /// Why the replacement would be refused, in the words of the record's screen; "" when it would not.
    std::string refusal;

    /// The line with the hit, and with the replacement in its place: what stands around it, at most so many
    /// bytes on either side.
    std::string Shown(std::size_t around = 40) const;
    std::string Preview(std::size_t around = 40) const;
};

/// Where is looked: the names of fields (`SearchedField::name`); empty for everywhere.
using SearchScope = std::set<std::string, std::less<>>;

/// Looks through a whole game, in the order of tables, records and places. In conditions and actions only
/// whole tokens are found, never parts of numbers or names. Throws fabula::Error for an expression that is
/// none or takes too long. With `replacing` each hit is also checked as if it were replaced.
std::vector<Hit> FindEverywhere(store::Adventure& adventure, const Wanted& wanted, const SearchScope& scope,
                                bool replacing);

/// What a replacement came to.
struct Replaced {
    int places = 0;
    int records = 0;
    std::vector<std::string> refused;  ///< why records were left as they are: their names and the faults
};

/// Replaces hits of one search, in the adventure as it was then. A record whose field would be refused with
/// all its hits replaced stays as it is. Entries are compiled anew. Belongs into one transaction; opens the
/// cursor Free22.
Replaced ReplaceHits(store::Adventure& adventure, const std::vector<Hit>& hits);

}  // namespace fabula::references
