#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/value.h"

struct sqlite3_stmt;

namespace fabula::store {

/// The rows of one query in memory: a table of small cells over one run of bytes, so that a thousand rows
/// cost a few allocations and a snapshot that is filled again costs none.
class Snapshot {
  public:
    /// Empties the snapshot for rows of `columns` columns. Memory is kept.
    void Clear(std::size_t columns);

    /// Appends the row that `statement` stands on. Column 0 is the record's own key, the others follow.
    void AppendRow(sqlite3_stmt* statement);
    void AppendRow(std::int64_t key, const std::vector<text::Value>& values);
    void RemoveRow(std::size_t row);

    std::size_t RowCount() const { return keys_.size(); }
    std::int64_t KeyOf(std::size_t row) const { return keys_[row]; }

    text::Value ValueAt(std::size_t row, std::size_t column) const;
    bool IsNullAt(std::size_t row, std::size_t column) const { return At(row, column).kind == Kind::Null; }
    /// "" where the cell holds no text.
    std::string_view TextAt(std::size_t row, std::size_t column) const;
    /// 0 where the cell holds no number.
    std::int64_t NumberAt(std::size_t row, std::size_t column) const;

    void SetValue(std::size_t row, std::size_t column, const text::Value& value);

  private:
    enum class Kind : std::uint32_t { Null, Integer, Real, Text, Blob };
    struct Cell {
        Kind kind = Kind::Null;
        std::uint32_t length = 0;  ///< of text and bytes
        union {
            std::int64_t integer;
            double real;
            std::size_t offset;  ///< in bytes_
        } as{0};
    };

    const Cell& At(std::size_t row, std::size_t column) const { return cells_[row * columns_ + column]; }
    Cell CellOf(const text::Value& value);
    Cell StoreBytes(Kind kind, std::string_view bytes);

    std::size_t columns_ = 0;
    std::vector<std::int64_t> keys_;
    std::vector<Cell> cells_;
    std::string bytes_;
};

}  // namespace fabula::store
