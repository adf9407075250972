#include "listings/report_options.h"

#include <string_view>
#include <vector>

#include "listings/range_text.h"
#include "platform/error.h"
#include "text/fields.h"
#include "text/str_edit.h"

namespace fabula::listings {
namespace {

std::vector<std::string> NamesIn(const std::string& range) {
    std::vector<std::string> names;
    for (const std::string_view name : text::Split(range, ","))
        names.emplace_back(text::TrimBlanks(name));
    return names;
}

void ApplyRange(const Report& report, const std::string& range, store::Adventure& adventure,
                ReportRequest& request) {
    if (report.range == RangeOf::Nothing)
        throw Error("The report '" + std::string(report.name) + "' takes no range.");
    if (report.range == RangeOf::Names) {
        request.names = NamesIn(range);
        return;
    }
    const bool special = report.write == WriteVerbAndNoun;
    const RangeCheck check = ValidateRange(range, report.table, adventure, special);
    if (!check.Passed()) throw Error(check.fault);
    if (report.range == RangeOf::Flags) {
        if (!check.numbers.empty()) request.extraEntries = check.numbers.front();
    } else {
        request.numbers = check.numbers;
    }
}

}  // namespace

ReportRequest RequestOf(const Report& report, const ReportOptions& options, store::Adventure& adventure) {
    ReportRequest request;
    if (options.verbose) request.detail = Detail::Verbose;
    if (options.brief) request.detail = Detail::Brief;
    request.complete = options.complete;
    request.verb = options.verb;
    request.noun = options.noun;
    if (options.range) ApplyRange(report, *options.range, adventure, request);
    return request;
}

}  // namespace fabula::listings
