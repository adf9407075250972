#include "store/create.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <set>

#include <sqlite3.h>

#include "store/adventure.h"
#include "store/connection.h"
#include "store/default_data.h"
#include "store/file_check.h"
#include "store/file_copy.h"
#include "store/record_check.h"
#include "store/section_reader.h"
#include "text/fields.h"
#include "text/utf8.h"

namespace fabula::store {
namespace {

/// The largest keypad template that is taken over, in bytes.
constexpr std::uintmax_t kLargestTemplate = 1024 * 1024;
/// The template that only the maintenance of the system loads.
constexpr std::string_view kMaintenanceTemplate = "else";

std::string Stamp(const platform::DateTime& date) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month, date.day,
                  date.hour, date.minute, date.second);
    return text;
}

/// The lines of a keypad template, comments left out, joined by blanks.
std::string ReadTemplate(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::file_size(file) > kLargestTemplate) {
        throw Error("Could not read the template " + file.string() + ".");
    }
    std::string commands;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        if (line.starts_with('!')) continue;
        if (!commands.empty()) commands += ' ';
        commands += line;
    }
    return commands;
}

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
    Creator(Connection& connection, const DefaultData& data, const frmSetup& setup,
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
    std::string SchemaSection(const TableEntry& table) const {
        return "VEL" + std::string(table.sectionStem) + "DB";
    }

    std::string DataSection(const TableEntry& table) const {
        const std::string prefix = table.typedData ? text::UpperCase(NameOf(setup_.Type())) : "VEL";
        return prefix + std::string(table.sectionStem);
    }

    void CreateTable(const TableEntry& table) {
        TableSchema schema{std::string(table.name), {}};
        const std::string section = SchemaSection(table);
        for (const DefaultData::Line& line : data_.Lines(section)) {
            const auto columns = data_.Columns(section, line, kSchemaColumnsNeeded);
            const auto type = FieldTypeFromTag(columns[1]);
            if (!type) {
                host_.person.Tell("Invalid option: " + line.text, "Error");
                continue;
            }
            if (!IsFieldName(columns[0]))
                data_.Malformed(section, line, "'" + columns[0] + "' is no name of a field");
            if (schema.Find(columns[0])) data_.Malformed(section, line, "the field stands there twice");
            const int size = static_cast<int>(ReadNumber(data_, section, line, columns[2]));
            schema.fields.push_back({columns[0], *type, *type == FieldType::VarWChar ? size : 0});
        }
        if (schema.fields.empty()) throw Error("The default data gives " + schema.name + " no fields.");
        connection_.Run(CreateTableSql(schema), "create the adventure");
        connection_.SchemaToChange(table.number) = std::move(schema);
    }

    /// One record of `Tables` for each field of `table`.
    void AddFieldRecords(const TableEntry& table) {
        const std::string section = SchemaSection(table);
        for (const DefaultData::Line& line : data_.Lines(section)) {
            auto columns = data_.Columns(section, line, kSchemaColumnsNeeded);
            if (!FieldTypeFromTag(columns[1])) continue;
            Record record = DefaultFieldRecord();
            const auto names = text::Split(kSchemaColumns, " ");
            const TableSchema& schema = connection_.SchemaOf(TableNum::Tables);
            for (std::size_t i = 0; i < std::min(columns.size(), names.size()); ++i) {
                SetText(record, data_, {section, line, schema}, names[i], columns[i]);
            }
            record["tablekey"] = ++fieldRecords_;
            record["TableName"] = std::string(table.name);
            record["TableNum"] = static_cast<std::int64_t>(table.number);
            writer_.Add(TableNum::Tables, record);
        }
    }

    /// What a schema row that leaves out its later columns means.
    static Record DefaultFieldRecord() {
        Record record;
        for (const char* name :
             {"allowadd", "allowaddbef", "AllowDelete", "allowedit", "allowload", "allowsave", "allowprint",
              "allowprpre", "allowkeychg", "allowimpexp", "allowexp", "allowchgsort"}) {
            record[name] = std::string("N");
        }
        record["gridwidth"] = std::int64_t{0};
        record["fbbexp"] = std::int64_t{0};
        record["altname"] = std::string();
        return record;
    }

    void AddSection(const SectionForm& form) {
        const TableEntry& table = *FindTable(form.table);
        const TableSchema& schema = connection_.SchemaOf(form.table);
        std::vector<Record> records = ReadSection(data_, DataSection(table), form, schema, host_.events);
        if (form.table == TableNum::Header && records.empty()) {
            records.push_back({{"hdrkey", std::string("Dummy record")}, {"hdrmess", std::string()}});
        }
        if (form.table == TableNum::Adventure && records.size() != 1) {
            throw Error("The default data has no single row in section ::" + DataSection(table) + ".");
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
        record["savename"] = target_.stem().string();
        record["DateCreated"] = Stamp(host_.clock.Now());
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
        record["source"] = std::string("Unknown");
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
            writer_.Add(TableNum::Flags, {{"flgnum", number},
                                          {"flgtype", std::string("User")},
                                          {"flguse", std::string("Unknown")},
                                          {"flgmod", std::int64_t{2}},
                                          {"flgdesc", std::string()},
                                          {"flgchg", std::int64_t{1}}});
        }
    }

    void AddCharacters() {
        const TableEntry& table = *FindTable(TableNum::Characters);
        const TableSchema& schema = connection_.SchemaOf(TableNum::Characters);
        for (const Record& record : ReadCharacters(data_, DataSection(table), schema)) {
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
                                       {"flagchange", std::int64_t{1}}});
    }

    void AddTemplates() {
        const auto folder = host_.defaultData.parent_path() / "templates";
        std::error_code missing;  // a folder that is not there holds no templates
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
            if (entry.path().extension() == ".tpl" && entry.path().stem() != kMaintenanceTemplate) {
                files.push_back(entry.path());
            }
        }
        std::sort(files.begin(), files.end());
        for (const auto& file : files) {
            writer_.Add(TableNum::Templates,
                        {{"tempname", file.stem().string()}, {"commands", ReadTemplate(file)}});
        }
    }

    Connection& connection_;
    const DefaultData& data_;
    const frmSetup& setup_;
    const CreationHost& host_;
    std::filesystem::path target_;
    RecordWriter writer_;
    std::int64_t fieldRecords_ = 0;
};

void WriteNewFile(const std::filesystem::path& file, const DefaultData& data, const frmSetup& setup,
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

bool CreateAdventure(bool replace, const std::filesystem::path& path, const frmSetup& setup,
                     const CreationHost& host) {
    std::error_code error;  // what can't be looked at fails when the file is made
    const auto target = std::filesystem::absolute(path, error);
    if (!replace && std::filesystem::exists(target, error) &&
        !host.person.Confirm("All information in " + path.string() + " will be deleted.", "Warning")) {
        return false;
    }
    if (!std::filesystem::is_directory(target.parent_path(), error)) {
        throw Error("Could not create " + path.string() + ": there is no folder " +
                    target.parent_path().string() + ".");
    }
    const DefaultData data = DefaultData::Read(host.defaultData);
    const TemporaryFile temporary(TemporaryBeside(target));
    WriteNewFile(temporary.Path(), data, setup, host, target);
    OpenChecked(temporary.Path(), OpenMode::ReadOnly);
    MoveIntoPlace(temporary.Path(), target);
    return true;
}

}  // namespace fabula::store
