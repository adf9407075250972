#include "platform/user_folders.h"

#include <cstdlib>
#include <sstream>
#include <system_error>

#include "platform/error.h"

namespace fabula::platform {
namespace {

using std::filesystem::path;

/// The user's folders are named as the application is, those of an installation as its package.
constexpr const char* kApplication = "Fabula";
constexpr const char* kPackage = "fabula";
constexpr const char* kUsualDataDirs = "/usr/local/share:/usr/share";

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

path UserFolder(const std::string& base, const std::string& home, const char* belowHome) {
    if (path(base).is_absolute()) return path(base) / kApplication;
    if (path(home).is_absolute()) return path(home) / belowHome / kApplication;
    return {};
}

}  // namespace

Environment Environment::OfTheProgram() {
    return {Variable("HOME"), Variable("XDG_DATA_DIRS"), Variable("XDG_DATA_HOME"),
            Variable("XDG_STATE_HOME")};
}

path RunningProgram() {
    std::error_code error;
    path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) throw Error("Could not find out where the program lies: " + error.message() + ".");
    return program;
}

std::vector<path> ProgramDataFolders(const path& program, const Environment& environment) {
    const path beside = program.parent_path();
    std::vector<path> folders{beside, beside.parent_path() / "share" / kPackage};
    std::istringstream installed(environment.dataDirs.empty() ? kUsualDataDirs : environment.dataDirs);
    for (std::string folder; std::getline(installed, folder, ':');) {
        if (path(folder).is_absolute()) folders.push_back(path(folder) / kPackage);
    }
    const path users = UserDataFolder(environment);
    if (!users.empty()) folders.push_back(users);
    return folders;
}

path UserDataFolder(const Environment& environment) {
    return UserFolder(environment.dataHome, environment.home, ".local/share");
}

path UserStateFolder(const Environment& environment) {
    return UserFolder(environment.stateHome, environment.home, ".local/state");
}

std::optional<path> FindFile(const std::vector<path>& folders, const path& name) {
    for (const path& folder : folders) {
        std::error_code missing;  // what can't be looked at counts as not there
        if (std::filesystem::is_regular_file(folder / name, missing)) return folder / name;
    }
    return std::nullopt;
}

}  // namespace fabula::platform
