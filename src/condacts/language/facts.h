#pragma once

#include <map>
#include <set>

#include "condacts/language/catalogue.h"
#include "condacts/numbers.h"
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
    std::set<PlaceNumber> locations;
    std::set<MessageNumber> messages;
    std::set<SystemMessageNumber> systemMessages;
    std::set<ProcessNumber> processes;
    std::map<FlagNumber, Flag> flags;
    std::map<ObjectNumber, int> objects;  ///< `objattrn` by object

    std::set<PlaceNumber> locationsWithExits;
    WordIndex words;
};

}  // namespace fabula::condacts
