#include "cli/installation.h"

#include "platform/error.h"

namespace fabula::cli {

std::filesystem::path DefaultDataFile() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    auto file = program.parent_path().parent_path() / "share" / "fabula" / "Fabula.ini";
    if (!std::filesystem::exists(file))
        throw Error("Could not find the default data at " + file.string() + ".");
    return file;
}

}  // namespace fabula::cli
