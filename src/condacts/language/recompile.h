#pragma once

#include "store/adventure.h"

namespace fabula::condacts {

/// Brings the process entries into line with a vocabulary that was changed: entries that ask for words are
/// compiled anew. A word that is gone or of another type now gives way, in the text, to another one of its
/// number, so that the entry does what it did. An entry that can't be helped keeps both its forms; its text
/// no longer compiles, which Verify tells. Gives the number of entries that have another text now.
///
/// Opens the cursor Free22. Belongs into the transaction of the change.
int RecompileEntries(store::Adventure& adventure);

}  // namespace fabula::condacts
