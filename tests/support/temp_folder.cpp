#include "support/temp_folder.h"

#include <stdexcept>
#include <string>

#include <stdlib.h>
#include <unistd.h>

namespace fabula::test {
namespace {

/// Memory, where there is a file system in it: the store waits for the disk at each commit, and tests need
/// not.
std::filesystem::path RootFolder() {
    const std::filesystem::path memory = "/dev/shm";
    if (!getenv("TMPDIR") && access(memory.c_str(), W_OK) == 0) return memory;
    return std::filesystem::temp_directory_path();
}

}  // namespace

TempFolder::TempFolder() {
    std::string name = (RootFolder() / "fabula-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("could not make a folder for a test");
    path_ = name;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace fabula::test
