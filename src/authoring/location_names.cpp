#include "authoring/location_names.h"

#include <algorithm>

#include "authoring/brief_text.h"

namespace fabula::authoring {

std::vector<ListItem> LocationNames(store::Adventure& adventure) {
    store::PreparedQuery rows =
        adventure.Prepare(store::TableNum::Locations, "locnum, locshortdesc, locdesc", "");
    std::vector<ListItem> locations;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        locations.push_back({static_cast<int>(rows.Number(0)), BriefText(rows.Text(1), rows.Text(2))});
    }
    return locations;
}

std::string NameIn(const std::vector<ListItem>& locations, int number) {
    const auto found = std::find_if(locations.begin(), locations.end(),
                                    [number](const ListItem& item) { return item.number == number; });
    return found == locations.end() ? "" : found->text;
}

}  // namespace fabula::authoring
