#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace fabula::condacts {

/// What a number of a game names. A number of one kind does not turn into one of another by itself, nor a
/// plain number into any: whoever takes a flag's value for a place says so.
template <class Kind>
struct Numbered {
    int value = 0;

    constexpr Numbered() = default;
    constexpr explicit Numbered(int number) : value(number) {}
    friend constexpr auto operator<=>(const Numbered&, const Numbered&) = default;
};

/// A location, a container by its object's number, or one of the places that are no room (places.h).
using PlaceNumber = Numbered<struct PlaceKind>;
using ObjectNumber = Numbered<struct ObjectKind>;
using FlagNumber = Numbered<struct FlagKind>;
using ProcessNumber = Numbered<struct ProcessKind>;
/// `vocnum`: what a word means, shared by synonyms. kNoWordNumber (words.h) is no word.
using WordNumber = Numbered<struct WordKind>;
using MessageNumber = Numbered<struct MessageKind>;
using SystemMessageNumber = Numbered<struct SystemMessageKind>;

/// What a running game can hold: 16 bits with a sign.
inline constexpr int kLowestNumber = std::numeric_limits<std::int16_t>::min();
inline constexpr int kHighestNumber = std::numeric_limits<std::int16_t>::max();

constexpr bool FitsNumber(std::int64_t value) {
    return value >= kLowestNumber && value <= kHighestNumber;
}

}  // namespace fabula::condacts
