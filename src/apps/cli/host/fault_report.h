#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "interchange/shared/job_status.h"

namespace fabula::cli {

/// "3 faults." and "1 fault."
std::string CountOf(const std::vector<interchange::Fault>& faults);

/// Adds --json to a verb that tells faults.
void AddJsonFlag(CLI::App& verb, bool& json);

/// The faults on standard output, as one JSON array of objects with "message" and, where they are known,
/// "file", "line", "column" and "entry".
void PrintAsJson(const std::vector<interchange::Fault>& faults);

}  // namespace fabula::cli
