#include "store/file/file_check.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <optional>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/whole_file.h"
#include "store/file/connection.h"
#include "text/fields.h"

namespace fabula::store {
namespace {

/// Where the file's header keeps what is read here; all numbers are big-endian.
constexpr std::size_t kHeaderSize = 100;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};
constexpr std::size_t kWriteVersionAt = 18;
constexpr std::size_t kReadVersionAt = 19;
constexpr std::size_t kUserVersionAt = 60;
constexpr std::size_t kApplicationIdAt = 68;
/// Read and write version of a file with a rollback journal.
constexpr char kRollbackJournal = 1;
constexpr char kWriteAheadLog = 2;

struct IndexEntry {
    TableNum table;
    std::string_view fields;
};

/// The look-ups that are made often.
constexpr IndexEntry kIndexes[] = {
    {TableNum::Locations, "locnum"},     {TableNum::Messages, "msgnum"},
    {TableNum::Objects, "objnum"},       {TableNum::ProcessTables, "canum"},
    {TableNum::ProcessTables, "estype"}, {TableNum::SystemMessages, "smsgnum"},
    {TableNum::Vocabulary, "word"},      {TableNum::Vocabulary, "vocnum"},
    {TableNum::Flags, "flgnum"},         {TableNum::CondActs, "canum"},
    {TableNum::CondActs, "caname"},      {TableNum::Codes, "codenum"},
    {TableNum::Codes, "FabulaTag"},      {TableNum::Characters, "charkey"},
    {TableNum::Pictures, "locnum"},
};

/// The end of a journal that belongs to a change of several files at once.
constexpr std::string_view kSuperJournalMark{"\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8};

/// The fields of an index that are text, and so are ordered without regard to case.
constexpr std::string_view kTextIndexes[] = {"word", "caname", "FabulaTag"};

std::uint32_t BigEndian(std::string_view header, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(header[at + i]);
    return number;
}

/// The header of an adventure file; empty for what is none.
std::string ReadHeader(const std::filesystem::path& file) {
    std::string header = platform::ReadStartOfFile(file, kHeaderSize, "open " + file.string());
    const bool ours = header.size() == kHeaderSize && header.starts_with(kMagic) &&
                      BigEndian(header, kApplicationIdAt) == kApplicationId;
    return ours ? header : std::string();
}

void CheckHeader(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) Refuse(Refusal::Missing, file);
    if (!std::filesystem::is_regular_file(file, error)) Refuse(Refusal::NotAnAdventure, file);
    if (std::filesystem::file_size(file, error) > kLargestFile) Refuse(Refusal::TooLarge, file);
    const std::string header = ReadHeader(file);
    if (header.empty()) Refuse(Refusal::NotAnAdventure, file);
    if (BigEndian(header, kUserVersionAt) > kFileVersion) Refuse(Refusal::NewerVersion, file);
    const auto log = std::filesystem::path(file) += "-wal";
    const bool hasLog = std::filesystem::exists(std::filesystem::symlink_status(log, error));
    if (hasLog || (header[kWriteVersionAt] == kWriteAheadLog && header[kReadVersionAt] == kWriteAheadLog))
        Refuse(Refusal::WriteAheadLog, file);
    if (header[kWriteVersionAt] != kRollbackJournal || header[kReadVersionAt] != kRollbackJournal) {
        Refuse(Refusal::Damaged, file);
    }
}

/// Whether what lies in the place of the file's journal is no file, on which the database might wait
/// without end, or names a further journal. None of this program's does, and the database would delete the
/// file that is named there.
bool HasForeignJournal(const std::filesystem::path& file) {
    const auto journal = std::filesystem::path(file) += "-journal";
    std::error_code error;  // what can't be looked at is none
    const auto status = std::filesystem::symlink_status(journal, error);
    if (error) return false;
    if (!std::filesystem::is_regular_file(status)) return true;
    std::ifstream stream(journal, std::ios::binary);
    std::array<char, kSuperJournalMark.size()> end{};
    stream.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    stream.read(end.data(), end.size());
    return stream && std::string_view(end.data(), end.size()) == kSuperJournalMark;
}

std::string TextColumn(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text ? text : "";
}

constexpr std::string_view kTableTail = ") STRICT";
constexpr std::string_view kColumnSeparator = ", ";

/// What the statement that makes a table begins with, its key included.
std::string TableHead(const std::string& table) {
    return "CREATE TABLE " + table + " (" + std::string(kStoreKey) + " INTEGER PRIMARY KEY";
}

bool IsColumnType(std::string_view type) {
    return type == "INTEGER" || type == "REAL" || type == "TEXT" || type == "BLOB";
}

struct Column {
    std::string name;
    std::string type;
};

/// The columns of each table behind its key.
using ColumnsByTable = std::map<std::string, std::vector<Column>>;

/// The columns of a table as the statement that made it declares them; nullopt for a statement that
/// declares anything but a name and a type for each.
std::optional<std::vector<Column>> PlainColumns(const std::string& table, std::string_view sql) {
    const std::string head = TableHead(table);
    if (!sql.starts_with(head) || !sql.substr(head.size()).ends_with(kTableTail)) return std::nullopt;
    sql = sql.substr(head.size(), sql.size() - head.size() - kTableTail.size());
    const std::vector<std::string_view> declared = text::Split(sql, kColumnSeparator);
    if (!declared.front().empty()) return std::nullopt;  // what stands behind the key
    std::vector<Column> columns;
    for (std::size_t i = 1; i < declared.size(); ++i) {
        const std::string_view name = declared[i].substr(0, declared[i].find(' '));
        const std::string_view type = declared[i].substr(std::min(name.size() + 1, declared[i].size()));
        if (!IsFieldName(name) || !IsColumnType(type)) return std::nullopt;
        columns.push_back({std::string(name), std::string(type)});
    }
    return columns;
}

/// Whether there are the tables and indexes of an adventure and nothing else; `columns` takes what the
/// tables hold.
bool IsPlainSchema(Connection& connection, ColumnsByTable& columns) {
    const std::vector<std::string> indexes = CreateIndexSql();
    const Statement entries =
        connection.Compile("SELECT type, name, sql FROM sqlite_schema", "check the file");
    while (connection.Step(entries.get(), "check the file")) {
        const std::string type = TextColumn(entries.get(), 0);
        const std::string name = TextColumn(entries.get(), 1);
        const std::string sql = TextColumn(entries.get(), 2);
        if (type == "table") {
            const TableEntry* table = FindTable(name);
            if (!table || table->name != name) return false;
            auto declared = PlainColumns(name, sql);
            if (!declared) return false;
            columns[name] = std::move(*declared);
        } else if (type != "index" || std::find(indexes.begin(), indexes.end(), sql) == indexes.end()) {
            return false;
        }
    }
    return true;
}

std::int64_t PragmaNumber(Connection& connection, const std::string& pragma) {
    const Statement value = connection.Compile("PRAGMA " + pragma, "check the file");
    return connection.Step(value.get(), "check the file") ? sqlite3_column_int64(value.get(), 0) : 0;
}

bool IsCutShort(Connection& connection, const std::filesystem::path& file) {
    const std::int64_t bytes =
        PragmaNumber(connection, "page_count") * PragmaNumber(connection, "page_size");
    std::error_code error;  // the size of what can't be looked at counts as the highest
    return std::filesystem::file_size(file, error) < static_cast<std::uintmax_t>(bytes);
}

bool HasSoundPages(Connection& connection) {
    const Statement check = connection.Compile("PRAGMA quick_check(1)", "check the file");
    return connection.Step(check.get(), "check the file") && TextColumn(check.get(), 0) == "ok";
}

/// Whether a column that no field tells of is one of those that a step adds: a chain of steps that was
/// broken off between the column and its field.
bool IsLeftBehind(TableNum table, const Column& column) {
    return FindLaterField(table, column.name) != nullptr;
}

/// Whether the list of fields tells of every column of a table, with a type that fits the column's. From
/// here on the names of fields are safe to stand in a statement.
FileForm FormOfColumns(const TableEntry& table, const TableSchema& schema,
                       const std::vector<Column>& columns) {
    std::size_t told = 0;
    for (const Column& column : columns) {
        const auto field = schema.Find(column.name);
        if (!field) {
            if (!IsLeftBehind(table.number, column)) return FileForm::Foreign;
            continue;
        }
        if (!IsFieldName(schema.fields[*field].name) ||
            SqlTypeOf(schema.fields[*field].type) != column.type) {
            return FileForm::Foreign;
        }
        ++told;
    }
    if (told != schema.fields.size()) return FileForm::Foreign;
    return told == columns.size() ? FileForm::Current : FileForm::Older;
}

/// The form of all tables together.
FileForm FormOfFile(const Connection& connection, const ColumnsByTable& columns) {
    FileForm form = FileForm::Current;
    for (const TableEntry& table : AllTables()) {
        const TableSchema& schema = connection.SchemaOf(table.number);
        const auto found = columns.find(std::string(table.name));
        const bool isThere = found != columns.end();
        if (isThere == schema.fields.empty()) return FileForm::Foreign;
        for (const FileForm part : {isThere ? FormOfColumns(table, schema, found->second) : FileForm::Older,
                                    FormOf(table.number, schema)}) {
            if (part == FileForm::Foreign) return FileForm::Foreign;
            if (part == FileForm::Older) form = FileForm::Older;
        }
    }
    return form;
}

bool HasOneRecord(Connection& connection, const char* table) {
    const Statement count =
        connection.Compile(std::string("SELECT count(*) FROM ") + table, "check the file");
    return connection.Step(count.get(), "check the file") && sqlite3_column_int(count.get(), 0) == 1;
}

/// A foreign form stands for everything that makes a file damaged.
FileForm CheckForm(Connection& connection, const std::filesystem::path& file) {
    ColumnsByTable columns;
    if (!IsPlainSchema(connection, columns)) return FileForm::Foreign;
    if (IsCutShort(connection, file) || !HasSoundPages(connection)) return FileForm::Foreign;
    if (!columns.contains("Tables")) return FileForm::Foreign;
    connection.LoadSchema();
    const FileForm form = FormOfFile(connection, columns);
    if (form == FileForm::Foreign || !HasOneRecord(connection, "Adventure")) return FileForm::Foreign;
    if (columns.contains("System") && !HasOneRecord(connection, "System")) return FileForm::Foreign;
    return form;
}

/// What the database's answer to a check that could not even run says of the file; nullopt when it is the
/// machine that failed.
std::optional<Refusal> RefusalFor(int result) {
    switch (result & 0xff) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return Refusal::InUse;
        case SQLITE_NOTADB:
            return Refusal::NotAnAdventure;
        case SQLITE_INTERRUPT:
            return Refusal::TooSlow;
        case SQLITE_IOERR:
        case SQLITE_NOMEM:
        case SQLITE_FULL:
        case SQLITE_READONLY:
        case SQLITE_CANTOPEN:
            return std::nullopt;
        default:
            return Refusal::Damaged;
    }
}

}  // namespace

