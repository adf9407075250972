#include "store/query/prepared_query.h"

#include <stdexcept>
#include <utility>

#include <sqlite3.h>

#include "store/file/connection.h"
#include "store/query/selection.h"

namespace fabula::store {

PreparedQuery::PreparedQuery(Connection& connection, const Selection& selection)
    : connection_(&connection),
      statement_(connection.Compile(selection.sql, "read the adventure").release()) {
    for (std::size_t i = 0; i < selection.values.size(); ++i) {
        const int parameter = static_cast<int>(i) + 1;
        if (text::IsNull(selection.values[i])) {
            parameters_.push_back(parameter);
        } else {
            Connection::Bind(statement_, parameter, selection.values[i]);
        }
    }
}

PreparedQuery::PreparedQuery(PreparedQuery&& other) noexcept
    : connection_(other.connection_),
      statement_(std::exchange(other.statement_, nullptr)),
      parameters_(std::move(other.parameters_)) {}

PreparedQuery& PreparedQuery::operator=(PreparedQuery&& other) noexcept {
    std::swap(connection_, other.connection_);
    std::swap(statement_, other.statement_);
    std::swap(parameters_, other.parameters_);
    return *this;
}

PreparedQuery::~PreparedQuery() {
    sqlite3_finalize(statement_);
}

bool PreparedQuery::First(std::initializer_list<QueryValue> values) {
    sqlite3_reset(statement_);
    if (parameters_.size() != values.size()) {
        throw std::logic_error("a prepared query was given another number of values than it has '?'");
    }
    auto parameter = parameters_.begin();
    for (const QueryValue& value : values) {
        const int at = *parameter++;
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            sqlite3_bind_int64(statement_, at, *number);
            continue;
        }
        const auto text = std::get<std::string_view>(value);
        // An empty view may have no address, which would be taken for null.
        sqlite3_bind_text64(statement_, at, text.empty() ? "" : text.data(), text.size(), SQLITE_TRANSIENT,
                            SQLITE_UTF8);
    }
    return Next();
}

bool PreparedQuery::Next() {
    if (connection_->Step(statement_, "read the adventure")) return true;
    sqlite3_reset(statement_);
    return false;
}

void PreparedQuery::Reset() {
    sqlite3_reset(statement_);
}

std::string_view PreparedQuery::Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column + 1));
    if (!text && sqlite3_errcode(connection_->Handle()) == SQLITE_NOMEM)
        connection_->Fail("read the adventure");
    return text ? std::string_view(text,
                                   static_cast<std::size_t>(sqlite3_column_bytes(statement_, column + 1)))
                : "";
}

std::int64_t PreparedQuery::Number(int column) const {
    return WithinRange(sqlite3_column_int64(statement_, column + 1));
}

}  // namespace fabula::store
