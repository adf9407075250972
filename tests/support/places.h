#pragma once

#include <filesystem>

namespace fabula::test {

/// The root of the sources that were built.
std::filesystem::path SourceFolder();

/// The default data that new adventures are made of.
std::filesystem::path DefaultData();

/// The built command line, `fabula`.
std::filesystem::path Program();

/// A built program that stands for a decompiler (tests/support/stand_in_decompiler.cpp).
std::filesystem::path StandInDecompiler();

/// The folder of the adventures that the build made of examples/.
std::filesystem::path ExampleGames();

}  // namespace fabula::test
