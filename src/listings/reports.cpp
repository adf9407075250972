#include "listings/reports.h"

#include <string>

namespace fabula::listings {
namespace {

using store::TableNum;

constexpr Report kReports[] = {
    {"adventure", TableNum::Adventure, "the whole adventure, table by table", RangeOf::Nothing,
     WriteAdventure},
    {"settings", TableNum::Adventure, "the settings", RangeOf::Nothing, WriteSettings},
    {"vocabulary", TableNum::Vocabulary, "the words by type and word", RangeOf::WordTypes,
     WriteVocabularyByWord},
    {"vocabulary-numbers", TableNum::Vocabulary, "the words by type and number", RangeOf::WordTypes,
     WriteVocabularyByNumber},
    {"locations", TableNum::Locations, "the locations with their exits", RangeOf::Nothing, WriteLocations},
    {"objects", TableNum::Objects, "the objects", RangeOf::Nothing, WriteObjects},
    {"messages", TableNum::Messages, "the messages", RangeOf::Nothing, WriteMessages},
    {"system-messages", TableNum::SystemMessages, "the system messages", RangeOf::Nothing,
     WriteSystemMessages},
    {"flags", TableNum::Flags, "the flags and what they are for", RangeOf::Nothing, WriteFlags},
    {"user-flags", TableNum::Flags, "the flags that are free for the game", RangeOf::Flags, WriteUserFlags},
    {"process-descriptions", TableNum::ProcDesc, "what the process tables are for", RangeOf::Nothing,
     WriteProcessDescriptions},
    {"user-process-descriptions", TableNum::ProcDesc, "the same of those that are described",
     RangeOf::Nothing, WriteUserProcessDescriptions},
    {"processes", TableNum::ProcessTables, "the entries of process tables", RangeOf::ProcessTables,
     WriteProcessTables},
    {"verb-noun", TableNum::ProcessTables, "the entries for a verb and a noun", RangeOf::ProcessTables,
     WriteVerbAndNoun},
    {"character-sets", TableNum::Characters, "the character sets as pictures", RangeOf::Nothing,
     WriteCharacterSets},
    {"character-sets-full", TableNum::Characters, "the characters with their values", RangeOf::Nothing,
     WriteCharacterSetsInFull},
    {"graphics", TableNum::Pictures, "the pictures and their commands", RangeOf::Pictures, WriteGraphics},
    {"gosub", TableNum::Pictures, "the pictures that others need", RangeOf::Pictures, WriteGosubs},
    {"templates", TableNum::Templates, "the templates for the keypad", RangeOf::Names, WriteTemplates},
};

}  // namespace

std::span<const Report> AllReports() {
    return kReports;
}

const Report* FindReport(std::string_view name) {
    for (const Report& report : kReports) {
        if (report.name == name) return &report;
    }
    return nullptr;
}

std::string AdventureName(store::Adventure& adventure) {
    store::PreparedQuery settings = adventure.Prepare(TableNum::Adventure, "advname", "");
    return settings.First({}) ? std::string(settings.Text(0)) : "";
}

void WriteReport(const Report& report, const ReportRequest& request, store::Adventure& adventure,
                 Page& page) {
    const store::ReadTransaction reading(adventure);
    Frame frame(page, AdventureName(adventure));
    report.write({adventure, frame}, request);
}

}  // namespace fabula::listings
