#include "authoring/location_names.h"

#include <algorithm>

#include "text/markup.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::authoring {
namespace {

std::string Plain(std::string_view description) {
    std::string tags;
    const std::string shown = text::ReplaceEntities(text::StripTags(description, tags));
    return std::string(text::TrimBlanks(text::CollapseBlanks(shown)));
}

}  // namespace

std::string LocationName(std::string_view shortDescription, std::string_view description) {
    std::string name = Plain(shortDescription);
    if (name.empty()) name = Plain(description);
    const std::u32string letters = text::Decode(name);
    if (letters.size() <= kLongestLocationName) return name;
    return text::Encode(letters.substr(0, kLongestLocationName - 1)) + "\u2026";
}

std::vector<ListItem> LocationNames(store::Adventure& adventure) {
    store::PreparedQuery rows =
        adventure.Prepare(store::TableNum::Locations, "locnum, locshortdesc, locdesc", "");
    std::vector<ListItem> locations;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        locations.push_back({static_cast<int>(rows.Number(0)), LocationName(rows.Text(1), rows.Text(2))});
    }
    return locations;
}

std::string NameIn(const std::vector<ListItem>& locations, int number) {
    const auto found = std::find_if(locations.begin(), locations.end(),
                                    [number](const ListItem& item) { return item.number == number; });
    return found == locations.end() ? "" : found->text;
}

}  // namespace fabula::authoring
