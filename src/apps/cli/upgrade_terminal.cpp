#include "cli/upgrade_terminal.h"

#include <iostream>

#include "authoring/files/backups.h"
#include "cli/terminal_person.h"
#include "platform/clock.h"
#include "platform/user_folders.h"
#include "text/safe_text.h"

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
    if (state.empty()) return;
    const platform::SystemClock clock;
    TerminalPerson person;
    authoring::Backups backups(state / "backups", clock);
    authoring::BackUpAtOpening(backups, adventure, person);
}

bool UpgradeTerminal::ShowFlagChange(const upgrades::Report& report) {
    TellReport(report);
    return false;
}

}  // namespace fabula::cli
