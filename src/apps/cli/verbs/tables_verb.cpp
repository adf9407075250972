#include "cli/verbs.h"
#include "store/adventure.h"
#include "text/format.h"

namespace fabula::cli {
namespace {

struct TablesOptions {
    std::string file;
};

int ShowTables(const TablesOptions& options) {
    const auto adventure = OpenToRead(options.file);
    for (int number = 1; number <= store::kHighestTable; ++number) {
        const auto tableNum = static_cast<store::TableNum>(number);
        const store::TableEntry* table = store::FindTable(tableNum);
        if (!table || table->number != tableNum) continue;
        const std::int64_t records = adventure->OpenTable(tableNum, table->key).RecordCount();
        std::cout << text::FormatText("%s2!  !%a14! !%s6",
                                      {std::int64_t{number}, std::string(table->name), records})
                  << (records == 1 ? " record\n" : " records\n");
    }
    return kDone;
}

}  // namespace

void AddTablesVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<TablesOptions>();
    AddAdventureOption(verb, options->file)->required();
    Runs(verb, chosen, options, ShowTables);
}

}  // namespace fabula::cli
