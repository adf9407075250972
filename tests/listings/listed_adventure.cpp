#include "listed_adventure.h"

#include <stdexcept>

namespace fabula::listings {

void AddRecord(store::Adventure& adventure, store::TableNum table,
               std::initializer_list<std::pair<std::string_view, text::Value>> fields) {
    store::Cursor& cursor = adventure.OpenTable(table, "def");
    cursor.AddNew();
    for (const auto& [field, value] : fields)
        cursor.SetField(field, value);
    cursor.Update();
}

void Empty(store::Adventure& adventure, store::TableNum table) {
    adventure.DeleteFrom(table);
}

std::string Listed(store::Adventure& adventure, std::string_view report, const ReportRequest& request,
                   int linesPerPage) {
    const Report* const found = FindReport(report);
    if (!found) throw std::logic_error("no report of that name");
    TextPage page(linesPerPage);
    WriteReport(*found, request, adventure, page);
    return page.Text();
}

std::string Behind(const std::string& listing, std::string_view rule) {
    const std::size_t at = listing.find(rule);
    if (at == std::string::npos) throw std::logic_error("no such rule");
    return listing.substr(listing.find('\n', at) + 1);
}

}  // namespace fabula::listings
