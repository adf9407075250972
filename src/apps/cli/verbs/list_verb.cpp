#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/host/terminal_person.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "listings/pages/outputs.h"
#include "listings/report_options.h"
#include "text/encoding/utf8.h"

namespace fabula::cli {
namespace {

struct ListOptions {
    std::string file;
    std::string report;
    listings::ReportOptions asked;
    std::string output = store::kStandardOutput;
    bool force = false;
};

/// The report that asks for a verb and a noun, and what it takes for any.
constexpr std::string_view kReportOfWords = "verb-noun";
constexpr std::string_view kAnyListedWord = "_";

const listings::Report& ReportNamed(const std::string& name) {
    const listings::Report* const report = listings::FindReport(name);
    if (report) return *report;
    throw UsageError("there is no report '" + name + "'; 'fabula list --help' shows them");
}

listings::ReportRequest RequestOf(const listings::Report& report, const ListOptions& options,
                                  store::Adventure& adventure) {
    if (options.asked.range && report.range == listings::RangeOf::Nothing)
        throw UsageError("the report '" + std::string(report.name) + "' takes no range");
    const bool namesWords = options.asked.verb != kAnyListedWord || options.asked.noun != kAnyListedWord;
    if (namesWords && report.name != kReportOfWords)
        throw UsageError("the report '" + std::string(report.name) + "' takes no verb and no noun");
    return listings::RequestOf(report, options.asked, adventure);
}

/// What other programs would take a listing for.
constexpr std::string_view kOtherForms[] = {".doc", ".docx", ".odt", ".pdf", ".ps", ".rtf"};

void CheckForm(const std::filesystem::path& output) {
    const std::string extension = text::LowerCase(output.extension().string());
    if (std::ranges::find(kOtherForms, extension) != std::end(kOtherForms))
        throw UsageError("a listing is a *.txt or *.html file, not *" + extension);
}

int MakeListing(const ListOptions& options) {
    const listings::Report& report = ReportNamed(options.report);
    TerminalPerson person;
    CheckForm(options.output);
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

void AddListVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<ListOptions>();
    verb.footer(ReportNames());
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("report", options->report, "The report")->required();
    verb.add_option("--range", options->asked.range,
                    "Of process tables and pictures which, \"1,3-5,9\", \"3-\" or ALL; of user-flags how "
                    "many behind 60; of templates their names, or files *.tpl");
    CLI::Option* verbose =
        verb.add_flag("--verbose", options->asked.verbose, "Tell more beside each record");
    verb.add_flag("--complete", options->asked.complete,
                  "List locations with their conditional exits and the objects that are present");
    verb.add_flag("--brief", options->asked.brief, "One line for each record")->excludes(verbose);
    verb.add_option("--verb", options->asked.verb, "The verb of verb-noun");
    verb.add_option("--noun", options->asked.noun, "The noun of verb-noun");
    verb.add_option("--output", options->output,
                    "The file to write, *.txt or *.html; - is standard output, as text")
        ->capture_default_str();
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, MakeListing);
}

}  // namespace fabula::cli
