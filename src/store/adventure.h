#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/error.h"
#include "store/adventure_kind.h"
#include "store/filter/filter.h"
#include "store/query/cursor.h"
#include "store/query/prepared_query.h"
#include "store/schema/schema.h"
#include "store/schema/table_catalogue.h"

namespace fabula::store {

class ChangeLock;
class Connection;

/// Why a file was refused.
enum class Refusal {
    Missing,
    NotAnAdventure,
    Damaged,
    NewerVersion,
    OlderVersion,
    InUse,
    TooLarge,
    TooSlow,          ///< reading it takes more steps or memory than any adventure needs
    WriteAheadLog,    ///< another program has given it a log that this one does not keep
    OpenForChange,    ///< for change, while another program has it so
    CannotBeWritten,  ///< for change, where file or folder can only be read
};

/// A file that was not opened. It is byte for byte as it was.
class OpenError : public Error {
  public:
    OpenError(Refusal reason, const std::string& message) : Error(message), reason_(reason) {}
    Refusal Reason() const { return reason_; }

  private:
    Refusal reason_;
};

enum class OpenMode { ReadWrite, ReadOnly };

/// Whether a file may be one of an older program, which lacks tables and fields. What works with such a
/// file has to ask for what it reads; upgrades/ alone does.
enum class Ages { Current, Any };

/// What the latest `OpenTable` on a table number was.
struct TableInfo {
    std::string tablename;   ///< for messages; of a free cursor the word behind "from"
    std::string tabledesc;   ///< a caption; only `Sounds` has one
    std::string lastselect;  ///< field list
    std::string lastwhere;   ///< " where " and the filter, or empty
    std::string lastorder;   ///< " order by " and the order, or empty
};

/// The five order clauses that an adventure keeps for itself, as in the settings record.
struct SortOrders {
    std::string objects = "objnum";
    std::string vocabulary = "voctypen, vocnum, word";
    std::string tables = "tablenum, fieldname";
    std::string condacts = "canum";
    std::string commands = "conum";
};

/// One open adventure file: its connection, one long-lived cursor for each table number, and the settings
/// that are in force. Two adventures may be open side by side; an Adventure belongs to one thread.
///
/// Closing is destruction: pending edits are dropped, and the file is then one file, free to be moved.
class Adventure {
  public:
    /// Opens a file after checking it (see file_check.h). Throws OpenError when it is refused.
    static std::unique_ptr<Adventure> Open(const std::filesystem::path& file,
                                           OpenMode mode = OpenMode::ReadWrite, Ages ages = Ages::Current);

    /// A copy of the adventure in memory, which may be changed and is gone when it is closed. Its file is
    /// still the one that it was read from, for the paths that start there.
    std::unique_ptr<Adventure> CopyInMemory() const;
    /// From here on every change is refused with an Error.
    void ForbidChanges();
    /// How long to wait from here on for another program that has the file locked; two seconds at first.
    void WaitForOthers(std::chrono::milliseconds most);

    /// Opens a file to be worked on: it is marked as open for change as long as this lives, so that a
    /// second opening for change is refused (OpenForChange), and so is a file or folder that can only be
    /// read (CannotBeWritten).
    static std::unique_ptr<Adventure> OpenForChange(const std::filesystem::path& file,
                                                    Ages ages = Ages::Current);

    Adventure(const Adventure&) = delete;
    Adventure& operator=(const Adventure&) = delete;
    ~Adventure();

    const std::filesystem::path& CurrentFile() const { return file_; }
    /// The folder of `CurrentFile`; relative paths of pictures and games start here.
    std::filesystem::path GameDir() const { return file_.parent_path(); }

    /// Of the settings record, as of opening or the latest `ReadSettings`. What a file of an older program
    /// lacks is empty or off.
    const std::string& AdventureType() const { return type_; }            ///< "Fabula", "VEL" or "Marlo"
    const std::string& AdventureTypeLower() const { return typeLower_; }  ///< the same in lower case
    AdventureKind Kind() const { return AdventureKindOf(type_); }
    bool GraphicsOn() const { return graphics_; }
    bool CharSetsOn() const { return charSets_; }
    /// Reads type, switches and sort orders from the settings record again.
    void ReadSettings();

