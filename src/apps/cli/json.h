#pragma once

#include <nlohmann/json.hpp>

namespace fabula::cli {

/// What verbs print as JSON: its members stand in the order in which they were put in.
using Json = nlohmann::ordered_json;

/// `list` on standard output, indented by two and in ASCII; what is no UTF-8 is shown as U+FFFD.
void PrintList(const Json& list);

}  // namespace fabula::cli
