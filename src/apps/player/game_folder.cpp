#include "player/game_folder.h"

#include <cstdint>
#include <cstdio>

namespace fabula::player {

namespace {

constexpr std::size_t kLongestName = 64;

std::string FolderName(std::string_view saveName) {
    constexpr std::string_view kForbidden = "/\\:*?\"<>|";
    std::string name;
    for (const char c : saveName.substr(0, kLongestName)) {
        const bool control = static_cast<unsigned char>(c) < 32 || c == 127;
        name += control || kForbidden.find(c) != std::string_view::npos ? '_' : c;
    }
    name.erase(0, name.find_first_not_of(" ."));
    name.erase(name.find_last_not_of(" .") + 1);
    return name.empty() ? "Untitled" : name;
}

/// FNV-1a: the same on every machine and in every build, as names of files must be.
std::uint64_t HashOf(std::string_view text) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    return hash;
}

}  // namespace

GameFolder FolderOfGame(const std::filesystem::path& dataFolder, std::string_view saveName,
                        const std::filesystem::path& adventureFile) {
    const auto folder = dataFolder / FolderName(saveName);
    std::error_code error;
    auto place = std::filesystem::canonical(adventureFile, error);
    if (error) place = adventureFile;
    char name[40];
    std::snprintf(name, sizeof name, "autosave-%016llx.sav",
                  static_cast<unsigned long long>(HashOf(place.string())));
    return {folder, folder / name};
}

}  // namespace fabula::player
