#include "interchange/starter.h"

#include "condacts/language/convert.h"
#include "condacts/language/load.h"
#include "interchange/shared/keyed_table.h"
#include "platform/error.h"
#include "platform/event_pump.h"
#include "store/schema/default_data.h"
#include "store/schema/section_reader.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::Record;
using store::TableNum;

/// In the order of reading: entries are compiled with the starter's own words.
constexpr TableNum kStarterTables[] = {TableNum::Messages, TableNum::Vocabulary, TableNum::ProcessTables};

const store::SectionForm& FormOf(TableNum table) {
    for (const store::SectionForm& form : store::SectionForms()) {
        if (form.table == table) return form;
    }
    throw std::logic_error("a starter has a section that new adventures do not");
}

std::vector<Record> ReadRecords(const store::DefaultData& starter, Adventure& adventure, TableNum table) {
    const std::string section(store::FindTable(table)->sectionStem);
    if (!starter.Has(section)) return {};
    platform::NoEvents events;
    return store::ReadSection(starter, section, FormOf(table), adventure.Schema(table), events);
}

/// Records are counted on from those that are there; messages are numbered by the starter itself.
void AddRecords(Adventure& adventure, TableNum table, const std::vector<Record>& records) {
    const std::string keyField(FormOf(table).number);
    KeyedTable target(adventure, table, keyField);
    const bool countsOn = table != TableNum::Messages;
    for (const Record& record : records) {
        store::Cursor& cursor = countsOn ? target.Add(target.HighestKey() + 1)
                                         : target.GoToOrAdd(std::get<std::int64_t>(record.at(keyField)));
        for (const auto& [field, value] : record) {
            if (field != keyField) cursor.SetField(field, value);
        }
        target.Update();
    }
}

void Compile(Adventure& adventure, std::vector<Record>& entries) {
    const condacts::Catalogue catalogue = condacts::LoadCatalogue(adventure);
    const condacts::WordIndex words = condacts::LoadWords(adventure);
    for (Record& entry : entries) {
        const auto& line = std::get<std::string>(entry.at("CondActs"));
        const condacts::Converted numeric = condacts::CondActsToNumeric(line, catalogue, words);
        if (!numeric.ok)
            throw Error("The starter has a faulty entry \"" + line + "\": " + numeric.errors + ".");
        entry["numericcondacts"] = numeric.line;
    }
}

}  // namespace

void AddStarter(Adventure& adventure, const std::filesystem::path& file) {
    const store::DefaultData starter = store::DefaultData::Read(file);
    store::Transaction transaction(adventure);
    for (const TableNum table : kStarterTables) {
        std::vector<Record> records = ReadRecords(starter, adventure, table);
        if (table == TableNum::ProcessTables) Compile(adventure, records);
        AddRecords(adventure, table, records);
    }
    transaction.Commit();
}

}  // namespace fabula::interchange
