#pragma once

#include "interchange/shared/job_host.h"

namespace fabula::interchange {

// Readers of the two kinds of keyword-sectioned sources, into a new adventure. A line that can't be
// understood is reported and left out. They give false, with the reason in the status, for a file without
// the keywords that every source has, and for a link that can't be followed.

/// A PC source; the adventure is of type VEL.
bool LoadPCVel(ImportContext& context);

/// An ACE source; the adventure is of type Fabula.
bool LoadAce(ImportContext& context);

}  // namespace fabula::interchange
