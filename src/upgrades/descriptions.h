#pragma once

#include <span>
#include <string>
#include <string_view>

#include "store/schema/table_catalogue.h"

namespace fabula::upgrades {

/// A field that holds texts of the author.
struct Description {
    store::TableNum table;
    std::string_view key;  ///< the field that numbers its records
    std::string_view field;
    std::string_view name;  ///< what a record is called in reports: "Location"
    bool tagsAllowed = false;
};

/// All of them, those of the settings too; in the order of the tables.
std::span<const Description> Descriptions();

/// A record as reports name it: "Location 5 field locdesc". The one record of settings has no key.
std::string NameOfField(const Description& description, std::int64_t key);

}  // namespace fabula::upgrades
