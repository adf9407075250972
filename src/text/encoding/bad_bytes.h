#pragma once

#include <string>
#include <string_view>

namespace fabula::text {

/// The text with U+FFFD in place of each byte that is no UTF-8: names of files may hold any bytes.
std::string WithoutBadBytes(std::string_view bytes);

}  // namespace fabula::text
