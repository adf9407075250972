#include "support/places.h"

namespace fabula::test {

std::filesystem::path SourceFolder() {
    return FABULA_SOURCE_DIR;
}

std::filesystem::path DefaultData() {
    return SourceFolder() / "data" / "Fabula.ini";
}

std::filesystem::path Program() {
    return std::filesystem::path(FABULA_BINARY_DIR) / "bin" / "fabula";
}

std::filesystem::path StandInDecompiler() {
    return std::filesystem::path(FABULA_BINARY_DIR) / "tests" / "support" / "stand_in_decompiler";
}

std::filesystem::path ExampleGames() {
    return std::filesystem::path(FABULA_BINARY_DIR) / "examples";
}

}  // namespace fabula::test
