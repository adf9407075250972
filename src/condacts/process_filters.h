#pragma once

#include <string>
#include <string_view>

namespace fabula::condacts {

/// A filter of the process tables that not every game has, by the field that numbers the tables:
/// "estype>2".
std::string BehindFixedProcesses(std::string_view field);

}  // namespace fabula::condacts
