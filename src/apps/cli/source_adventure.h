#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "cli/host/console.h"
#include "interchange/file_kinds.h"
#include "interchange/jobs.h"

namespace fabula::cli {

/// The kind of source that `kind` names, or else the one whose files have the extension of `source`. Throws
/// UsageError when neither tells.
const interchange::FileKind& KindOfSource(const std::string& source, const std::string& kind);

}  // namespace fabula::cli
