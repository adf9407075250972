#include "store/file/change_set.h"

#include <new>
#include <utility>

#include <sqlite3.h>

#include "platform/error.h"
#include "store/adventure.h"
#include "store/file/connection.h"

namespace fabula::store {
namespace {

/// A change set as the database takes it. It never writes through the pointer.
struct Bytes {
    int size;
    void* data;
};

Bytes ReadChanges(std::string_view changes) {
    return {static_cast<int>(changes.size()), const_cast<char*>(changes.data())};
}

void Check(int result, const char* doing) {
    if (result == SQLITE_NOMEM) throw std::bad_alloc();
    if (result != SQLITE_OK) {
        throw Error(std::string("Could not ") + doing + ": " + sqlite3_errstr(result) + ".");
    }
}

struct BufferCloser {
    void operator()(void* buffer) const { sqlite3_free(buffer); }
};
using Buffer = std::unique_ptr<void, BufferCloser>;

std::string Inverted(std::string_view changes) {
    const Bytes bytes = ReadChanges(changes);
    int size = 0;
    void* data = nullptr;
    const int result = sqlite3changeset_invert(bytes.size, bytes.data, &size, &data);
    const Buffer buffer(data);
    Check(result, "turn a change round");
    return std::string(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

/// Calls `use` with the table of each record of a change set, and where the iterator stands on it.
template <typename Use>
void ForEachRecord(std::string_view changes, Use use) {
    if (changes.empty()) return;
    const Bytes bytes = ReadChanges(changes);
    sqlite3_changeset_iter* iterator = nullptr;
    Check(sqlite3changeset_start(&iterator, bytes.size, bytes.data), "read a change");
    while (sqlite3changeset_next(iterator) == SQLITE_ROW) {
        const char* name = nullptr;
        int columns = 0;
        int operation = 0;
        sqlite3changeset_op(iterator, &name, &columns, &operation, nullptr);
        if (const TableEntry* table = FindTable(std::string_view(name))) use(table->number, iterator);
    }
    Check(sqlite3changeset_finalize(iterator), "read a change");
}

int RefuseConflict(void*, int, sqlite3_changeset_iter*) {
    return SQLITE_CHANGESET_ABORT;
}

}  // namespace

struct ChangeRecorder::Recording {
    ~Recording() { sqlite3session_delete(session); }
    sqlite3_session* session = nullptr;
};

ChangeRecorder::ChangeRecorder(Adventure& adventure) : recording_(std::make_unique<Recording>()) {
    Check(sqlite3session_create(adventure.connection_->Handle(), "main", &recording_->session),
          "record changes");
    Check(sqlite3session_attach(recording_->session, nullptr), "record changes");
}

ChangeRecorder::~ChangeRecorder() = default;

Connection& ChangeRecorder::ConnectionOf(Adventure& adventure) {
    return *adventure.connection_;
}

std::string ChangeRecorder::Changes() const {
    int size = 0;
    void* data = nullptr;
    const int result = sqlite3session_changeset(recording_->session, &size, &data);
    const Buffer buffer(data);
    Check(result, "record changes");
    if (size == 0) return {};
    return std::string(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

void DoAgain(Adventure& adventure, std::string_view changes) {
    if (adventure.connection_->HasMoved())
        throw Error("Could not change the records: its file is no longer where it was opened.");
    Transaction transaction(adventure);
    const Bytes bytes = ReadChanges(changes);
    const int result = sqlite3changeset_apply(adventure.connection_->Handle(), bytes.size, bytes.data,
                                              nullptr, RefuseConflict, nullptr);
    if (result == SQLITE_ABORT) {
        throw Error("Could not change the records: they are no longer as they were.");
    }
    Check(result, "change the records");
    transaction.Commit();
}

void TakeBack(Adventure& adventure, std::string_view changes) {
    DoAgain(adventure, Inverted(changes));
}

std::string Joined(std::string_view first, std::string_view second) {
    const Bytes before = ReadChanges(first);
    const Bytes after = ReadChanges(second);
    int size = 0;
    void* data = nullptr;
    const int result =
        sqlite3changeset_concat(before.size, before.data, after.size, after.data, &size, &data);
    const Buffer buffer(data);
    Check(result, "join two changes");
    if (size == 0) return {};
    return std::string(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

std::set<TableNum> TablesOf(std::string_view changes) {
    std::set<TableNum> tables;
    ForEachRecord(changes, [&](TableNum table, sqlite3_changeset_iter*) { tables.insert(table); });
    return tables;
}

std::set<TouchedRecord> RecordsOf(std::string_view changes) {
    std::set<TouchedRecord> records;
    ForEachRecord(changes, [&](TableNum table, sqlite3_changeset_iter* iterator) {
        // The store's key is the first column of every table. It stands among the old values, but for
        // records that are new.
        sqlite3_value* key = nullptr;
        if (sqlite3changeset_old(iterator, 0, &key) != SQLITE_OK || key == nullptr)
            Check(sqlite3changeset_new(iterator, 0, &key), "read a change");
        records.insert({table, sqlite3_value_int64(key)});
    });
    return records;
}

}  // namespace fabula::store
