#include "player/play/game_folder.h"

#include "platform/file_names.h"
#include "store/extensions.h"

namespace fabula::player {

GameFolder FolderOfGame(const std::filesystem::path& dataFolder, std::string_view saveName,
                        const std::filesystem::path& adventureFile) {
    const auto folder = dataFolder / platform::SafeFileName(saveName);
    return {folder, folder / ("autosave-" + platform::PlaceCode(adventureFile) +
                              std::string(store::extension::kSavedGame))};
}

}  // namespace fabula::player
