#include "terminal/scratch_folder.h"

#include <string>

#include <stdlib.h>

#include "platform/error.h"

namespace fabula::terminal {

ScratchFolder::ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "fabula-XXXXXX").string();
    if (!mkdtemp(name.data())) throw Error("Could not make a folder for temporary files.");
    path_ = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace fabula::terminal
