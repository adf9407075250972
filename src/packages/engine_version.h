#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace fabula::packages {

/// The version that a program for Windows bears in its resources, "6.1.0.0", read from its bytes; nullopt
/// when there is none.
std::optional<std::string> FileVersion(std::string_view program);

/// The number in front of the first "."; 0 when it is none.
int MajorVersion(std::string_view version);

}  // namespace fabula::packages
