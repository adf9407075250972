#pragma once

#include <filesystem>
#include <string>

#include "listings/pages/paper.h"
#include "listings/reports.h"

namespace fabula::listings {

// A report in each of the forms that a listing has. They throw as WriteReport does.

std::string TextListing(const Report& report, const ReportRequest& request, store::Adventure& adventure);
std::string HtmlListing(const Report& report, const ReportRequest& request, store::Adventure& adventure);
Paper PaperListing(const Report& report, const ReportRequest& request, store::Adventure& adventure);

/// Whether a file's name asks for HTML: ".html" or ".htm", in any case.
bool IsHtmlName(const std::filesystem::path& file);

}  // namespace fabula::listings
