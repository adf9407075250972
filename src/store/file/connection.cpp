#include "store/file/connection.h"

#include <stdexcept>

#include <sqlite3.h>

#include "store/filter/filter.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

std::string_view TextArgument(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : "";
}

int CompareForSqlite(void*, int leftLength, const void* left, int rightLength, const void* right) {
    return text::CompareNoCase({static_cast<const char*>(left), static_cast<std::size_t>(leftLength)},
                               {static_cast<const char*>(right), static_cast<std::size_t>(rightLength)});
}

void MatchesLikeForSqlite(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_int(context, 0);
    sqlite3_result_int(context, MatchesLike(TextArgument(arguments[0]), TextArgument(arguments[1])));
}

constexpr int kMostColumns = 200;

struct Limit {
    int what;
    int most;
};

/// Far above what an adventure needs, far below what would hang the machine.
constexpr Limit kLimits[] = {
    {SQLITE_LIMIT_LENGTH, static_cast<int>(kLargestBinary) + 1024 * 1024},
    {SQLITE_LIMIT_SQL_LENGTH, 1024 * 1024},
    {SQLITE_LIMIT_COLUMN, kMostColumns},
    {SQLITE_LIMIT_EXPR_DEPTH, 1000},
    {SQLITE_LIMIT_COMPOUND_SELECT, 5},
    {SQLITE_LIMIT_ATTACHED, 1},  // a copy is written through one attached file
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
};

/// How long to wait for another program that has the file locked.
constexpr std::chrono::milliseconds kPatience(2000);

/// After how many steps they are counted.
constexpr int kStepsAtOnce = 1000;

std::string WorkName(int depth) {
    return "work" + std::to_string(depth);
}

}  // namespace

void StatementCloser::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

StatementUse::~StatementUse() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

Connection::Connection(const std::filesystem::path& file, int openFlags, const std::string& doing) {
    if (sqlite3_open_v2(file.c_str(), &handle_, openFlags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        const std::string why = handle_ ? sqlite3_errmsg(handle_) : "out of memory";
        sqlite3_close(handle_);
        throw Error("Could not " + (doing.empty() ? "open " + file.string() : doing) + ": " + why + ".");
    }
    sqlite3_extended_result_codes(handle_, 1);
    WaitForOthers(kPatience);
    sqlite3_progress_handler(handle_, kStepsAtOnce, CountSteps, this);
    sqlite3_trace_v2(handle_, SQLITE_TRACE_STMT, BeginSteps, this);
    if (sqlite3_hard_heap_limit64(-1) == 0) sqlite3_hard_heap_limit64(kMostMemory);
    for (const Limit& limit : kLimits)
        sqlite3_limit(handle_, limit.what, limit.most);
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    for (const int option :
         {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW,
          SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL}) {
        sqlite3_db_config(handle_, option, 0, nullptr);
    }
    sqlite3_create_collation_v2(handle_, "fabula_nocase", SQLITE_UTF8, nullptr, CompareForSqlite, nullptr);
    sqlite3_create_function_v2(handle_, "fabula_like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               MatchesLikeForSqlite, nullptr, nullptr, nullptr);
}

Connection::~Connection() {
    keptBySql_.clear();
    kept_.clear();
    sqlite3_close_v2(handle_);
}

int Connection::CountSteps(void* connection) {
    return ++static_cast<Connection*>(connection)->steps_ > kMostSteps / kStepsAtOnce;
}

int Connection::BeginSteps(unsigned, void* connection, void*, void*) {
    static_cast<Connection*>(connection)->steps_ = 0;
    return 0;
}

void Connection::WaitForOthers(std::chrono::milliseconds most) {
    sqlite3_busy_timeout(handle_, static_cast<int>(most.count()));
}

bool Connection::HasMoved() const {
    int moved = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

std::string Connection::ReasonOf(int result) const {
    if (result == SQLITE_READONLY_DBMOVED) return "its file is no longer where it was opened";
    switch (result & 0xff) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "it is in use by another program";
        case SQLITE_READONLY:
            return "it can only be read";
        case SQLITE_INTERRUPT:
            return "it takes more steps than any adventure needs";
        case SQLITE_NOMEM:
            return "there is not enough memory";
        default:
            return sqlite3_errmsg(handle_);
    }
}

void Connection::Fail(const char* doing) const {
    throw Error(std::string("Could not ") + doing + ": " + ReasonOf(sqlite3_extended_errcode(handle_)) +
                ".");
}

void Connection::Run(const std::string& sql, const char* doing) {
    if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail(doing);
}

Statement Connection::Compile(const std::string& sql, const char* doing) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(handle_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                           &statement, nullptr) != SQLITE_OK) {
        Fail(doing);
    }
    return Statement(statement);
}

