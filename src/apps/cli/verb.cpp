#include "cli/verb.h"

namespace fabula::cli {

CLI::Option* AddAdventureOption(CLI::App& verb, std::string& file) {
    return verb.add_option("file", file, "The adventure, FILE.fbd");
}

CLI::Option* AddForceFlag(CLI::App& verb, bool& force) {
    return verb.add_flag("--force", force, "Replace a file that exists");
}

std::unique_ptr<store::Adventure> OpenToRead(const std::string& file) {
    return store::Adventure::Open(file, store::OpenMode::ReadOnly);
}

std::unique_ptr<store::Adventure> OpenToChange(const std::string& file) {
    return store::Adventure::OpenForChange(file);
}

}  // namespace fabula::cli
