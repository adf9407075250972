#include "interchange/listing/listing_numbers.h"

#include <cstdlib>

#include "text/format.h"

namespace fabula::interchange {

std::string_view OIConvert(std::string_view bits) {
    if (bits == "00") return "  ";
    if (bits == "01") return " i";
    if (bits == "10") return "o ";
    if (bits == "11") return "oi";
    return "";
}

std::string ConvRel(int number) {
    return (number < 0 ? "-" : " ") + text::FormatText("%z3", {std::int64_t{std::abs(number)}});
}

std::uint8_t ReverseFont(std::uint8_t row) {
    unsigned mirrored = 0;
    for (unsigned bit = 0; bit < 8; ++bit) {
        mirrored = mirrored << 1U | (row >> bit & 1U);
    }
    return static_cast<std::uint8_t>(mirrored);
}

}  // namespace fabula::interchange
