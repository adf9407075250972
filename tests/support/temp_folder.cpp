#include "support/temp_folder.h"

#include <stdexcept>
#include <string>

#include <stdlib.h>

namespace fabula::test {

TempFolder::TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "fabula-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("could not make a folder for a test");
    path_ = name;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace fabula::test
