#pragma once

#include "store/schema.h"
#include "text/value.h"

namespace fabula::store {

/// Throws fabula::Error, naming table and field, unless `value` is of the field's kind and within its range
/// or size. Null fits every field.
void CheckValue(const TableSchema& schema, const Field& field, const text::Value& value);

}  // namespace fabula::store
