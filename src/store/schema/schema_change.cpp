#include "store/schema/schema_change.h"

#include <algorithm>

#include <sqlite3.h>

#include "store/file/connection.h"
#include "store/file/file_check.h"
#include "store/file/file_forms.h"

namespace fabula::store {
namespace {

constexpr const char* kUpgrading = "upgrade the adventure";

bool HasColumn(Connection& connection, const std::string& table, const std::string& column) {
    const Statement query =
        connection.Compile("SELECT 1 FROM pragma_table_xinfo(?) WHERE name=? COLLATE NOCASE", kUpgrading);
    Connection::Bind(query.get(), 1, table);
    Connection::Bind(query.get(), 2, column);
    return connection.Step(query.get(), kUpgrading);
}

}  // namespace

SchemaChange::SchemaChange(Adventure& adventure)
    : adventure_(adventure), connection_(*adventure.connection_) {}

void SchemaChange::AddTable(TableNum table, const TableSchema& schema) {
    connection_.CheckMayChange();
    connection_.Run(CreateTableSql(schema), kUpgrading);
    connection_.SchemaToChange(table) = schema;
}

void SchemaChange::AddField(TableNum table, const Field& field) {
    connection_.CheckMayChange();
    TableSchema& schema = connection_.SchemaToChange(table);
    if (!HasColumn(connection_, schema.name, field.name)) {
        connection_.Run("ALTER TABLE " + schema.name + " ADD COLUMN " + field.name + " " +
                            std::string(SqlTypeOf(field.type)),
                        kUpgrading);
    }
    schema.fields.push_back(field);
}

void SchemaChange::Redefine(TableNum table, const TableSchema& schema, Convert convert) {
    connection_.CheckMayChange();
    const TableSchema before = connection_.SchemaOf(table);
    std::vector<std::vector<text::Value>> records;
    const Cursor& cursor = adventure_.OpenTable(table, "*");
    for (Cursor& walk = adventure_.Table(table); !cursor.Eof(); walk.MoveNext()) {
        std::vector<text::Value>& record = records.emplace_back();
        for (std::size_t i = 0; i < before.fields.size(); ++i)
            record.push_back(convert(before.fields[i], cursor.Field(i)));
    }
    connection_.Run("DROP TABLE " + before.name, kUpgrading);
    AddTable(table, schema);
    std::string marks;
    for (std::size_t i = 0; i < schema.fields.size(); ++i)
        marks += ",?";
    const Statement insert =
        connection_.Compile("INSERT INTO " + schema.name + " VALUES (NULL" + marks + ")", kUpgrading);
    for (const std::vector<text::Value>& record : records) {
        const StatementUse use(insert.get());
        for (std::size_t i = 0; i < record.size(); ++i)
            Connection::Bind(insert.get(), static_cast<int>(i) + 1, record[i]);
        connection_.Step(insert.get(), kUpgrading);
    }
}

void SchemaChange::ReadFields() {
    connection_.LoadSchema();
}

void SchemaChange::Finish() {
    connection_.CheckMayChange();
    for (const TableEntry& table : AllTables()) {
        if (FormOf(table.number, connection_.SchemaOf(table.number)) == FileForm::Current) continue;
        throw OpenError(Refusal::Damaged, "Could not upgrade " + adventure_.CurrentFile().string() +
                                              ": its table " + std::string(table.name) +
                                              " is not complete.");
    }
    for (const std::string& sql : CreateIndexSql()) {
        const Statement known =
            connection_.Compile("SELECT 1 FROM sqlite_schema WHERE type='index' AND sql=?", kUpgrading);
        Connection::Bind(known.get(), 1, sql);
        if (!connection_.Step(known.get(), kUpgrading)) connection_.Run(sql, kUpgrading);
    }
    connection_.Run("PRAGMA user_version=" + std::to_string(kFileVersion), kUpgrading);
}

int SchemaChange::FileNumber() const {
    const Statement number = connection_.Compile("PRAGMA user_version", kUpgrading);
    return connection_.Step(number.get(), kUpgrading) ? sqlite3_column_int(number.get(), 0) : 0;
}

}  // namespace fabula::store
