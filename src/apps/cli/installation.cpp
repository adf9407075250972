#include "cli/installation.h"

#include "platform/error.h"
#include "platform/user_folders.h"

namespace fabula::cli {

std::filesystem::path FindDefaultData() {
    const auto folders =
        platform::ProgramDataFolders(platform::RunningProgram(), platform::Environment::OfTheProgram());
    return platform::FindFile(folders, "Fabula.ini").value_or(std::filesystem::path());
}

std::filesystem::path DefaultDataFile() {
    auto file = FindDefaultData();
    if (file.empty()) throw Error("Could not find the default data, Fabula.ini.");
    return file;
}

}  // namespace fabula::cli
