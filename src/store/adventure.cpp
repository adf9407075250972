#include "store/adventure.h"

#include <algorithm>
#include <array>

#include <sqlite3.h>

#include "store/file/change_lock.h"
#include "store/file/connection.h"
#include "store/file/file_check.h"
#include "store/file/file_copy.h"
#include "store/query/selection.h"
#include "text/encoding/utf8.h"

namespace fabula::store {
namespace {

struct DefaultOrderRow {
    TableNum table;
    std::string_view order;
};

/// Tables without a row here and without a sort order of their own are read in the order of creation.
constexpr DefaultOrderRow kDefaultOrders[] = {
    {TableNum::Locations, "locnum"},
    {TableNum::Messages, "msgnum"},
    {TableNum::Sounds, "sndnum"},
    {TableNum::ProcessTables, "estype, w1num, w2num, canum"},
    {TableNum::SystemMessages, "smsgnum"},
    {TableNum::Flags, "flgnum"},
    {TableNum::DataBases, "dbtreesort"},
    {TableNum::Package, "PkgType, PkgName"},
    {TableNum::ProcDesc, "pmsgnum"},
    {TableNum::Header, "hdrkey"},
    {TableNum::Codes, "codenum"},
    {TableNum::Characters, "charkey"},
    {TableNum::Pictures, "locnum"},
    {TableNum::Templates, "tempname"},
    {TableNum::ProcessTablesWalk, "w1num, w2num, canum"},
    {TableNum::VocabularyWalk, "vocnum, word"},
    {TableNum::LocationsWalk, "locnum"},
};

struct SortRow {
    TableNum table;
    std::string SortOrders::*order;
    std::string_view field;  ///< of the settings record
};

constexpr SortRow kSorts[] = {
    {TableNum::Objects, &SortOrders::objects, "sortobjects"},
    {TableNum::Vocabulary, &SortOrders::vocabulary, "sortvocabulary"},
    {TableNum::Tables, &SortOrders::tables, "sorttables"},
    {TableNum::CondActs, &SortOrders::condacts, "sortcondacts"},
    {TableNum::Commands, &SortOrders::commands, "sortcommands"},
};

std::size_t SlotOf(TableNum table) {
    return static_cast<std::size_t>(table);
}

void CheckNumber(TableNum table) {
    if (SlotOf(table) > kHighestTable) throw std::logic_error("a table number is beyond the highest");
}

/// An optional text as SelectionText has it.
std::string_view OrEmpty(std::optional<std::string_view> text) {
    return text.value_or(std::string_view());
}

/// `clause` may be a part of an earlier clause that its caller is about to replace.
std::string Clause(std::string_view head, std::string_view clause) {
    std::string text;
    if (!clause.empty()) text.append(head).append(clause);
    return text;
}

}  // namespace

std::unique_ptr<Adventure> Adventure::Open(const std::filesystem::path& file, OpenMode mode, Ages ages) {
    std::error_code error;
    const auto path = std::filesystem::absolute(file, error);
    if (error) throw Error("Could not open " + file.string() + ": " + error.message() + ".");
    return std::unique_ptr<Adventure>(new Adventure(path, OpenChecked(path, mode, ages)));
}

std::unique_ptr<Adventure> Adventure::CopyInMemory() const {
    return std::unique_ptr<Adventure>(new Adventure(file_, CopyOf(*connection_)));
}

void Adventure::ForbidChanges() {
    connection_->Run("PRAGMA query_only=ON", "open the adventure");
}

void Adventure::WaitForOthers(std::chrono::milliseconds most) {
    connection_->WaitForOthers(most);
}

std::unique_ptr<Adventure> Adventure::OpenForChange(const std::filesystem::path& file, Ages ages) {
    CheckCanBeWritten(file);
    auto lock = ChangeLock::Take(file);
    if (!lock) Refuse(Refusal::OpenForChange, file);
    auto adventure = Open(file, OpenMode::ReadWrite, ages);
    adventure->lock_ = std::move(lock);
    return adventure;
}

Adventure::Adventure(std::filesystem::path file, std::unique_ptr<Connection> connection)
    : file_(std::move(file)), connection_(std::move(connection)) {
    for (int number = 1; number <= kHighestTable; ++number) {
        if (const TableEntry* table = FindTable(static_cast<TableNum>(number))) {
            infos_[static_cast<std::size_t>(number)].tablename = table->name;
        }
    }
    infos_[SlotOf(TableNum::Sounds)].tabledesc = "Tones used in Beep";
    ReadSettings();
}

Adventure::~Adventure() = default;

void Adventure::ReadSettings() {
    type_.clear();
    typeLower_.clear();
    graphics_ = charSets_ = false;
    sorts_ = {};
    // A file of an older version lacks some of the fields: those have no column.
    std::string fields;
    int columns = 0;
    const auto ask = [&](std::string_view field) -> std::optional<int> {
        if (!Schema(TableNum::Adventure).Find(field)) return std::nullopt;
        fields.append(fields.empty() ? "" : ",").append(field);
        return columns++;
    };
    const auto type = ask("adventype");
    const auto graphics = ask("graphics");
    const auto charSets = ask("charsets");
    std::array<std::optional<int>, std::size(kSorts)> orders;
    std::ranges::transform(kSorts, orders.begin(), ask, &SortRow::field);
    if (fields.empty()) return;
    PreparedQuery settings = Prepare(TableNum::Adventure, fields, "");
    if (!settings.First({})) return;
    if (type) type_ = settings.Text(*type);
    typeLower_ = text::LowerCase(type_);
    if (graphics) graphics_ = settings.Number(*graphics) != 0;
    if (charSets) charSets_ = settings.Number(*charSets) != 0;
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const std::string order(orders[i] ? settings.Text(*orders[i]) : "");
        const SortRow& sort = kSorts[i];
        if (orders[i] && IsOrderOf(Schema(sort.table), order)) sorts_.*sort.order = order;
    }
}

