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

std::filesystem::path InstalledEngine() {
    const auto engine = platform::RunningProgram().parent_path() / "FabulaEngine";
    std::error_code error;  // what can't be looked at is not there
    return std::filesystem::is_regular_file(engine, error) ? engine : std::filesystem::path();
}

}  // namespace fabula::cli
