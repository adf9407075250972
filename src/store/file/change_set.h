#pragma once

#include <compare>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "store/schema/table_catalogue.h"

namespace fabula::store {

class Adventure;
class Connection;

/// Records what happens to the records of all tables, to be taken back or done again. It records from its
/// making to its end; recorders may overlap.
class ChangeRecorder {
  public:
    explicit ChangeRecorder(Adventure& adventure);
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;
    ~ChangeRecorder();

    /// The change set of what happened so far: bytes for the functions below, "" when nothing changed in
    /// the end. What was rolled back is not part of it.
    std::string Changes() const;

  private:
    friend class KeyedRows;
    static Connection& ConnectionOf(Adventure& adventure);

    struct Recording;
    std::unique_ptr<Recording> recording_;
};

// Both run as one transaction. They fit a file in which the records concerned stand as the change set left
// them (found them, for DoAgain); another one is left as it is, and fabula::Error says that it does not
// fit.

/// Takes the changes back.
void TakeBack(Adventure& adventure, std::string_view changes);
/// Makes the changes again.
void DoAgain(Adventure& adventure, std::string_view changes);

/// One change set that does what the two do, one after the other.
std::string Joined(std::string_view first, std::string_view second);

/// The tables whose records a change set touches.
std::set<TableNum> TablesOf(std::string_view changes);

/// A record that a change set touches, by the key that the store knows it by (keyed_rows.h).
struct TouchedRecord {
    TableNum table = TableNum::Adventure;
    std::int64_t storeKey = 0;

    friend auto operator<=>(const TouchedRecord&, const TouchedRecord&) = default;
};

/// The records that a change set adds, changes or deletes.
std::set<TouchedRecord> RecordsOf(std::string_view changes);

}  // namespace fabula::store
