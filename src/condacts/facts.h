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

    /// How many records each table holds. Records are numbered from 0, so that the highest number is one
    /// below.
    int locations = 0;
    int messages = 0;
    int objects = 0;
    int systemMessages = 0;
    int flags = 0;

    std::set<int> processes;              ///< numbers of the process tables that exist
    std::map<int, Flag> flagRecords;      ///< by number
    std::map<int, int> objectAttributes;  ///< `objattrn` by object
    std::set<int> locationsWithExits;
    WordIndex words;
};

}  // namespace fabula::condacts
