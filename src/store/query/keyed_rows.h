#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "store/file/connection.h"

namespace fabula::store {

/// A table's records together with the keys that the store knows them by, as change sets name them
/// (`RecordsOf`). Columns count from 0 in the order of `fields`; each must be a field of the table.
///
///     KeyedRows rows(adventure, TableNum::Messages, {"msgnum", "msgmsg"});
///     for (bool more = rows.First(); more; more = rows.Next()) Use(rows.Key(), rows.Number(0));
///
/// Rows that have not been read to their end keep the file locked for reading. Throws fabula::Error when
/// the file can't be read. Must not outlive the adventure.
class KeyedRows {
  public:
    KeyedRows(Adventure& adventure, TableNum table, const std::vector<std::string_view>& fields);

    /// All records, in the order of their keys. False when there is none (any more).
    bool First();
    bool Next();
    /// The record with this key alone; false when there is none.
    bool Only(std::int64_t storeKey);
    void Reset();

    std::int64_t Key() const;
    /// A column of the current record: "" and 0 for null. The text is valid until the next call that moves.
    std::string_view Text(int column) const;
    std::int64_t Number(int column) const;

  private:
    bool Step(sqlite3_stmt* statement);

    Connection& connection_;
    Statement all_;
    Statement one_;
    sqlite3_stmt* current_ = nullptr;
};

}  // namespace fabula::store
