#include "interchange/given_records.h"

#include "text/utf8.h"

namespace fabula::interchange {
namespace {

constexpr std::size_t kLongestName = 255;

}  // namespace

void NameGame(store::Adventure& adventure, std::string_view name) {
    if (name.empty()) return;
    store::Cursor& settings = adventure.OpenTable(store::TableNum::Adventure, "def");
    settings.SetField("advname", std::string(text::Left(name, kLongestName)));
    settings.Update();
}

}  // namespace fabula::interchange
