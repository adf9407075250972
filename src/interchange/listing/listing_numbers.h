#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace fabula::interchange {

// Small forms of numbers in the listings of the external decompilers.

/// The over and inverse bits of a drawing command: "00" gives two blanks, "01" " i", "10" "o ", "11" "oi";
/// any other text gives the empty one.
std::string_view OIConvert(std::string_view bits);

/// A relative number as a sign ("-" or a blank) and three digits with zeros in front: " 012", "-007".
std::string ConvRel(int number);

/// One row of a character, mirrored.
std::uint8_t ReverseFont(std::uint8_t row);

}  // namespace fabula::interchange
