#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event_pump.h"
#include "store/schema/default_data.h"
#include "store/schema/schema.h"
#include "store/schema/section_forms.h"
#include "text/value.h"

namespace fabula::store {

/// One record to be written: its fields' names and values.
using Record = std::map<std::string, text::Value, std::less<>>;

/// Where a value was read, for messages, and the table that it goes to.
struct Place {
    std::string_view section;
    const DefaultData::Line& line;
    const TableSchema& schema;
};

/// A whole number, with blanks around it; any other text is malformed.
std::int64_t ReadNumber(const DefaultData& data, std::string_view section, const DefaultData::Line& line,
                        std::string_view text);

/// Puts a value into `record`; one that does not fit the field is malformed.
void SetValue(Record& record, const DefaultData& data, const Place& place, std::string_view field,
              text::Value value);

/// Puts the text of one column into `record`, converted to the type of the field: numbers, True and False,
/// text. An empty number is 0.
void SetText(Record& record, const DefaultData& data, const Place& place, std::string_view field,
             std::string_view text);

/// The records of a section of data. Throws fabula::Error when the section is missing or a line is
/// malformed.
std::vector<Record> ReadSection(const DefaultData& data, const std::string& section,
                                const SectionForm& form, const TableSchema& schema,
                                platform::EventPump& events);

/// The first record of a section of plain rows in whose column `field` stands `value`; nullopt when there
/// is none. The other rows are not read, so that what is wrong in them stays unsaid.
std::optional<Record> FindRow(const DefaultData& data, const std::string& section, const SectionForm& form,
                              const TableSchema& schema, std::string_view field, std::string_view value);

/// The records of the section of characters: rows of set number, character number, name of the set, and
/// eight values separated by blanks, decimal or behind "&h".
std::vector<Record> ReadCharacters(const DefaultData& data, const std::string& section,
                                   const TableSchema& schema);

}  // namespace fabula::store
