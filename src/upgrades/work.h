#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/adventure.h"
#include "store/ifid.h"
#include "store/setup.h"
#include "upgrades/defaults.h"
#include "upgrades/report.h"

namespace fabula::upgrades {

/// What the author answered to the screen of the adventure's type.
struct ChosenType {
    std::string type;  ///< "Fabula", "VEL" or "Marlo"
    bool graphics = false;
    bool charSets = false;
};

/// What the steps work on: one adventure of any age, the default data, and what is to be told afterwards.
class Work {
  public:
    Work(store::Adventure& upgraded, Defaults& data) : adventure(upgraded), defaults(data) {}

    store::Adventure& adventure;
    Defaults& defaults;
    std::vector<Report> reports;
    /// Gives a name to an adventure that has none.
    store::IfidMaker newIfid = store::NewIfid;
    /// Set when the author was asked; a type that is not known then follows what the file says of itself.
    std::optional<ChosenType> chosen;
    /// The settings took their font from its name in this run, so that nothing has to be said of it again.
    bool fontTaken = false;

    /// One row of `Tables`.
    struct FieldRow {
        int table = 0;
        std::string field;
        std::string type;
        int size = 0;
    };
    /// `Tables` as it is; read again after `Forget`, which follows each step.
    const std::vector<FieldRow>& FieldRows();
    void Forget();

    /// The control characters, those below blank, that stand in the texts of a field: bit 13 for a carriage
    /// return. 0 for a field that is not there. Known until `Forget`, since several steps ask.
    std::uint32_t ControlsIn(store::TableNum table, std::string_view field);

    bool HasTable(store::TableNum table) const { return !adventure.Schema(table).fields.empty(); }
    /// Whether the table has all of the fields.
    bool Has(store::TableNum table, std::initializer_list<std::string_view> fields) const;

    /// Adds a record, of which the fields that the table has not yet are left out.
    void AddRecord(store::TableNum table, const store::Record& record);
    /// Puts one value into a field of every record, or of those in which it is null.
    void FillField(store::TableNum table, std::string_view field, const text::Value& value);
    void FillNulls(store::TableNum table, std::string_view field, const text::Value& value);

  private:
    std::optional<std::vector<FieldRow>> fieldRows_;
    std::map<std::pair<store::TableNum, std::string>, std::uint32_t> controls_;
};

/// Gives the records of the default data to those of the file with the same keys: `fields` of each. Records
/// that the data does not know stay as they are.
void FillFromDefaults(Work& work, store::TableNum table, const std::vector<std::string_view>& fields);

/// Whether a filter of a table finds a record. False when the table lacks a field that it names.
bool Finds(Work& work, store::TableNum table, std::string_view filter);

}  // namespace fabula::upgrades