std::string Adventure::DefaultOrder(TableNum table) const {
    for (const SortRow& sort : kSorts) {
        if (sort.table == table) return sorts_.*sort.order;
    }
    for (const DefaultOrderRow& row : kDefaultOrders) {
        if (row.table == table) return std::string(row.order);
    }
    return {};
}

Cursor& Adventure::OpenTable(TableNum table, std::string_view fields, std::optional<std::string_view> where,
                             std::optional<std::string_view> order) {
    Cursor& cursor = Table(table);
    const bool isFree = IsFreeCursor(table);
    const TableEntry* entry = FindTable(table);
    if (!isFree && !entry) return cursor;
    FreeStatement free;
    if (isFree) {
        free = SplitFreeStatement(fields);
        entry = FindTable(free.table);
        if (!entry) {
            const auto at = static_cast<std::size_t>(free.table.data() - fields.data());
            throw FilterError(at + 1, "a table; there is none called '" + std::string(free.table) + "'");
        }
    }
    const std::string defaultOrder = order || isFree ? std::string() : DefaultOrder(table);
    SelectionText text{fields, OrEmpty(where), order ? *order : std::string_view(defaultOrder)};
    if (isFree) {
        text.fields = free.fields;
        if (!where) text.where = free.where;
        if (!order) text.order = free.order;
    }
    const TableSchema& schema = connection_->SchemaOf(entry->number);
    Selection selection = BuildSelection(schema, text);

    TableInfo& info = infos_[SlotOf(table)];
    info.tablename = isFree ? free.table : entry->name;
    info.lastselect = fields;
    info.lastwhere = Clause(" where ", text.where);
    info.lastorder = Clause(" order by ", text.order);

    cursor.Reset();
    cursor.connection_ = connection_.get();
    cursor.schema_ = &schema;
    cursor.sql_ = std::move(selection.sql);
    cursor.parameters_ = std::move(selection.values);
    cursor.fieldIndexes_ = std::move(selection.columns);
    for (const std::size_t column : cursor.fieldIndexes_)
        cursor.fields_.push_back(schema.fields[column]);
    try {
        cursor.ReadInto(cursor.snapshot_);
    } catch (const Error&) {
        cursor.Reset();
        throw;
    }
    return cursor;
}

Cursor& Adventure::Table(TableNum table) {
    CheckNumber(table);
    return cursors_[SlotOf(table)];
}

const TableInfo& Adventure::Info(TableNum table) const {
    CheckNumber(table);
    return infos_[SlotOf(table)];
}

PreparedQuery Adventure::Prepare(TableNum table, std::string_view fields, std::string_view where,
                                 std::optional<std::string_view> order) {
    const TableSchema& schema = Schema(table);
    const std::string usedOrder = order ? std::string(*order) : DefaultOrder(table);
    Selection selection = BuildSelection(schema, {fields, where, usedOrder}, Parameters::Allowed);
    return PreparedQuery(*connection_, selection);
}

const TableSchema& Adventure::Schema(TableNum table) const {
    const TableEntry* entry = FindTable(table);
    if (!entry) throw std::logic_error("a table number names no table");
    return connection_->SchemaOf(entry->number);
}

int Adventure::DeleteFrom(TableNum table, std::optional<std::string_view> where) {
    const TableSchema& schema = Schema(table);
    std::string sql = "DELETE FROM " + schema.name;
    std::vector<text::Value> values;
    if (where && !where->empty()) {
        sql += " WHERE ";
        AppendSql(ParseFilter(*where, schema), schema, sql, values);
    }
    connection_->CheckMayChange();
    const Statement statement = connection_->Compile(sql, "delete records");
    for (std::size_t i = 0; i < values.size(); ++i) {
        Connection::Bind(statement.get(), static_cast<int>(i) + 1, values[i]);
    }
    connection_->Step(statement.get(), "delete records");
    return connection_->ChangedRows();
}

void Adventure::SaveCopy(const std::filesystem::path& target) {
    if (connection_->IsChanging()) throw std::logic_error("a copy is written inside a transaction");
    std::error_code error;  // a file that is not there is another one
    if (std::filesystem::equivalent(file_, target, error) && !connection_->HasMoved())
        throw Error("Could not write " + target.string() + ": it is the open adventure itself.");
    WriteCopy(*connection_, target);
}

Transaction::Transaction(Adventure& adventure) : connection_(*adventure.connection_) {
    connection_.BeginWork();
}

Transaction::~Transaction() {
    if (open_) connection_.RollBackWork();
}

void Transaction::Commit() {
    connection_.CommitWork();
    open_ = false;
}

ReadTransaction::ReadTransaction(Adventure& adventure) : connection_(*adventure.connection_) {
    connection_.BeginReading();
}

ReadTransaction::~ReadTransaction() {
    connection_.EndReading();
}

}  // namespace fabula::store
