#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/person.h"
#include "platform/settings.h"

namespace fabula::authoring {

/// Section and keys of the settings in which the program remembers from one start to the next.
namespace startup {
inline constexpr std::string_view kSection = "Startup";
inline constexpr std::string_view kFile = "File";                  ///< the adventure last open
inline constexpr std::string_view kDefaultName = "DefaultName";    ///< the default data, Fabula.ini
inline constexpr std::string_view kHelpName = "HelpName";          ///< the first page of the help
inline constexpr std::string_view kCurrentSet = "CurrentSet";      ///< number of the table last in the grid
inline constexpr std::string_view kCurrentESNum = "CurrentESNum";  ///< process table last viewed
}  // namespace startup

/// The files without which the authoring tool does not start.
struct ProgramFiles {
    std::filesystem::path defaultData;  ///< Fabula.ini
    std::filesystem::path help;         ///< help/contents.html
};

/// Finds them where they were the last time, else in the first of `folders` that has them, and remembers
/// that in the settings. nullopt when one is nowhere: the person has been told, and the program ends.
std::optional<ProgramFiles> FindProgramFiles(platform::Settings& settings,
                                             const std::vector<std::filesystem::path>& folders,
                                             platform::Person& person);

/// The adventure that was last open; empty when there was none or its file is gone.
std::filesystem::path LastFile(const platform::Settings& settings);

}  // namespace fabula::authoring
