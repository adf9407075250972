#include "condacts/word_filters.h"

namespace fabula::condacts {

std::string OfWordTypes(std::initializer_list<WordType> types) {
    std::string filter;
    for (const WordType type : types) {
        filter += filter.empty() ? "(voctypen=" : " or voctypen=";
        filter += std::to_string(type);
    }
    return filter + ")";
}

std::string OfEntryVerbs() {
    return OfWordTypes({kVerb, kNoun, kReserved});
}

std::string ButReserved() {
    return "voctypen<>" + std::to_string(kReserved);
}

}  // namespace fabula::condacts
