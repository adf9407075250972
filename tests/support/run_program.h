#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fabula::test {

/// What a program left behind.
struct ProgramResult {
    int status = 0;  ///< as it ended with; -1 when a signal ended it
    std::string output;
    std::string errors;
};

/// Runs a program with `arguments` and `input` on its standard input, and waits for its end.
ProgramResult RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::string& input = "");

}  // namespace fabula::test
