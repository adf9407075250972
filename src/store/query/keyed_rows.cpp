#include "store/query/keyed_rows.h"

#include <stdexcept>

#include <sqlite3.h>

#include "store/file/change_set.h"

namespace fabula::store {
namespace {

constexpr const char* kReading = "read the adventure";

std::string SelectionOf(const TableSchema& schema, const std::vector<std::string_view>& fields) {
    std::string sql = "SELECT ";
    sql.append(kStoreKey);
    for (const std::string_view field : fields) {
        const auto index = schema.Find(field);
        if (!index) throw std::logic_error("a table was asked for a field that it does not have");
        sql.append(",").append(schema.fields[*index].name);
    }
    return sql.append(" FROM ").append(schema.name);
}

}  // namespace

KeyedRows::KeyedRows(Adventure& adventure, TableNum table, const std::vector<std::string_view>& fields)
    : connection_(ChangeRecorder::ConnectionOf(adventure)) {
    const std::string selection = SelectionOf(connection_.SchemaOf(table), fields);
    const std::string key(kStoreKey);
    all_ = connection_.Compile(selection + " ORDER BY " + key, kReading);
    one_ = connection_.Compile(selection + " WHERE " + key + "=?", kReading);
}

bool KeyedRows::First() {
    Reset();
    return Step(all_.get());
}

bool KeyedRows::Next() {
    return Step(all_.get());
}

bool KeyedRows::Only(std::int64_t storeKey) {
    Reset();
    sqlite3_bind_int64(one_.get(), 1, storeKey);
    return Step(one_.get());
}

void KeyedRows::Reset() {
    sqlite3_reset(all_.get());
    sqlite3_reset(one_.get());
}

bool KeyedRows::Step(sqlite3_stmt* statement) {
    current_ = statement;
    if (connection_.Step(statement, kReading)) return true;
    sqlite3_reset(statement);
    return false;
}

std::int64_t KeyedRows::Key() const {
    return sqlite3_column_int64(current_, 0);
}

std::string_view KeyedRows::Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(current_, column + 1));
    if (!text && sqlite3_errcode(connection_.Handle()) == SQLITE_NOMEM) connection_.Fail(kReading);
    if (!text) return "";
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(current_, column + 1))};
}

std::int64_t KeyedRows::Number(int column) const {
    return WithinRange(sqlite3_column_int64(current_, column + 1));
}

}  // namespace fabula::store
