#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "store/adventure.h"

namespace fabula::interchange {

/// A table as an importer fills it: each record found or added by its number (store::KeyField), without a
/// search of the table for each. It stands on the table's main cursor, which nobody else may open
/// meanwhile. Of records with one number the first counts.
class KeyedTable {
  public:
    KeyedTable(store::Adventure& adventure, store::TableNum table);
    /// By the field that the file itself marks as the key.
    KeyedTable(store::Adventure& adventure, store::TableNum table, std::string keyField);

    bool Has(std::int64_t key) const { return positions_.contains(key); }
    /// The highest number; -1 when the table is empty.
    std::int64_t HighestKey() const { return positions_.empty() ? -1 : positions_.rbegin()->first; }

    /// Stands on the record of this number, which must exist.
    store::Cursor& GoTo(std::int64_t key);
    /// Stands on the record of this number; without one starts a new record that holds nothing but the
    /// number.
    store::Cursor& GoToOrAdd(std::int64_t key);
    /// Starts a new record, whether the number exists or not.
    store::Cursor& Add(std::int64_t key);
    /// Writes what was set.
    void Update();

    store::Cursor& Record() { return cursor_; }

  private:
    store::Cursor& cursor_;
    std::string keyField_;
    std::int64_t key_ = 0;
    std::map<std::int64_t, int> positions_;  ///< places in the cursor, from 1
};

}  // namespace fabula::interchange
