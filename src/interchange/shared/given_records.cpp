#include "interchange/shared/given_records.h"

#include "store/schema/record_check.h"
#include "text/encoding/utf8.h"

namespace fabula::interchange {

bool HasEntry(store::Adventure& adventure, const GivenEntry& entry) {
    return adventure
        .Prepare(store::TableNum::ProcessTables, "canum", "estype=0 and w1=? and w2=? and condacts=?")
        .First({entry.w1, entry.w2, entry.condActs});
}

void NameGame(store::Adventure& adventure, std::string_view name) {
    if (name.empty()) return;
    store::Cursor& settings = adventure.OpenTable(store::TableNum::Adventure, "def");
    const std::size_t longest = store::LongestText(adventure.Schema(store::TableNum::Adventure), "advname");
    settings.SetField("advname", std::string(text::Left(name, longest)));
    settings.Update();
}

}  // namespace fabula::interchange
