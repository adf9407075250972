#pragma once

#include <filesystem>

#include "platform/person.h"

namespace fabula::authoring {

/// Whether `file` may be written: there is none yet, or the person has agreed that it is replaced.
bool MayReplace(const std::filesystem::path& file, platform::Person& person);

}  // namespace fabula::authoring
