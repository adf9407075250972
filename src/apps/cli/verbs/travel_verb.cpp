#include <iostream>

#include "cli/host/console.h"
#include "cli/host/fault_report.h"
#include "cli/target.h"
#include "cli/verbs.h"
#include "packages/travel_report.h"

namespace fabula::cli {
namespace {

struct TravelOptions {
    std::string file;
    std::string data = packages::kTravelData;
    std::string report = packages::kTravelReport;
    bool force = false;
};

int Convert(const TravelOptions& options) {
    Console console(std::cerr);
    CheckTarget({options.report, store::Content::Text, ".lis", options.data, options.force},
                console.Person());
    authoring::Document document(options.file);
    interchange::JobStatus status(console.Observer());
    const packages::TravelResult result =
        packages::Analyze_advent(document, options.data, options.report, status);
    if (!result.done) {
        std::cerr << CountOf(status.AllFaults()) << " Nothing was changed.\n";
        return kFailed;
    }
    std::cerr << result.rooms << " rooms, " << result.rows << " travel rows, " << result.objects
              << " objects; " << result.wordsAdded << " words added.\n";
    return kDone;
}

}  // namespace

void AddTravelVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<TravelOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_option("data", options->data, "The data file that is read; advent-comm.dat");
    verb.add_option("report", options->report, "The report that is written; Advent.lis");
    AddForceFlag(verb, options->force);
    Runs(verb, chosen, options, Convert);
}

}  // namespace fabula::cli
