#include "condacts/places.h"

namespace fabula::condacts {

std::string NoLocationMessage(std::string_view number, std::string_view word) {
    // Each a whole sentence, for translators.
    if (word.empty()) return "There is not a location with a number of " + std::string(number);
    return "There is not a location with a number of " + std::string(number) + " for " + std::string(word);
}

std::string DescriptionOfPlace(PlaceNumber number) {
    if (number == place::kNotCreated) return "Not created.";
    if (number == place::kWorn) return "Worn.";
    if (number == place::kCarried) return "Carried.";
    return "In Room " + std::to_string(number.value) + ".";
}

}  // namespace fabula::condacts
