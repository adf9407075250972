#pragma once

#include <map>
#include <set>

#include "condacts/catalogue.h"
#include "condacts/words.h"

namespace fabula::condacts {

/// What a line of conditions and actions is checked against: the numbers of an adventure's records and the
/// few of their fields that the rules ask for. `LoadFacts` (load.h) reads them from an adventure; a test
/// fills them.
struct Facts {
    struct Flag {
        bool system = false;
        bool actionsMayChange = true;  ///< `flgchg`
    };

    Dialect dialect = Dialect::Fabula;

    // The numbers of the records that exist; there may be gaps.
    std::set<int> locations;
    std::set<int> messages;
    std::set<int> systemMessages;
    std::set<int> processes;
    std::map<int, Flag> flags;
    std::map<int, int> objects;  ///< `objattrn` by object

    std::set<int> locationsWithExits;
    WordIndex words;
};

}  // namespace fabula::condacts
