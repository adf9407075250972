#include "listings/reports.h"

#include <string>

namespace fabula::listings {
namespace {

using store::TableNum;

constexpr Report kReports[] = {
    {"adventure", TableNum::Adventure, "the whole adventure, table by table", "", RangeOf::Nothing,
     WriteAdventure},
    {"settings", TableNum::Adventure, "the settings", "Settings", RangeOf::Nothing, WriteSettings, true},
    {"vocabulary", TableNum::Vocabulary, "the words by type and word", "By Type and Word",
     RangeOf::WordTypes, WriteVocabularyByWord, true},
    {"vocabulary-numbers", TableNum::Vocabulary, "the words by type and number", "By Type and Word Number",
     RangeOf::WordTypes, WriteVocabularyByNumber},
    {"locations", TableNum::Locations, "the locations with their exits", "Locations", RangeOf::Nothing,
     WriteLocations, true},
    {"objects", TableNum::Objects, "the objects", "Objects", RangeOf::Nothing, WriteObjects, true},
    {"messages", TableNum::Messages, "the messages", "Messages", RangeOf::Nothing, WriteMessages, true},
    {"system-messages", TableNum::SystemMessages, "the system messages", "System Messages",
     RangeOf::Nothing, WriteSystemMessages, true},
    {"flags", TableNum::Flags, "the flags and what they are for", "All Flags", RangeOf::Nothing, WriteFlags,
     true},
    {"user-flags", TableNum::Flags, "the flags that are free for the game", "User Flags", RangeOf::Flags,
     WriteUserFlags},
    {"process-descriptions", TableNum::ProcDesc, "what the process tables are for", "All Process Tables",
     RangeOf::Nothing, WriteProcessDescriptions, true},
    {"user-process-descriptions", TableNum::ProcDesc, "the same of those that are described",
     "Described Process Tables", RangeOf::Nothing, WriteUserProcessDescriptions},
    {"processes", TableNum::ProcessTables, "the entries of process tables", "Processes",
     RangeOf::ProcessTables, WriteProcessTables, true},
    {"verb-noun", TableNum::ProcessTables, "the entries for a verb and a noun", "", RangeOf::ProcessTables,
     WriteVerbAndNoun},
    {"character-sets", TableNum::Characters, "the character sets as pictures", "Pictures of the Characters",
     RangeOf::Nothing, WriteCharacterSets, true},
    {"character-sets-full", TableNum::Characters, "the characters with their values",
     "Full Listing with Values", RangeOf::Nothing, WriteCharacterSetsInFull},
    {"graphics", TableNum::Pictures, "the pictures and their commands", "Pictures and Commands",
     RangeOf::Pictures, WriteGraphics, true},
    {"gosub", TableNum::Pictures, "the pictures that others need", "GOSUB Report", RangeOf::Pictures,
     WriteGosubs},
    {"templates", TableNum::Templates, "the templates for the keypad", "Keypad Template", RangeOf::Names,
     WriteTemplates},
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
