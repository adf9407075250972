#include "authoring/fields/location_names.h"

#include <algorithm>
#include <utility>

#include "authoring/fields/texts/brief_text.h"
#include "text/fields.h"
#include "text/line_ends.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

/// What a description begins with. One that has a heading stands in lists by that.
std::string NameFrom(std::string_view description) {
    std::string lines(description);
    for (const std::string_view tag : {"<BR>", "<br>", "<CR>", "<cr>"})
        lines = text::ReplaceAll(lines, tag, text::kLineEndMarker);
    for (const std::string_view line : text::Split(lines, text::kLineEndMarker)) {
        if (const std::string name = BriefText(line); !name.empty()) return name;
    }
    return "";
}

}  // namespace

std::vector<ListItem> LocationNames(store::Adventure& adventure) {
    store::PreparedQuery rows =
        adventure.Prepare(store::TableNum::Locations, "locnum, locshortdesc, locdesc", "");
    std::vector<ListItem> locations;
    for (bool more = rows.First({}); more; more = rows.Next()) {
        std::string name = BriefText(rows.Text(1));
        if (name.empty()) name = NameFrom(rows.Text(2));
        locations.push_back({static_cast<int>(rows.Number(0)), std::move(name)});
    }
    return locations;
}

std::string NameIn(const std::vector<ListItem>& locations, condacts::PlaceNumber number) {
    const auto found = std::find_if(locations.begin(), locations.end(),
                                    [number](const ListItem& item) { return item.number == number.value; });
    return found == locations.end() ? "" : found->text;
}

}  // namespace fabula::authoring
