#pragma once

#include <string>
#include <string_view>

namespace fabula::terminal {

/// The difference of two texts in the unified form, with three lines of context; "" when they are equal.
/// `patch` makes the second text of the first and it. The names stand in its head.
///
/// It is the shortest difference, unless the texts differ in thousands of lines.
std::string UnifiedDiff(std::string_view before, std::string_view after, std::string_view beforeName,
                        std::string_view afterName);

}  // namespace fabula::terminal
