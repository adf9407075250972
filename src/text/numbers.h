#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace fabula::text {

/// The number in a piece of character data: hexadecimal behind "&h" or "&H", else decimal with an optional
/// minus. Blanks in front don't count; reading ends at the first character that is no digit, and no digit
/// at all gives 0. A number beyond 32 bits gives the nearest one within.
std::int32_t HexToValue(std::string_view text);

/// The whole number that the text consists of: decimal digits behind an optional sign, and nothing else. A
/// number beyond 64 bits gives the nearest one within.
std::optional<std::int64_t> WholeNumber(std::string_view text);

/// The same within 32 bits: decimal digits behind an optional minus. nullopt for anything else, and for a
/// number beyond.
std::optional<int> SmallNumber(std::string_view text);

/// Takes the decimal digits, behind an optional minus, at the head of `text` off it and gives their number.
/// nullopt, and `text` as it was, where there are none or the number is beyond 32 bits.
std::optional<int> TakeNumber(std::string_view& text);
/// The same within 64 bits.
std::optional<std::int64_t> TakeLongNumber(std::string_view& text);

/// The number that the text consists of: hexadecimal digits, and nothing else. nullopt for anything else,
/// and for a number beyond 32 bits.
std::optional<std::uint32_t> HexNumber(std::string_view text);

/// The real number that the text consists of: decimal digits with an optional point and exponent ("1.5e3")
/// behind an optional minus, "inf" and "nan". nullopt for anything else, and for a number that no double
/// comes near.
std::optional<double> RealNumber(std::string_view text);

}  // namespace fabula::text
