#include "cli/verb.h"
#include "store/adventure.h"
#include "text/format.h"

namespace fabula::cli {
namespace {

int ShowTables(const std::string& file) {
    const auto adventure = store::Adventure::Open(file, store::OpenMode::ReadOnly);
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

void AddTablesVerb(CLI::App& app, Chosen& chosen) {
    const auto file = std::make_shared<std::string>();
    CLI::App* verb =
        app.add_subcommand("tables", "Shows the tables of an adventure, with their numbers and sizes");
    verb->add_option("file", *file, "The file, FILE.fbd")->required();
    verb->callback([file, &chosen] { chosen.body = [file] { return ShowTables(*file); }; });
}

}  // namespace fabula::cli
