#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "store/schema/schema.h"
#include "text/value.h"

namespace fabula::store {

/// Why `value` does not fit the field, naming table and field: "Messages.msgnum holds numbers only";
/// nullopt when it is of the field's kind and within its range or size. Null fits every field.
std::optional<std::string> FaultOf(const TableSchema& schema, const Field& field, const text::Value& value);

/// The most characters of a text that the field takes.
std::size_t LongestText(const Field& field);
std::size_t LongestText(const TableSchema& schema, std::string_view field);

/// Throws fabula::Error when there is a fault.
void CheckValue(const TableSchema& schema, const Field& field, const text::Value& value);

}  // namespace fabula::store