sqlite3_stmt* Connection::Cached(const std::string& sql) {
    const auto found = keptBySql_.find(sql);
    if (found != keptBySql_.end()) {
        kept_.splice(kept_.begin(), kept_, found->second);
        // A statement still in use further up (a cursor that reads while another is opened) is not shared.
        if (!sqlite3_stmt_busy(found->second->statement.get())) return found->second->statement.get();
        keptBySql_.erase(found);
    }
    if (kept_.size() >= kStatementsKept && !sqlite3_stmt_busy(kept_.back().statement.get())) {
        const auto oldest = keptBySql_.find(kept_.back().sql);
        if (oldest != keptBySql_.end() && oldest->second == std::prev(kept_.end()))
            keptBySql_.erase(oldest);
        kept_.pop_back();
    }
    kept_.push_front({sql, Compile(sql, "read the adventure")});
    keptBySql_[kept_.front().sql] = kept_.begin();
    return kept_.front().statement.get();
}

bool Connection::Step(sqlite3_stmt* statement, const char* doing) {
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) Fail(doing);
    return false;
}

void Connection::Bind(sqlite3_stmt* statement, int parameter, const text::Value& value) {
    struct Binder {
        sqlite3_stmt* statement;
        int parameter;
        int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
        int operator()(std::int64_t number) const {
            return sqlite3_bind_int64(statement, parameter, number);
        }
        int operator()(double number) const { return sqlite3_bind_double(statement, parameter, number); }
        int operator()(const std::string& text) const {
            return sqlite3_bind_text64(statement, parameter, text.data(), text.size(), SQLITE_TRANSIENT,
                                       SQLITE_UTF8);
        }
        int operator()(const text::Blob& bytes) const {
            // No bytes have no address, which would be taken for null.
            if (bytes.empty()) return sqlite3_bind_zeroblob(statement, parameter, 0);
            return sqlite3_bind_blob64(statement, parameter, bytes.data(), bytes.size(), SQLITE_TRANSIENT);
        }
    };
    // A value that is too large would otherwise be stored as null.
    if (std::visit(Binder{statement, parameter}, value) != SQLITE_OK) {
        throw Error(std::string("Could not use a value: ") + sqlite3_errmsg(sqlite3_db_handle(statement)) +
                    ".");
    }
}

std::int64_t Connection::LastInsertKey() const {
    return sqlite3_last_insert_rowid(handle_);
}

int Connection::ChangedRows() const {
    return sqlite3_changes(handle_);
}

void Connection::LoadSchema() {
    for (const TableEntry& table : AllTables())
        schemas_[table.number] = {std::string(table.name), {}};
    const bool hasKey = sqlite3_table_column_metadata(handle_, "main", "Tables", "tablekey", nullptr,
                                                      nullptr, nullptr, nullptr, nullptr) == SQLITE_OK;
    const std::string order = hasKey ? "tablekey" : std::string(kStoreKey);
    const auto statement =
        Compile("SELECT tablenum, fieldname, fieldtype, fieldsize FROM Tables ORDER BY tablenum, " + order +
                    " LIMIT " + std::to_string(kMostColumns * AllTables().size()),
                "read the list of fields");
    while (Step(statement.get(), "read the list of fields")) {
        const auto number = static_cast<TableNum>(sqlite3_column_int(statement.get(), 0));
        const auto schema = schemas_.find(number);
        const auto* name = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 1));
        const auto* tag = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 2));
        const auto type = FieldTypeFromTag(tag ? tag : "");
        if (schema == schemas_.end() || !name || !type) continue;
        // No table has so many columns, so this list is wrong, and is found to be when it is compared.
        if (schema->second.fields.size() > kMostColumns || schema->second.Find(name)) continue;
        schema->second.fields.push_back({name, *type, sqlite3_column_int(statement.get(), 3)});
    }
    TableSchema& tables = schemas_[TableNum::Tables];
    if (tables.fields.empty()) tables = OldestTablesSchema();
}

const TableSchema& Connection::SchemaOf(TableNum table) const {
    return schemas_.at(table);
}

TableSchema& Connection::SchemaToChange(TableNum table) {
    return schemas_[table];
}

void Connection::CheckMayChange() const {
    if (workDepth_ == 0 && readDepth_ > 0) throw std::logic_error("a change inside a read transaction");
    if (workDepth_ > 0 && sqlite3_get_autocommit(handle_)) {
        throw Error("Could not write to the adventure: an earlier failure has undone the whole step.");
    }
}

void Connection::BeginWork() {
    CheckMayChange();
    Run(workDepth_ == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT " + WorkName(workDepth_),
        "write to the adventure");
    ++workDepth_;
}

void Connection::CommitWork() {
    const int depth = workDepth_ - 1;
    Run(depth == 0 ? "COMMIT" : "RELEASE " + WorkName(depth), "write to the adventure");
    workDepth_ = depth;
}

void Connection::RollBackWork() noexcept {
    --workDepth_;
    // After some failures (a full disk) the store has rolled back by itself, and there is nothing left to
    // undo.
    if (sqlite3_get_autocommit(handle_)) return;
    const std::string name = WorkName(workDepth_);
    const std::string sql = workDepth_ == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name;
    // Should even this fail, the journal stays and the next opening undoes the work.
    sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
}

void Connection::BeginReading() {
    if (readDepth_ == 0 && workDepth_ == 0) Run("BEGIN", "read the adventure");
    ++readDepth_;
}

void Connection::EndReading() noexcept {
    --readDepth_;
    if (readDepth_ > 0 || workDepth_ > 0) return;
    sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr);  // ends a lock; nothing was written
}

}  // namespace fabula::store
