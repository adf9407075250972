#include "listings/reports.h"

namespace fabula::listings {

void WriteAdventure(const Listing& listing, const ReportRequest& request) {
    const ReportRequest whole{.detail = request.detail, .complete = true};
    for (const Report& report : AllReports()) {
        const bool isTold = request.detail != Detail::Brief || HasBrief(report.table);
        if (report.isOfBook && isTold) report.write(listing, whole);
    }
}

}  // namespace fabula::listings
