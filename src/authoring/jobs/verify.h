#pragma once

#include "interchange/file_kinds.h"
#include "interchange/shared/job_status.h"
#include "interchange/shared/source_map.h"
#include "store/adventure.h"

namespace fabula::authoring {

/// What an adventure is verified for: to be exported to a kind of file that can be written, or to be
/// played.
using VerifyTarget = const interchange::FileKind*;
inline constexpr VerifyTarget kForPlay = nullptr;

/// Checks an adventure against the rules of its type, and of the kind of file it is to go to; for play also
/// that everything is there that its records name. Writes each step and each error into the status, a line
/// each. True when there was no error; warnings don't count. "No Errors Found" is told when the status has
/// no faults from before either.
///
/// An adventure that was just read from a source has `places`: errors are then told where they stand there.
bool VerifyAdventure(store::Adventure& adventure, VerifyTarget target, interchange::JobStatus& status,
                     const interchange::SourceMap* places = nullptr);

}  // namespace fabula::authoring
