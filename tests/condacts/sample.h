#pragma once

#include "condacts/language/catalogue.h"
#include "condacts/language/facts.h"

namespace fabula::condacts {

/// A catalogue of the few conditions and actions that the tests of the language need.
Catalogue SampleCatalogue();

/// An adventure of 5 locations (location 4 without exits), 6 messages, 5 objects, 54 system messages, 1025
/// flags, process tables 0 to 3 and a small vocabulary.
///
/// Object 0 is a container whose location has exits; object 1 can be worn; object 4 is a container whose
/// location has none. Flag 28 is a System flag; flag 38 may not be changed by actions.
Facts SampleFacts();

}  // namespace fabula::condacts
