#include "cli/verb.h"

#include "cli/host/terminal_person.h"
#include "cli/host/upgrade_terminal.h"
#include "cli/installation.h"
#include "upgrades/upgrade.h"

namespace fabula::cli {

CLI::Option* AddAdventureOption(CLI::App& verb, std::string& file) {
    return verb.add_option("file", file, "The adventure, FILE.fbd");
}

CLI::Option* AddForceFlag(CLI::App& verb, bool& force) {
    return verb.add_flag("--force", force, "Replace a file that exists");
}

std::unique_ptr<store::Adventure> OpenToRead(const std::string& file) {
    TerminalPerson person;
    return upgrades::OpenForReading(file, FindDefaultData(),
                                    [&](std::string_view sentence) { person.Tell(sentence, ""); });
}

std::unique_ptr<store::Adventure> OpenToChange(const std::string& file) {
    UpgradeTerminal terminal;
    return upgrades::OpenUpgraded(file, FindDefaultData(), terminal);
}

}  // namespace fabula::cli
