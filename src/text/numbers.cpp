#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "text/encoding/utf8.h"
#include "text/str_edit.h"

namespace fabula::text {
namespace {

struct Digits {
    std::uint64_t magnitude = 0;
    std::size_t count = 0;
};

/// The digits at the head of the text. A magnitude beyond 64 bits gives the largest.
Digits ReadDigits(std::string_view text, int base) {
    Digits digits;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), digits.magnitude, base);
    if (error == std::errc::result_out_of_range)
        digits.magnitude = std::numeric_limits<std::uint64_t>::max();
    digits.count = static_cast<std::size_t>(end - text.data());
    return digits;
}

template <class Number>
std::optional<Number> TakeDecimal(std::string_view& text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

template <class Number>
Number Clamped(std::uint64_t magnitude, bool isNegative) {
    constexpr auto kLargest = static_cast<std::uint64_t>(std::numeric_limits<Number>::max());
    if (isNegative && magnitude > kLargest) return std::numeric_limits<Number>::min();
    const auto value = static_cast<Number>(std::min(magnitude, kLargest));
    return isNegative ? static_cast<Number>(-value) : value;
}

}  // namespace

std::int32_t HexToValue(std::string_view text) {
    std::string_view rest = TrimBlanks(text);
    if (EqualsNoCase(rest.substr(0, 2), "&h"))
        return Clamped<std::int32_t>(ReadDigits(rest.substr(2), 16).magnitude, false);
    const bool isNegative = rest.substr(0, 1) == "-";
    if (isNegative) rest.remove_prefix(1);
    return Clamped<std::int32_t>(ReadDigits(rest, 10).magnitude, isNegative);
}

std::optional<std::int64_t> WholeNumber(std::string_view text) {
    const bool isNegative = text.substr(0, 1) == "-";
    if (isNegative || text.substr(0, 1) == "+") text.remove_prefix(1);
    const Digits digits = ReadDigits(text, 10);
    if (digits.count == 0 || digits.count != text.size()) return std::nullopt;
    return Clamped<std::int64_t>(digits.magnitude, isNegative);
}

std::optional<int> SmallNumber(std::string_view text) {
    const std::optional<int> number = TakeNumber(text);
    return text.empty() ? number : std::nullopt;
}

std::optional<int> TakeNumber(std::string_view& text) {
    return TakeDecimal<int>(text);
}

std::optional<std::int64_t> TakeLongNumber(std::string_view& text) {
    return TakeDecimal<std::int64_t>(text);
}

std::optional<std::uint32_t> HexNumber(std::string_view text) {
    const Digits digits = ReadDigits(text, 16);
    if (digits.count == 0 || digits.count != text.size()) return std::nullopt;
    if (digits.magnitude > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
    return static_cast<std::uint32_t>(digits.magnitude);
}

std::optional<double> RealNumber(std::string_view text) {
    const std::optional<double> number = TakeDecimal<double>(text);
    return text.empty() ? number : std::nullopt;
}

}  // namespace fabula::text
