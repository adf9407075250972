#pragma once

#include "interchange/shared/job_host.h"

namespace fabula::interchange {

/// Reads the listing of an UnVel decompiler, or an extract that this system has written, into a new
/// adventure of the type that its head names. A line that can't be understood is reported and left out.
/// Gives false when the file is no such listing, of a version that can't be read, or has neither pictures
/// nor characters; the person or the status then has the reason.
bool LoadUnVel(ImportContext& context);

}  // namespace fabula::interchange
