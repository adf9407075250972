#include "cli/host/upgrade_terminal.h"

#include <iostream>

#include "authoring/files/backups.h"
#include "platform/clock.h"
#include "platform/error.h"
#include "platform/user_folders.h"
#include "text/encoding/safe_text.h"

namespace fabula::cli {

void TellReport(const upgrades::Report& report) {
    std::cerr << report.title << "\n" << text::SafeLines(report.text) << "\n";
}

void UpgradeTerminal::BeginSteps(std::string_view list) {
    // A longer list of the same group begins with what was shown.
    const bool goesOn = !shown_.empty() && list.starts_with(shown_);
    std::cerr << list.substr(goesOn ? shown_.size() : 0);
    shown_ = list;
}

void UpgradeTerminal::BeforeChange(store::Adventure& adventure) {
    const auto state = platform::UserStateFolder(platform::Environment::OfTheProgram());
    if (state.empty())
        throw Error("Could not make a backup copy of " + adventure.CurrentFile().string() +
                    ": neither HOME nor XDG_STATE_HOME names a folder for it.");
    const platform::SystemClock clock;
    authoring::Backups(state / "backups", clock).Add(adventure);
}

bool UpgradeTerminal::ShowFlagChange(const upgrades::Report& report) {
    TellReport(report);
    return false;
}

}  // namespace fabula::cli
