#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "listings/pages/text_page.h"
#include "listings/reports.h"
#include "support/games/template_adventure.h"
#include "text/value.h"

namespace fabula::listings {

/// Adds a record with these fields.
void AddRecord(store::Adventure& adventure, store::TableNum table,
               std::initializer_list<std::pair<std::string_view, text::Value>> fields);

/// Empties a table.
void Empty(store::Adventure& adventure, store::TableNum table);

/// The text of a report, on pages of so many lines; 0 for one page without end.
std::string Listed(store::Adventure& adventure, std::string_view report, const ReportRequest& request = {},
                   int linesPerPage = 0);

/// The part of a listing behind its headings: what follows the first line of dashes that `rule` is a part
/// of.
std::string Behind(const std::string& listing, std::string_view rule);

}  // namespace fabula::listings
