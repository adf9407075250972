#include "authoring/files/start_up.h"

#include <string>
#include <system_error>

#include "platform/user_folders.h"

namespace fabula::authoring {
namespace {

using std::filesystem::path;

bool IsFileThere(const path& file) {
    std::error_code missing;  // what can't be looked at counts as gone
    return std::filesystem::is_regular_file(file, missing);
}

struct Wanted {
    std::string_view key;  ///< of the settings
    std::string_view name;
    std::string_view missing;
};

constexpr Wanted kDefaultData{startup::kDefaultName, "Fabula.ini", "Cannot find the Fabula.ini. Aborting"};
constexpr Wanted kWantedHelp{startup::kHelpName, "help/contents.html",
                             "Cannot find the Fabula Help File. Aborting"};

std::optional<path> Find(const Wanted& wanted, platform::Settings& settings,
                         const std::vector<path>& folders, platform::Person& person) {
    const path remembered = settings.Get(startup::kSection, wanted.key);
    if (IsFileThere(remembered)) return remembered;
    auto found = platform::FindFile(folders, wanted.name);
    if (found) {
        settings.Set(startup::kSection, wanted.key, found->string());
    } else {
        person.Tell(wanted.missing, "Error");
    }
    return found;
}

}  // namespace

std::optional<ProgramFiles> FindProgramFiles(platform::Settings& settings, const std::vector<path>& folders,
                                             platform::Person& person) {
    const auto defaultData = Find(kDefaultData, settings, folders, person);
    if (!defaultData) return std::nullopt;
    const auto help = Find(kWantedHelp, settings, folders, person);
    if (!help) return std::nullopt;
    return ProgramFiles{*defaultData, *help};
}

path LastFile(const platform::Settings& settings) {
    const path file = settings.Get(startup::kSection, startup::kFile);
    return IsFileThere(file) ? file : path();
}

}  // namespace fabula::authoring
