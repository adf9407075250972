#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/target.h"
#include "cli/terminal_operator.h"
#include "cli/verbs.h"
#include "listings/outputs.h"
#include "listings/range_text.h"
#include "listings/reports.h"
#include "platform/error.h"
#include "text/fields.h"
#include "text/str_edit.h"
#include "text/utf8.h"

namespace fabula::cli {
namespace {

using listings::RangeOf;

struct Options {
    std::string file;
    std::string report;
    std::optional<std::string> range;
    bool verbose = false;
    bool complete = false;
    bool brief = false;
    std::string verb = "_";
    std::string noun = "_";
    std::string output = store::kStandardOutput;
    bool force = false;
};

const listings::Report& ReportNamed(const std::string& name) {
    const listings::Report* const report = listings::FindReport(name);
    if (report) return *report;
    throw UsageError("there is no report '" + name + "'; 'fabula list --help' shows them");
}

std::vector<std::string> NamesIn(const std::string& range) {
    std::vector<std::string> names;
    for (const std::string_view name : text::Split(range, ","))
        names.emplace_back(text::TrimBlanks(name));
    return names;
}

/// What the range says for the report. Without one, all there is.
void ApplyRange(const listings::Report& report, const std::string& range, bool special,
                store::Adventure& adventure, listings::ReportRequest& request) {
    if (report.range == RangeOf::Names) {
        request.names = NamesIn(range);
        return;
    }
    if (report.range == RangeOf::Nothing)
        throw UsageError("the report '" + std::string(report.name) + "' takes no range");
    const listings::RangeCheck check = listings::ValidateRange(range, report.table, adventure, special);
    if (!check.Passed()) throw Error(check.fault);
    if (report.range == RangeOf::Flags) {
        if (!check.numbers.empty()) request.extraEntries = check.numbers.front();
    } else {
        request.numbers = check.numbers;
    }
}

listings::ReportRequest RequestOf(const listings::Report& report, const Options& options,
                                  store::Adventure& adventure) {
    listings::ReportRequest request;
    if (options.verbose) request.detail = listings::Detail::Verbose;
    if (options.brief) request.detail = listings::Detail::Brief;
    request.complete = options.complete;
    request.verb = options.verb;
    request.noun = options.noun;
    const bool special = report.write == listings::WriteVerbAndNoun;
    if (options.range) ApplyRange(report, *options.range, special, adventure, request);
    return request;
}

int List(const Options& options) {
    const listings::Report& report = ReportNamed(options.report);
    TerminalOperator person;
    CheckTarget({options.output, store::Content::Text, {}, options.file, options.force}, person);
    const auto adventure = OpenToRead(options.file);
    const listings::ReportRequest request = RequestOf(report, options, *adventure);
    store::WriteFile(options.output, listings::IsHtmlName(options.output)
                                         ? listings::HtmlListing(report, request, *adventure)
                                         : listings::TextListing(report, request, *adventure));
    return kDone;
}

/// "settings             the settings"
std::string ReportNames() {
    constexpr std::size_t kNameWidth = 28;
    std::string names = "REPORT is one of:";
    for (const listings::Report& report : listings::AllReports())
        names.append("\n  ").append(text::PadRight(report.name, kNameWidth)).append(report.tells);
    return names;
}

}  // namespace

void AddListVerb(CLI::App& app, Chosen& chosen) {
    const auto options = std::make_shared<Options>();
    CLI::App* verb = app.add_subcommand("list", "Lists the records of an adventure as they are printed");
    verb->footer(ReportNames());
    AddAdventureOption(*verb, options->file)->required();
    verb->add_option("report", options->report, "The report")->required();
    verb->add_option("--range", options->range,
                     "Of process tables and pictures which, \"1,3-5,9\", \"3-\" or ALL; of user-flags how "
                     "many behind 60; of templates their names, or files *.tpl");
    CLI::Option* verbose = verb->add_flag("--verbose", options->verbose, "Tell more beside each record");
    verb->add_flag("--complete", options->complete,
                   "List locations with their conditional exits and the objects that are present");
    verb->add_flag("--brief", options->brief, "One line for each record")->excludes(verbose);
    verb->add_option("--verb", options->verb, "The verb of verb-noun");
    verb->add_option("--noun", options->noun, "The noun of verb-noun");
    verb->add_option("--output", options->output,
                     "The file to write, *.txt or *.html; - is standard output, as text")
        ->capture_default_str();
    AddForceFlag(*verb, options->force);
    Runs(*verb, chosen, options, List);
}

}  // namespace fabula::cli
