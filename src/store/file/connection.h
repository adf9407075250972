#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/adventure.h"
#include "store/file/file_forms.h"
#include "store/schema/schema.h"
#include "text/value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace fabula::store {

/// More than any adventure needs.
inline constexpr std::int64_t kMostSteps = 100'000'000;
inline constexpr std::int64_t kMostMemory = std::int64_t{2} * 1024 * 1024 * 1024;

/// Marks an adventure file ("FABU") and numbers its form; both stand in the file's header.
inline constexpr std::uint32_t kApplicationId = 0x46414255;
inline constexpr std::uint32_t kFileVersion = kLatestStep;

/// Ends a prepared statement; takes nullptr too.
struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const;
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

/// The store's side of an open file: the database handle, the schema as read from the file, and the
/// statements kept prepared. Only src/store/ sees it. Every failure is a fabula::Error that says what was
/// being done.
///
/// No statement runs for more than kMostSteps steps of the database's machine, and the database takes no
/// more memory than kMostMemory in the whole program: a file that was made to hang the program is refused
/// or ends in an Error. What another program has locked is waited for, at most two seconds unless
/// `WaitForOthers` says otherwise.
class Connection {
  public:
    /// Opens the file as SQLite sees it, with everything switched off that an adventure does not need.
    /// Checks nothing yet. `doing` completes "Could not ..." when it can't be opened; without it the file
    /// is named.
    Connection(const std::filesystem::path& file, int openFlags, const std::string& doing = "");
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection();

    sqlite3* Handle() const { return handle_; }

    /// How long to wait from here on for another program that has the file locked.
    void WaitForOthers(std::chrono::milliseconds most);

    /// Runs statements that return nothing. `doing` completes "Could not ...".
    void Run(const std::string& sql, const char* doing);
    Statement Compile(const std::string& sql, const char* doing);
    /// A statement that is kept prepared for the next caller with the same text. It is reset, with no
    /// values bound.
    sqlite3_stmt* Cached(const std::string& sql);

    /// Steps to the next row; false after the last.
    bool Step(sqlite3_stmt* statement, const char* doing);
    static void Bind(sqlite3_stmt* statement, int parameter, const text::Value& value);

    std::int64_t LastInsertKey() const;
    int ChangedRows() const;

    /// Whether the file is no longer where it was opened: deleted, moved away or replaced.
    bool HasMoved() const;

    /// Throws the Error for the handle's latest failure.
    [[noreturn]] void Fail(const char* doing) const;

    /// Reads field lists and types from the `Tables` table. Tables that the file lacks have no fields; a
    /// `Tables` that does not tell of itself has its oldest ones.
    void LoadSchema();
    const TableSchema& SchemaOf(TableNum table) const;
    TableSchema& SchemaToChange(TableNum table);

    /// Every change asks first: throws std::logic_error within a read transaction, and fabula::Error when a
    /// failure (a full disk) has made the database undo the transaction that the change would be part of.
    void CheckMayChange() const;
    /// True within a transaction that may change records.
    bool IsChanging() const { return workDepth_ > 0; }

    void BeginWork();
    void CommitWork();
    void RollBackWork() noexcept;
    void BeginReading();
    void EndReading() noexcept;

  private:
    static constexpr std::size_t kStatementsKept = 64;

    std::string ReasonOf(int result) const;

    sqlite3* handle_ = nullptr;
    int workDepth_ = 0;
    int readDepth_ = 0;
    std::map<TableNum, TableSchema> schemas_;

    /// Least recently used statements go first; the front of the list is the latest.
    struct Kept {
        std::string sql;
        Statement statement;
    };
    /// Called by the database every so many steps of its machine; other than 0 ends what runs.
    static int CountSteps(void* connection);
    /// Called by the database when a statement begins to run.
    static int BeginSteps(unsigned, void* connection, void*, void*);

    std::int64_t steps_ = 0;  ///< in thousands, of the statement that began last
    std::list<Kept> kept_;
    std::unordered_map<std::string_view, std::list<Kept>::iterator> keptBySql_;
};

/// Resets a cached statement when the work with it is done, so that it holds no lock.
class StatementUse {
  public:
    explicit StatementUse(sqlite3_stmt* statement) : statement_(statement) {}
    StatementUse(const StatementUse&) = delete;
    StatementUse& operator=(const StatementUse&) = delete;
    ~StatementUse();

  private:
    sqlite3_stmt* statement_;
};

}  // namespace fabula::store
