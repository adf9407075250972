#include "store/file/change_log.h"

#include <sqlite3.h>

#include "store/file/connection.h"
#include "store/file/file_copy.h"

namespace fabula::store {
namespace {

constexpr const char* kKeeping = "keep the changes for Undo";

/// In bytes; the database has no higher limit.
constexpr int kLargestChange = 1'000'000'000;

}  // namespace

ChangeLog::ChangeLog(const std::filesystem::path& adventure) {
    const TemporaryFile file(adventure);
    connection_ = std::make_unique<Connection>(file.Path(), SQLITE_OPEN_READWRITE,
                                               "make a file beside " + adventure.string());
    // One change may hold many pictures, each as large as a field may be.
    sqlite3_limit(connection_->Handle(), SQLITE_LIMIT_LENGTH, kLargestChange);
    // It need not outlive the program, so nothing waits for the disk.
    connection_->Run(
        "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;"
        "CREATE TABLE changes(number INTEGER PRIMARY KEY, bytes BLOB)",
        kKeeping);
}

ChangeLog::~ChangeLog() = default;

std::int64_t ChangeLog::Add(const std::string& changes) {
    const Statement statement = connection_->Compile("INSERT INTO changes(bytes) VALUES(?)", kKeeping);
    // A change set that is too large would otherwise be stored as null.
    if (sqlite3_bind_blob64(statement.get(), 1, changes.data(), changes.size(), SQLITE_STATIC) != SQLITE_OK)
        connection_->Fail(kKeeping);
    connection_->Step(statement.get(), kKeeping);
    return connection_->LastInsertKey();
}

std::string ChangeLog::Get(std::int64_t number) const {
    const Statement statement = connection_->Compile("SELECT bytes FROM changes WHERE number=?", kKeeping);
    sqlite3_bind_int64(statement.get(), 1, number);
    if (!connection_->Step(statement.get(), kKeeping)) return {};
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement.get(), 0));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), 0));
    return bytes ? std::string(bytes, size) : std::string();
}

void ChangeLog::Remove(std::int64_t number) {
    const Statement statement = connection_->Compile("DELETE FROM changes WHERE number=?", kKeeping);
    sqlite3_bind_int64(statement.get(), 1, number);
    connection_->Step(statement.get(), kKeeping);
}

}  // namespace fabula::store
