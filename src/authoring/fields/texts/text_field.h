#pragma once

#include <string>
#include <string_view>

namespace fabula::authoring {

/// A stored text as a text box holds it: its line ends are "\n", and the one blank that stands for no text
/// yet is the empty text.
std::string ToEdited(std::string_view stored);

/// What was typed into a text box, as it is stored: line-end markers, and one blank for the empty text.
std::string ToStored(std::string_view typed);

}  // namespace fabula::authoring
