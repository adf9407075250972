#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace fabula::text {

using Blob = std::vector<std::byte>;

/// The value of one field of a record, or of one argument of the format language: null, a whole number
/// (truth values are 0 and 1), a floating number, text in UTF-8, or bytes. A date and time is the text
/// "yyyy-mm-dd hh:mm:ss".
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Blob>;

inline bool IsNull(const Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// The value as text: null is "", numbers in plain decimal with a point in every locale, bytes are "".
std::string ToText(const Value& value);

}  // namespace fabula::text
