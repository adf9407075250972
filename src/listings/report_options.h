#pragma once

#include <optional>
#include <string>

#include "listings/reports.h"

namespace fabula::listings {

/// What a command line says of a report.
struct ReportOptions {
    std::optional<std::string> range;  ///< without one, all there is
    bool verbose = false;
    bool complete = false;
    bool brief = false;  ///< not together with `verbose`
    std::string verb = "_";
    std::string noun = "_";
};

/// What to ask the report for. Throws fabula::Error with the message of the range when that is none, for a
/// report that takes no range, and when the adventure can't be read.
ReportRequest RequestOf(const Report& report, const ReportOptions& options, store::Adventure& adventure);

}  // namespace fabula::listings
