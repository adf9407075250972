#pragma once

#include <filesystem>
#include <string>

#include "listings/report_options.h"

namespace fabula::ide {

/// What `FabulaIDE --print-to` is asked for.
struct PrintToOrder {
    std::filesystem::path file;  ///< the PDF file
    std::filesystem::path adventure;
    std::string report;
    listings::ReportOptions options = {};
    bool force = false;  ///< replace a file that exists
};

/// Prints a report of an adventure into a PDF file. Throws fabula::Error with one sentence; nothing is
/// written then.
void PrintTo(const PrintToOrder& order);

}  // namespace fabula::ide