std::string_view SqlTypeOf(FieldType type) {
    switch (ClassOf(type)) {
        case FieldClass::Number:
            return type == FieldType::Double ? "REAL" : "INTEGER";
        case FieldClass::Truth:
            return "INTEGER";
        case FieldClass::Text:
            return "TEXT";
        case FieldClass::Binary:
            return "BLOB";
    }
    return "BLOB";
}

void Refuse(Refusal reason, const std::filesystem::path& file) {
    struct Row {
        Refusal reason;
        std::string_view text;
    };
    static constexpr Row kRows[] = {
        {Refusal::Missing, "there is no such file"},
        {Refusal::NotAnAdventure, "it is not an adventure file"},
        {Refusal::Damaged, "it is damaged"},
        {Refusal::NewerVersion, "it was written by a newer version of Fabula"},
        {Refusal::OlderVersion, "it was made by an older version of Fabula and must be upgraded first"},
        {Refusal::InUse, "it is in use by another program"},
        {Refusal::TooLarge, "it is too large"},
        {Refusal::TooSlow, "reading it takes more than any adventure needs"},
        {Refusal::WriteAheadLog,
         "another program keeps a write-ahead log for it; \"PRAGMA journal_mode=DELETE\" there ends that"},
        {Refusal::OpenForChange, "it is open for change in another window or program"},
        {Refusal::CannotBeWritten, "it can only be read"},
    };
    std::string message = "Could not open " + file.string() + ": ";
    for (const Row& row : kRows) {
        if (row.reason == reason) message += row.text;
    }
    throw OpenError(reason, message + ".");
}

