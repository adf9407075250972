#include "terminal/player_files.h"

namespace fabula::terminal {

ScratchFiles::ScratchFiles(std::filesystem::path scriptFolder) : scriptFolder_(std::move(scriptFolder)) {}

std::filesystem::path ScratchFiles::Place(const std::filesystem::path& name, bool forWriting) const {
    const std::filesystem::path written = scratch_.Path() / name.filename();
    std::error_code ignored;
    return forWriting || std::filesystem::exists(written, ignored) ? written
                                                                   : scriptFolder_ / name.filename();
}

}  // namespace fabula::terminal
