#pragma once

#include <filesystem>

namespace fabula::test {

/// A game whose verbs each try one thing of the window: it asks for answers, keys and files, waits, and
/// prints what a terminal must not get. SILENT says nothing, so that prompts follow each other.
void BuildWaitingGame(const std::filesystem::path& file);

/// The same few words in a character set, in a game of type Marlo.
void BuildCharacterSetGame(const std::filesystem::path& file);

}  // namespace fabula::test
