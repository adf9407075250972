#pragma once

#include <cstdint>
#include <string_view>

#include "authoring/document/screen_context.h"

namespace fabula::authoring {

/// The list of short descriptions in the folder of the adventure: lines "locnum: text".
inline constexpr std::string_view kShortDescFile = "ShortDesc.lis";

/// The largest list that is read, in bytes: room for far more locations than an adventure has.
inline constexpr std::uintmax_t kLargestShortDescFile = 16 * 1024 * 1024;

/// Gives the locations of the list their short descriptions, as one change "load short descriptions". Lines
/// that are no such line, name no location, or whose text no short description may be (tags, words that are
/// too long) are left out; they and the number of the others are told at the end. Without the file, or when
/// it is too large or has too many wrong lines, nothing changes, and false. Throws fabula::Error when a
/// file can't be read or written.
bool LoadShortDesc(ScreenContext& context);

}  // namespace fabula::authoring
