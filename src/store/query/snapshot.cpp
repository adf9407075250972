#include "store/query/snapshot.h"

#include <new>
#include <string_view>

#include <sqlite3.h>

#include "store/schema/schema.h"

namespace fabula::store {

void Snapshot::Clear(std::size_t columns) {
    columns_ = columns;
    keys_.clear();
    cells_.clear();
    bytes_.clear();
}

namespace {

/// The bytes of a text or binary column. The database gives none when it had no memory to make them.
std::string_view BytesOf(sqlite3_stmt* statement, int column) {
    const void* bytes = sqlite3_column_blob(statement, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    if (bytes) return {static_cast<const char*>(bytes), size};
    if (sqlite3_errcode(sqlite3_db_handle(statement)) == SQLITE_NOMEM) throw std::bad_alloc();
    return {};
}

}  // namespace

void Snapshot::AppendRow(sqlite3_stmt* statement) {
    keys_.push_back(sqlite3_column_int64(statement, 0));
    for (std::size_t column = 0; column < columns_; ++column) {
        const int at = static_cast<int>(column) + 1;
        Cell cell;
        switch (sqlite3_column_type(statement, at)) {
            case SQLITE_INTEGER:
                cell.kind = Kind::Integer;
                cell.as.integer = sqlite3_column_int64(statement, at);
                break;
            case SQLITE_FLOAT:
                cell.kind = Kind::Real;
                cell.as.real = sqlite3_column_double(statement, at);
                break;
            case SQLITE_TEXT:
                cell = StoreBytes(Kind::Text, BytesOf(statement, at));
                break;
            case SQLITE_BLOB:
                cell = StoreBytes(Kind::Blob, BytesOf(statement, at));
                break;
            default:
                break;
        }
        cells_.push_back(cell);
    }
}

void Snapshot::AppendRow(std::int64_t key, const std::vector<text::Value>& values) {
    keys_.push_back(key);
    for (const text::Value& value : values)
        cells_.push_back(CellOf(value));
}

void Snapshot::RemoveRow(std::size_t row) {
    keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(row));
    const auto first = cells_.begin() + static_cast<std::ptrdiff_t>(row * columns_);
    cells_.erase(first, first + static_cast<std::ptrdiff_t>(columns_));
}

text::Value Snapshot::ValueAt(std::size_t row, std::size_t column) const {
    const Cell& cell = At(row, column);
    switch (cell.kind) {
        case Kind::Null:
            return {};
        case Kind::Integer:
            return cell.as.integer;
        case Kind::Real:
            return cell.as.real;
        case Kind::Text:
            return bytes_.substr(cell.as.offset, cell.length);
        case Kind::Blob: {
            const auto* bytes = reinterpret_cast<const std::byte*>(bytes_.data() + cell.as.offset);
            return text::Blob(bytes, bytes + cell.length);
        }
    }
    return {};
}

std::string_view Snapshot::TextAt(std::size_t row, std::size_t column) const {
    const Cell& cell = At(row, column);
    if (cell.kind != Kind::Text) return {};
    return std::string_view(bytes_).substr(cell.as.offset, cell.length);
}

std::int64_t Snapshot::NumberAt(std::size_t row, std::size_t column) const {
    const Cell& cell = At(row, column);
    return cell.kind == Kind::Integer ? WithinRange(cell.as.integer) : 0;
}

void Snapshot::SetValue(std::size_t row, std::size_t column, const text::Value& value) {
    cells_[row * columns_ + column] = CellOf(value);
}

Snapshot::Cell Snapshot::CellOf(const text::Value& value) {
    struct Maker {
        Snapshot& snapshot;
        Cell operator()(std::monostate) const { return {}; }
        Cell operator()(std::int64_t number) const {
            Cell cell;
            cell.kind = Kind::Integer;
            cell.as.integer = number;
            return cell;
        }
        Cell operator()(double number) const {
            Cell cell;
            cell.kind = Kind::Real;
            cell.as.real = number;
            return cell;
        }
        Cell operator()(const std::string& text) const { return snapshot.StoreBytes(Kind::Text, text); }
        Cell operator()(const text::Blob& blob) const {
            return snapshot.StoreBytes(Kind::Blob,
                                       {reinterpret_cast<const char*>(blob.data()), blob.size()});
        }
    };
    return std::visit(Maker{*this}, value);
}

Snapshot::Cell Snapshot::StoreBytes(Kind kind, std::string_view bytes) {
    Cell cell;
    cell.kind = kind;
    cell.length = static_cast<std::uint32_t>(bytes.size());
    cell.as.offset = bytes_.size();
    bytes_.append(bytes);
    return cell;
}

}  // namespace fabula::store
