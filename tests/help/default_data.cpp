#include "default_data.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/places.h"

namespace fabula::help_test {

std::vector<std::string> SectionLines(std::string_view section) {
    std::ifstream file(test::DefaultData(), std::ios::binary);
    std::vector<std::string> lines;
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        if (line == "::END" && inside) return lines;
        if (inside) lines.push_back(line);
        if (line == "::" + std::string(section)) inside = true;
    }
    ADD_FAILURE() << "The default data has no section " << section;
    return {};
}

std::vector<std::vector<std::string>> SectionRows(std::string_view section) {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : SectionLines(section)) {
        std::vector<std::string>& columns = rows.emplace_back(1);
        for (const char c : line) {
            if (c == '|') {
                columns.emplace_back();
            } else {
                columns.back() += c;
            }
        }
    }
    return rows;
}

}  // namespace fabula::help_test
