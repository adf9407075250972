#pragma once

#include <filesystem>

#include "store/adventure_kind.h"

namespace fabula::authoring {

/// The file that new adventures of a type begin with (interchange/starter.h), in the folder of starters
/// beside the default data.
std::filesystem::path StarterFile(const std::filesystem::path& defaultData, store::AdventureKind kind);

}  // namespace fabula::authoring
