#pragma once

#include <string>
#include <string_view>

namespace fabula::authoring {

/// The longest brief text, in characters.
inline constexpr int kLongestBriefText = 60;

/// A text of the game as lists show it: its beginning, on one line and without markup. `otherwise` stands
/// in for a text that says nothing.
std::string BriefText(std::string_view text, std::string_view otherwise = "");

}  // namespace fabula::authoring