bool IsAdventureFile(const std::filesystem::path& file) {
    std::error_code error;  // what can't be looked at is none
    if (!std::filesystem::is_regular_file(file, error)) return false;
    try {
        return !ReadHeader(file).empty();
    } catch (const Error&) {
        return false;  // what can't be read is treated as any other file
    }
}

void CheckCanBeWritten(const std::filesystem::path& file) {
    CheckHeader(file);
    const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
    struct stat facts {};
    const bool marked = stat(file.c_str(), &facts) == 0 && (facts.st_mode & 0222) == 0;
    const auto mayWrite = [](const std::filesystem::path& path) {
        return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    };
    if (marked || !mayWrite(file) || !mayWrite(folder)) Refuse(Refusal::CannotBeWritten, file);
}

std::string CreateTableSql(const TableSchema& schema) {
    std::string sql = TableHead(schema.name);
    for (const Field& field : schema.fields)
        sql.append(kColumnSeparator).append(field.name).append(" ").append(SqlTypeOf(field.type));
    return sql.append(kTableTail);
}

std::vector<std::string> CreateIndexSql() {
    std::vector<std::string> statements;
    for (const IndexEntry& index : kIndexes) {
        const std::string table(FindTable(index.table)->name);
        const std::string field(index.fields);
        const bool isText = std::find(std::begin(kTextIndexes), std::end(kTextIndexes), index.fields) !=
                            std::end(kTextIndexes);
        statements.push_back("CREATE INDEX " + table + "_" + field + " ON " + table + "(" + field +
                             (isText ? " COLLATE fabula_nocase)" : ")"));
    }
    return statements;
}

