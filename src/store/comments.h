#pragma once

#include <string_view>

namespace fabula::store {

/// The field with an author's comment to a record, in each table of records that authors make: text of any
/// length, whose lines are parted by line-end markers. Null where there is none; the game never reads it.
inline constexpr std::string_view kCommentField = "comment";

}  // namespace fabula::store
