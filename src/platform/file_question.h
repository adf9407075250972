#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/dialogs.h"

namespace fabula::platform {

/// The filter of the files of one kind ("Fabula Save File"), by their extension with its dot (".sav"):
/// "Fabula Save File|*.sav".
std::string FilterOf(std::string_view kind, std::string_view extension);

/// The question for a file of one kind, which a name without an extension is taken for.
FileQuestion QuestionFor(std::string_view title, std::string_view kind, std::string_view extension,
                         const std::filesystem::path& start);

}  // namespace fabula::platform
