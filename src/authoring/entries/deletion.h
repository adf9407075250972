#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/schema/table_catalogue.h"

namespace fabula::authoring {

/// A record that goes with the one that is deleted, or only loses what it says of it.
struct Affected {
    store::TableNum table = store::TableNum::ProcessTables;
    int key = 0;
    bool goes = false;

    friend bool operator==(const Affected&, const Affected&) = default;
};

/// A record that is about to be deleted. Nothing speaks against it but what names it.
struct Deletion {
    store::TableNum table = store::TableNum::Messages;
    int key = 0;
    std::vector<Affected> affected = {};  ///< if the author agrees to it later
    std::string synonym = {};  ///< of a word: another of its number and type, which its uses go on with
};

/// Shows the author what uses a record, before any question about it; false when it is to stay. Who knows
/// the uses gives it (desk/search/deletion_uses.h).
using BeforeDelete = std::function<bool(const Deletion& deletion)>;

}  // namespace fabula::authoring
