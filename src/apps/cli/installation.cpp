#include "cli/installation.h"

#include "platform/error.h"
#include "platform/user_folders.h"

namespace fabula::cli {

std::filesystem::path DefaultDataFile() {
    const auto folders =
        platform::ProgramDataFolders(platform::RunningProgram(), platform::Environment::OfTheProgram());
    const auto file = platform::FindFile(folders, "Fabula.ini");
    if (!file) throw Error("Could not find the default data, Fabula.ini.");
    return *file;
}

}  // namespace fabula::cli
