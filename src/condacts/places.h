#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "condacts/numbers.h"

namespace fabula::condacts {

/// The places that are no room, as parameters and `objloc` hold them.
namespace place {

inline constexpr PlaceNumber kNotCreated{252};
inline constexpr PlaceNumber kWorn{253};
inline constexpr PlaceNumber kCarried{254};
inline constexpr PlaceNumber kHere{255};  ///< where the player is; in parameters only, never in `objloc`

/// No location bears one of these numbers; the next above is a location's again.
inline constexpr PlaceNumber kFirstSpecial = kNotCreated;
inline constexpr PlaceNumber kLastSpecial = kHere;

}  // namespace place

constexpr bool IsSpecialPlace(PlaceNumber number) {
    return number >= place::kFirstSpecial && number <= place::kLastSpecial;
}

constexpr bool IsSpecialPlace(std::int64_t number) {
    return number >= place::kFirstSpecial.value && number <= place::kLastSpecial.value;
}

/// The place that a container is for what lies in it.
constexpr PlaceNumber Inside(ObjectNumber container) {
    return PlaceNumber(container.value);
}

/// A word in capitals and the place it stands for.
struct LocationWord {
    std::string_view word;
    PlaceNumber number;
};

/// The words for them in conditions and actions.
inline constexpr LocationWord kLocationWords[] = {
    {"NOTCR", place::kNotCreated},
    {"WORN", place::kWorn},
    {"CARRIED", place::kCarried},
    {"HERE", place::kHere},
};

/// What is told of a location that a record or a line names and the game lacks, by its number as it was
/// written, and by the word that leads there: "There is not a location with a number of 5 for NORTH".
std::string NoLocationMessage(std::string_view number, std::string_view word = {});

/// What the tables of objects say of a place: "Not created.", "Worn.", "Carried.", else "In Room 5.".
std::string DescriptionOfPlace(PlaceNumber number);

}  // namespace fabula::condacts
