#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "store/schema/default_data.h"
#include "store/schema/schema.h"
#include "store/schema/section_reader.h"
#include "store/schema/table_catalogue.h"

namespace fabula::upgrades {

/// The default data as the steps ask for it: by table, each section read when it is first needed. A section
/// that is missing or malformed is a fabula::Error that names it.
class Defaults {
  public:
    /// `file` is Fabula.ini. Throws fabula::Error when it can't be read.
    explicit Defaults(std::filesystem::path file);

    /// The date of the data, as `sysinidate` takes it, and its version, as `sysexportversion` does.
    const std::string& Date() const { return data_.Info("Tables"); }
    const std::string& ExportVersion() const { return data_.Info("ExportVersion"); }

    const store::TableSchema& Schema(store::TableNum table);
    /// The records of `Tables` that stand for a table's fields, without keys.
    const std::vector<store::Record>& FieldRecords(store::TableNum table);
    /// nullptr when the data knows no such field.
    const store::Record* FieldRecord(store::TableNum table, std::string_view field);

    /// The records of a table's data section. Of tables whose records depend on the type of the adventure
    /// they are those of type Fabula: what is asked of them is the same in all types.
    const std::vector<store::Record>& Records(store::TableNum table);
    /// The record of `CondActs` with this `caname`; throws fabula::Error when the data has none.
    const store::Record& CondAct(std::string_view name);

    /// The keypad templates beside the data.
    std::vector<store::Record> Templates() const;

  private:
    std::filesystem::path file_;
    store::DefaultData data_;
    std::map<store::TableNum, store::TableSchema> schemas_;
    std::map<store::TableNum, std::vector<store::Record>> fields_;
    std::map<store::TableNum, std::vector<store::Record>> records_;
    std::map<std::string, store::Record, std::less<>> condActs_;
};

/// A field of a record of the default data, its name in any case; nullptr when it has none.
const text::Value* FindValue(const store::Record& record, std::string_view field);
/// The same as text and as a number: "" and 0 when there is none.
std::string TextOf(const store::Record& record, std::string_view field);
std::int64_t NumberOf(const store::Record& record, std::string_view field);

}  // namespace fabula::upgrades
