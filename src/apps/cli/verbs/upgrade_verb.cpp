#include <iostream>

#include "cli/host/upgrade_terminal.h"
#include "cli/installation.h"
#include "cli/verbs.h"
#include "text/encoding/safe_text.h"
#include "upgrades/upgrade.h"

namespace fabula::cli {
namespace {

struct UpgradeOptions {
    std::string file;
    bool check = false;
};

int Upgrade(const UpgradeOptions& options) {
    const auto defaultData = DefaultDataFile();
    if (!options.check) {
        OpenToChange(options.file);
        return kDone;
    }
    const upgrades::Outlook outlook = upgrades::LookAhead(options.file, defaultData);
    for (const std::string& step : outlook.steps)
        std::cout << step << "\n";
    for (const upgrades::Report& report : outlook.reports)
        TellReport(report);
    return outlook.steps.empty() ? kDone : kFailed;
}

}  // namespace

void AddUpgradeVerb(CLI::App& verb, Chosen& chosen) {
    const auto options = std::make_shared<UpgradeOptions>();
    AddAdventureOption(verb, options->file)->required();
    verb.add_flag("--check", options->check,
                  "Only say what is needed: status 1 when something is, and no change");
    Runs(verb, chosen, options, Upgrade);
}

}  // namespace fabula::cli
