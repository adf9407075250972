#include "condacts/places.h"

namespace fabula::condacts {

std::string DescriptionOfPlace(PlaceNumber number) {
    if (number == place::kNotCreated) return "Not created.";
    if (number == place::kWorn) return "Worn.";
    if (number == place::kCarried) return "Carried.";
    return "In Room " + std::to_string(number.value) + ".";
}

}  // namespace fabula::condacts
