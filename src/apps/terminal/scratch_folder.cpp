#include "terminal/scratch_folder.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <stdlib.h>

#include "platform/error.h"

namespace fabula::terminal {

ScratchFolder::ScratchFolder() {
    std::error_code fault;
    std::string name = (std::filesystem::temp_directory_path(fault) / "fabula-XXXXXX").string();
    if (!fault && !mkdtemp(name.data())) fault = std::error_code(errno, std::generic_category());
    if (fault) throw Error("Could not make a folder for temporary files: " + fault.message() + ".");
    path_ = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace fabula::terminal
