#include "terminal/player_files.h"

#include <string>

#include <stdlib.h>

#include "platform/error.h"

namespace fabula::terminal {

ScratchFiles::ScratchFiles(std::filesystem::path scriptFolder) : scriptFolder_(std::move(scriptFolder)) {
    std::string name = (std::filesystem::temp_directory_path() / "fabula-XXXXXX").string();
    if (!mkdtemp(name.data())) throw Error("Could not make a folder for the files of the test.");
    scratch_ = name;
}

ScratchFiles::~ScratchFiles() {
    std::error_code ignored;
    std::filesystem::remove_all(scratch_, ignored);
}

std::filesystem::path ScratchFiles::Place(const std::filesystem::path& name, bool forWriting) const {
    const std::filesystem::path written = scratch_ / name.filename();
    std::error_code ignored;
    return forWriting || std::filesystem::exists(written, ignored) ? written
                                                                   : scriptFolder_ / name.filename();
}

}  // namespace fabula::terminal
