#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fabula::help_test {

/// The lines of a section of the default data, without its first and its last line.
std::vector<std::string> SectionLines(std::string_view section);

/// The same, each line split into its columns.
std::vector<std::vector<std::string>> SectionRows(std::string_view section);

}  // namespace fabula::help_test
