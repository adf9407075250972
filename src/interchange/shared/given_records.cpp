#include "interchange/shared/given_records.h"

#include "text/encoding/utf8.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kLongestName = 255;

}  // namespace

bool HasEntry(store::Adventure& adventure, const GivenEntry& entry) {
    return adventure
        .Prepare(store::TableNum::ProcessTables, "canum", "estype=0 and w1=? and w2=? and condacts=?")
        .First({entry.w1, entry.w2, entry.condActs});
}

void NameGame(store::Adventure& adventure, std::string_view name) {
    if (name.empty()) return;
    store::Cursor& settings = adventure.OpenTable(store::TableNum::Adventure, "def");
    settings.SetField("advname", std::string(text::Left(name, kLongestName)));
    settings.Update();
}

}  // namespace fabula::interchange
