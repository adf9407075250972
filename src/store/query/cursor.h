#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/filter/filter.h"
#include "store/query/snapshot.h"
#include "store/schema/schema.h"
#include "text/value.h"

namespace fabula::store {

class Connection;

/// One table's records as they were when the cursor was opened, in its order, to be walked both ways and
/// edited in place. An edit is pending from the first `SetField` or `AddNew` until `Update` writes it or
/// `CancelUpdate`, a move, `Find` or the next open drops it.
///
/// Fields are named without regard to case. Naming a field that the cursor does not have, or reading one
/// while it stands on no record, throws std::logic_error: the program is wrong, not its user. A failing
/// store throws fabula::Error and leaves cursor and file as they were.
class Cursor {
  public:
    Cursor() = default;
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;
    Cursor(Cursor&&) = default;
    Cursor& operator=(Cursor&&) = default;
    ~Cursor() = default;

    bool IsOpen() const { return connection_ != nullptr; }

    /// True past the last and before the first record; both are true when there are none.
    bool Eof() const { return position_ >= RowCount() || RowCount() == 0; }
    bool Bof() const { return position_ < 0 || RowCount() == 0; }

    void MoveFirst();
    void MoveLast();
    /// Moving past an end sets `Eof` or `Bof`, and moving on from there changes nothing.
    void MoveNext();
    void MovePrevious();

    int RecordCount() const { return static_cast<int>(RowCount()); }

    /// The place of the current record, counted from 1; 0 when there is none.
    int AbsolutePosition() const;
    /// Goes to a place from 1 to `RecordCount`; any other throws std::logic_error.
    void SetAbsolutePosition(int position);

    /// The value of a field of the current record, with a pending edit already in it.
    text::Value Field(std::string_view name) const { return Field(Column(name)); }
    /// The same as text ("" for null), as a whole number (0 for null), as a truth value (false for null).
    /// The text is valid until the cursor moves, is edited or opened again. A field of another class throws
    /// std::logic_error.
    std::string_view Text(std::string_view name) const { return Text(Column(name)); }
    std::int64_t Number(std::string_view name) const { return Number(Column(name)); }
    bool Truth(std::string_view name) const { return Number(Column(name)) != 0; }
    bool IsNull(std::string_view name) const;

    /// For loops: the place of a field among the cursor's columns, and the readers above by that place.
    std::size_t Column(std::string_view name) const;
    text::Value Field(std::size_t column) const;
    std::string_view Text(std::size_t column) const;
    std::int64_t Number(std::size_t column) const;

    /// The cursor's fields, in the order of its field list.
    const std::vector<store::Field>& Fields() const { return fields_; }

    /// Puts a value into the pending record. It must fit the field's type; numbers beyond the type's range
    /// and texts beyond the field's size are refused by `Update`.
    void SetField(std::string_view name, text::Value value);
    /// Starts a record with all fields null.
    void AddNew();
    /// Writes the pending record and stands on it. Without one, does nothing.
    void Update();
    void CancelUpdate();
    bool EditMode() const { return pending_.has_value(); }
    /// Deletes the current record. The cursor then stands between its neighbours: `MoveNext` goes to the
    /// one behind, `MovePrevious` to the one before.
    void Delete();

    /// Moves from the record behind the current one (or from place `start`, counted from 1) to the first
    /// that matches `criterion`; `Eof` when none does. Throws FilterError when it is not well formed.
    void Find(std::string_view criterion, std::optional<int> start = std::nullopt);

    /// Reads the records again and stands on the first. When that fails the cursor stays as it was.
    void Requery();

    /// Reads a file's bytes (at most kLargestBinary) into `field` and its path into `pathField`, both
    /// pending.
    void StoreFileInField(const std::filesystem::path& file, std::string_view field,
                          std::string_view pathField);

  private:
    friend class Adventure;

    struct Pending {
        Pending(bool added, std::size_t columns) : isNew(added), values(columns) {}

        bool isNew;
        std::vector<std::optional<text::Value>> values;  ///< by column; nullopt where nothing was set
    };

    std::int64_t RowCount() const { return static_cast<std::int64_t>(snapshot_.RowCount()); }
    std::size_t CurrentRow() const;
    const text::Value* PendingValue(std::size_t column) const;
    bool ReadsPending() const { return pending_ && pending_->isNew; }
    void Reset();
    void ReadInto(Snapshot& snapshot) const;
    std::int64_t Write();

    Connection* connection_ = nullptr;
    const TableSchema* schema_ = nullptr;
    std::vector<store::Field> fields_;
    std::vector<std::size_t> fieldIndexes_;  ///< of each column in the schema
    std::string sql_;
    std::vector<text::Value> parameters_;
    Snapshot snapshot_;
    std::int64_t position_ = 0;
    bool betweenRecords_ = false;  ///< the current record was deleted; position_ is the one behind it
    std::optional<Pending> pending_;
};

/// The largest binary value that a record may hold, in bytes.
inline constexpr std::int64_t kLargestBinary = 64 * 1024 * 1024;

}  // namespace fabula::store
