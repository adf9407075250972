#include "store/create.h"

#include <set>
#include <sstream>

#include <sqlite3.h>

#include "platform/whole_file.h"
#include "store/adventure.h"
#include "store/file/connection.h"
#include "store/file/file_check.h"
#include "store/file/file_copy.h"
#include "store/game_source.h"
#include "store/new_flag.h"
#include "store/schema/default_data.h"
#include "store/schema/record_check.h"
#include "store/schema/schema_section.h"
#include "store/schema/section_reader.h"
#include "text/encoding/bad_bytes.h"
#include "text/moment.h"

namespace fabula::store {
namespace {

/// Adds records to the tables of a file in the making.
class RecordWriter {
  public:
    explicit RecordWriter(Connection& connection) : connection_(connection) {}

    void Add(TableNum table, const Record& record) {
        const TableSchema& schema = connection_.SchemaOf(table);
        std::string names;
        std::string marks;
        for (const auto& [name, value] : record) {
            const auto field = schema.Find(name);
            if (!field) throw Error("The default data gives " + schema.name + " no field " + name + ".");
            CheckValue(schema, schema.fields[*field], value);
            names += (names.empty() ? "" : ",") + name;
            marks += marks.empty() ? "?" : ",?";
        }
        sqlite3_stmt* statement =
            connection_.Cached("INSERT INTO " + schema.name + " (" + names + ") VALUES (" + marks + ")");
        const StatementUse use(statement);
        int parameter = 0;
        for (const auto& [name, value] : record)
            Connection::Bind(statement, ++parameter, value);
        connection_.Step(statement, "create the adventure");
    }

  private:
    Connection& connection_;
};

/// Fills one new file, table by table.
class Creator {
  public:
    Creator(Connection& connection, const DefaultData& data, const AdventureSetup& setup,
            const CreationHost& host, std::filesystem::path target)
        : connection_(connection),
          data_(data),
          setup_(setup),
          host_(host),
          target_(std::move(target)),
          writer_(connection) {}

    void Create() {
        for (const TableEntry& table : AllTables())
            CreateTable(table);
        for (const TableEntry& table : AllTables())
            AddFieldRecords(table);
        for (const SectionForm& form : SectionForms())
            AddSection(form);
        AddMissingFlags();
        AddCharacters();
        AddSystemRecord();
        AddTemplates();
        for (const std::string& sql : CreateIndexSql())
            connection_.Run(sql, "create the adventure");
    }

  private:
    void CreateTable(const TableEntry& table) {
        TableSchema schema = ReadSchemaSection(data_, table, &host_.person);
        connection_.Run(CreateTableSql(schema), "create the adventure");
        connection_.SchemaToChange(table.number) = std::move(schema);
    }

    /// One record of `Tables` for each field of `table`.
    void AddFieldRecords(const TableEntry& table) {
        for (Record& record : ReadFieldRecords(data_, table, connection_.SchemaOf(TableNum::Tables))) {
            record["tablekey"] = ++fieldRecords_;
            writer_.Add(TableNum::Tables, record);
        }
    }

    std::string SectionOf(const TableEntry& table) const {
        return DataSection(table, NameOf(setup_.Type()));
    }

    void AddSection(const SectionForm& form) {
        const TableEntry& table = *FindTable(form.table);
        const TableSchema& schema = connection_.SchemaOf(form.table);
        std::vector<Record> records = ReadSection(data_, SectionOf(table), form, schema, host_.events);
        if (form.table == TableNum::Header && records.empty()) {
            records.push_back({{"hdrkey", std::string("Dummy record")}, {"hdrmess", std::string()}});
        }
        if (form.table == TableNum::Adventure && records.size() != 1) {
            throw Error("The default data has no single row in section ::" + SectionOf(table) + ".");
        }
        for (Record& record : records) {
            Complete(form.table, record);
            writer_.Add(form.table, record);
        }
    }

    /// Sets the fields that have no column.
    void Complete(TableNum table, Record& record) const {
        if (table == TableNum::Locations) {
            record["picgraphic"] = text::Blob{std::byte{1}};
            record["oldpicloc"] = std::string(" ");
        } else if (table == TableNum::ProcessTables) {
            record["numericcondacts"] = std::string();
        } else if (table == TableNum::Adventure) {
            CompleteSettings(record);
        }
    }