    SortOrders& Sorts() { return sorts_; }
    const SortOrders& Sorts() const { return sorts_; }

    /// Opens the cursor of a table number on a selection of records and returns it; a cursor that was open
    /// on the number is replaced and its pending edit lost.
    ///
    /// `fields` is a list of fields, "*" for all, or "def" or "default" for "*". A free cursor takes the
    /// text behind the word "select": "* from vocabulary", with an optional "where" and "order by" of its
    /// own. `where` is a filter (filter.h). Without `order` the table's default order applies, for the
    /// tables with a sort order of their own that of `Sorts`. Records that an order leaves level stand in
    /// the order of their creation.
    ///
    /// A number without a cursor (13, 20, 26 to 29) does nothing: the cursor returned is not open. Throws
    /// FilterError for a bad list, filter or order, and fabula::Error when the file can't be read.
    Cursor& OpenTable(TableNum table, std::string_view fields,
                      std::optional<std::string_view> where = std::nullopt,
                      std::optional<std::string_view> order = std::nullopt);

    /// The cursor of a table number as the latest `OpenTable` left it.
    Cursor& Table(TableNum table);

    const TableInfo& Info(TableNum table) const;

    /// Keeps a selection prepared for many look-ups; `where` may hold "?" in place of values. See
    /// prepared_query.h. The query must not outlive the adventure.
    PreparedQuery Prepare(TableNum table, std::string_view fields, std::string_view where,
                          std::optional<std::string_view> order = std::nullopt);

    /// The fields of a table as the file has them. `table` names a table, not a free cursor.
    const TableSchema& Schema(TableNum table) const;

    /// Deletes the records of a table that match `where`, all without one. Returns how many.
    int DeleteFrom(TableNum table, std::optional<std::string_view> where = std::nullopt);

    /// Writes a copy of the adventure to `target`, which is replaced only when the copy is complete,
    /// checked and on the disk. Pending edits are not part of it. Throws fabula::Error and leaves `target`
    /// as it was; the adventure's own file is no target. Not to be called within a Transaction.
    void SaveCopy(const std::filesystem::path& target);

  private:
    friend class Transaction;
    friend class ReadTransaction;
    friend class ChangeRecorder;
    friend class SchemaChange;
    friend void DoAgain(Adventure& adventure, std::string_view changes);

    explicit Adventure(std::filesystem::path file, std::unique_ptr<Connection> connection);

    std::string DefaultOrder(TableNum table) const;

    std::filesystem::path file_;
    std::unique_ptr<ChangeLock> lock_;  ///< of OpenForChange
    std::unique_ptr<Connection> connection_;
    std::string type_;
    std::string typeLower_;
    bool graphics_ = false;
    bool charSets_ = false;
    SortOrders sorts_;
    std::array<Cursor, kHighestTable + 1> cursors_;
    std::array<TableInfo, kHighestTable + 1> infos_;
};

/// Bulk work as one step: what was written is kept by `Commit` and undone without it. Transactions nest; an
/// inner one that is committed is kept only if the outer one is. Cursors keep what they read in a
/// transaction that was rolled back; open them again.
class Transaction {
  public:
    explicit Transaction(Adventure& adventure);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    /// Throws fabula::Error when the file can't be written; the work is then undone.
    void Commit();

  private:
    Connection& connection_;
    bool open_ = true;
};

/// Many look-ups as one step: within it the file is locked for reading once, not once for each look-up. A
/// change within it that is not also within a Transaction throws std::logic_error.
class ReadTransaction {
  public:
    explicit ReadTransaction(Adventure& adventure);
    ReadTransaction(const ReadTransaction&) = delete;
    ReadTransaction& operator=(const ReadTransaction&) = delete;
    ~ReadTransaction();

  private:
    Connection& connection_;
};

}  // namespace fabula::store