std::unique_ptr<Connection> OpenChecked(const std::filesystem::path& file, OpenMode mode, Ages ages) {
    CheckHeader(file);
    if (HasForeignJournal(file)) Refuse(Refusal::Damaged, file);
    // A file that was not closed properly is mended by its journal even for a reader, so reading asks for
    // writing too and then switches it off; where the file can't be written, the database falls back by
    // itself.
    auto connection = std::make_unique<Connection>(file, SQLITE_OPEN_READWRITE);
    try {
        connection->Run("PRAGMA cell_size_check=ON; PRAGMA synchronous=EXTRA", "open the adventure");
        connection->BeginReading();  // one lock for all checks
        const FileForm form = CheckForm(*connection, file);
        if (form == FileForm::Foreign) Refuse(Refusal::Damaged, file);
        if (form == FileForm::Older && ages == Ages::Current) Refuse(Refusal::OlderVersion, file);
        connection->EndReading();
    } catch (const OpenError&) {
        throw;
    } catch (const Error&) {
        const auto reason = RefusalFor(sqlite3_errcode(connection->Handle()));
        if (reason) Refuse(*reason, file);
        throw Error("Could not open " + file.string() + ": it can't be read.");
    }
    if (mode == OpenMode::ReadOnly) connection->Run("PRAGMA query_only=ON", "open the adventure");
    return connection;
}

}  // namespace fabula::store
