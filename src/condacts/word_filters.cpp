#include "condacts/word_filters.h"

namespace fabula::condacts {

std::string OfWordTypes(std::span<const WordType> types) {
    std::string filter;
    for (const WordType type : types) {
        filter += filter.empty() ? "(voctypen=" : " or voctypen=";
        filter += std::to_string(type);
    }
    return filter + ")";
}

std::string OfWordTypes(std::initializer_list<WordType> types) {
    return OfWordTypes(std::span(types.begin(), types.size()));
}

std::string OfEntryVerbs() {
    return OfWordTypes(kEntryVerbTypes);
}

std::string ButReserved() {
    return "voctypen<>" + std::to_string(kReserved);
}

}  // namespace fabula::condacts
