#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace fabula::text {

// A date with its time of day as the adventure file holds it: "yyyy-mm-dd hh:mm:ss".

std::string StoredMoment(const platform::DateTime& moment);

/// Whether a text has that form. Its numbers may be none of a calendar.
bool IsMoment(std::string_view text);

/// nullopt for a text of another form, and for a month that is none.
std::optional<platform::DateTime> ReadMoment(std::string_view text);

}  // namespace fabula::text
