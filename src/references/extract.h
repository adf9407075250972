#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "condacts/language/catalogue.h"
#include "condacts/numbers.h"
#include "pictures/command_catalogue.h"
#include "references/use.h"
#include "store/adventure.h"
#include "store/query/keyed_rows.h"

namespace fabula::references {

/// What the meaning of a record's fields depends on besides the record itself: the catalogues.
struct Language {
    condacts::Catalogue condActs;
    pictures::CommandCatalogue commands;
    bool characterSets = false;           ///< CHARSET and its tag name character sets, not fonts
    std::set<std::string> setTags;        ///< the tags whose value is a set, in lower case
    std::set<std::string> characterTags;  ///< the tags whose value is a character
};

Language LoadLanguage(store::Adventure& adventure);
/// Whether a change of this table's records changes the language.
bool BelongsToLanguage(store::TableNum table);

/// A table whose records name others, and the fields that tell of it.
struct SourceTable {
    store::TableNum table;
    std::vector<std::string_view> fields;  ///< the record's number first
};

/// In the order of the tables.
const std::vector<SourceTable>& SourceTables();

/// What the record that `row` stands on names, in the order of its fields and their words. `row` reads the
/// fields of `table` in their order. Nothing but the record and the language decides it.
std::vector<KeptUse> UsesIn(const store::KeyedRows& row, const SourceTable& table,
                            const Language& language);

/// The kind of what the value of a flag stands for where the engine gives it a meaning: flag 38 is a
/// location. Of words also their types.
struct FlagMeaning {
    condacts::FlagNumber flag;
    Kind kind;
    WordTypes wordTypes = kAnyType;
};
std::optional<FlagMeaning> FindFlagMeaning(condacts::FlagNumber flag);

/// Whether a condition or action takes the number that it names for a border between others ("ATLT 19"): it
/// is no name then that could follow a new number.
bool ComparesOrder(std::string_view condAct);

}  // namespace fabula::references
