#pragma once

#include <filesystem>
#include <string_view>

#include "platform/dialogs.h"

namespace fabula::authoring {

/// Asks for a file, with `proposal` as its name, and writes the text of a status box into it. True when it
/// was written; a failure is told.
bool SaveStatusText(std::string_view text, const std::filesystem::path& proposal,
                    platform::Dialogs& dialogs);

}  // namespace fabula::authoring
