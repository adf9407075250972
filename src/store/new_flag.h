#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/value.h"

namespace fabula::store {

class Cursor;

/// The words of `flgtype`.
inline constexpr std::string_view kSystemFlagType = "System";
inline constexpr std::string_view kUserFlagType = "User";
/// Filters of `Flags`: the flags of the user, and those of them that the author may describe.
std::string OfUserFlags();
std::string OfEditableUserFlags();
/// The filter that finds one flag of type System.
std::string SystemFlag(std::int64_t number);

/// The word of `flguse` until the author chooses one.
inline constexpr std::string_view kUnknownFlagUse = "Unknown";
/// `flgmod` of the flags whose records the author may edit; 0 for all others.
inline constexpr std::int64_t kEditableFlag = 2;

/// The fields of a flag that an action may change and of which the author has said nothing yet.
std::vector<std::pair<std::string, text::Value>> FieldsOfNewFlag(std::int64_t number,
                                                                 std::string description);
/// The same into a record that was just begun.
void FillNewFlag(Cursor& flag, std::int64_t number, std::string description);

}  // namespace fabula::store
