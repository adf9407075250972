#pragma once

#include <span>
#include <string>

namespace fabula::authoring {

/// What a command of a drawstring does, for a person: "Line 10 right, 20 down". `number` is the command's
/// own in the catalogue; `parameters` are as they stand in the drawstring. Empty for a command that draws
/// nothing, and where a parameter is missing or is no number.
std::string CommandInWords(int number, std::span<const std::string> parameters);

}  // namespace fabula::authoring