    void CompleteSettings(Record& record) const {
        record["advnum"] = std::string("1");
        record["savename"] = text::WithoutBadBytes(target_.stem().string());
        record["DateCreated"] = text::StoredMoment(host_.clock.Now());
        record["unmarloed"] = std::int64_t{0};
        record["advcontactinfo"] = std::string(" ");
        record["graphics"] = std::int64_t{setup_.Graphics()};
        record["sound"] = std::int64_t{0};
        record["charsets"] = std::int64_t{setup_.CharSets()};
        record["advpicgraphic"] = text::Blob{};
        record["defpicgraphic"] = text::Blob{};
        record["graphicsindb"] = std::int64_t{0};
        record["graphicsadded"] = std::int64_t{0};
        record["oldadvpicloc"] = std::string(" ");
        record["olddefpicloc"] = std::string(" ");
        record["source"] = std::string(kUnknownSource);
    }

    /// Flags are numbered without a gap: the engine keeps one place for each record.
    void AddMissingFlags() {
        std::set<std::int64_t> present;
        const Statement flags = connection_.Compile("SELECT flgnum FROM Flags", "create the adventure");
        while (connection_.Step(flags.get(), "create the adventure")) {
            present.insert(sqlite3_column_int64(flags.get(), 0));
        }
        if (present.empty()) return;
        for (std::int64_t number = 0; number < *present.rbegin(); ++number) {
            if (present.contains(number)) continue;
            const auto fields = FieldsOfNewFlag(number, "");
            writer_.Add(TableNum::Flags, Record(fields.begin(), fields.end()));
        }
    }

    void AddCharacters() {
        const TableEntry& table = *FindTable(TableNum::Characters);
        const TableSchema& schema = connection_.SchemaOf(TableNum::Characters);
        for (const Record& record : ReadCharacters(data_, SectionOf(table), schema)) {
            writer_.Add(TableNum::Characters, record);
            host_.events.Pump();
        }
    }

    void AddSystemRecord() {
        writer_.Add(TableNum::System, {{"systemnum", std::int64_t{1}},
                                       {"sysinidate", data_.Info("Tables")},
                                       {"sysexportversion", data_.Info("ExportVersion")},
                                       {"ideversion", std::string(" ")},
                                       {"engversion", std::string(" ")},
                                       {"flagchange", std::int64_t{1}},
                                       {"ifid", MarkedIfid(host_.newIfid())}});
    }

    void AddTemplates() {
        for (const Record& record : ReadTemplates(host_.defaultData))
            writer_.Add(TableNum::Templates, record);
    }

    Connection& connection_;
    const DefaultData& data_;
    const AdventureSetup& setup_;
    const CreationHost& host_;
    std::filesystem::path target_;
    RecordWriter writer_;
    std::int64_t fieldRecords_ = 0;
};

void WriteNewFile(const std::filesystem::path& file, const DefaultData& data, const AdventureSetup& setup,
                  const CreationHost& host, const std::filesystem::path& target) {
    Connection connection(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    // The file is flushed as a whole before it takes its place, so its own transaction need not be.
    connection.Run("PRAGMA synchronous=OFF; PRAGMA application_id=" + std::to_string(kApplicationId) +
                       "; PRAGMA user_version=" + std::to_string(kFileVersion) + "; BEGIN",
                   "create the adventure");
    Creator(connection, data, setup, host, target).Create();
    connection.Run("COMMIT", "create the adventure");
}

}  // namespace

void CreateAdventure(const std::filesystem::path& path, const AdventureSetup& setup,
                     const CreationHost& host, const std::function<void(Adventure&)>& finish) {
    std::error_code error;  // what can't be looked at fails when the file is made
    const auto target = std::filesystem::absolute(path, error);
    if (!std::filesystem::is_directory(target.parent_path(), error)) {
        throw Error("Could not create " + path.string() + ": there is no folder " +
                    target.parent_path().string() + ".");
    }
    const DefaultData data = DefaultData::Read(host.defaultData);
    const TemporaryFile temporary(target);
    WriteNewFile(temporary.Path(), data, setup, host, target);
    if (finish) finish(*Adventure::Open(temporary.Path()));
    OpenChecked(temporary.Path(), OpenMode::ReadOnly);
    MoveIntoPlace(temporary.Path(), target);
}

}  // namespace fabula::store
