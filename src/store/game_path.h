#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace fabula::store {

/// Where a path that an adventure names leads.
struct GamePath {
    enum class Fault {
        None,
        Outside,  ///< it leaves the game's folder, itself or by a link
        Missing,  ///< there is no such file
    };

    std::filesystem::path file;  ///< absolute and free of links; empty with a fault
    Fault fault = Fault::None;
};

/// The file that `stored`, relative to the game's folder, names. Folders may be parted by "\" and names may
/// differ in case, since games come from systems where both are usual. What a stranger's game names is read
/// only below its own folder: an absolute path, one with a drive, one that climbs out and a link that leads
/// out are refused, and so is all that is no ordinary file.
GamePath FindGameFile(const std::filesystem::path& folder, std::string_view stored);

/// The other way round: the path under which a game names `file`, relative to its folder and with "/"
/// between folders; nullopt when the file lies outside, itself or by a link. The file need not be there
/// yet.
std::optional<std::string> PathInGame(const std::filesystem::path& folder,
                                      const std::filesystem::path& file);

}  // namespace fabula::store
