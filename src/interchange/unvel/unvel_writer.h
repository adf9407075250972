#pragma once

#include "interchange/shared/job_host.h"

namespace fabula::interchange {

/// Writes an adventure as an UnVel extract, which LoadUnVel reads. The form is the context's `version`,
/// else the settings' `Version` where that is one of kUnVelVersions, else the newest.
///
/// What the listing does not carry, besides what belongs to this system alone: keys of words and entries,
/// short descriptions and picture files of locations, entries without conditions and actions, names of
/// character sets, user-defined graphics beyond the 19th, and of the settings all but name, colours, font,
/// how much can be carried, and whether there are pictures and character sets. What else is not carried
/// whole is told as a loss.
///
/// Gives false when the game uses conditions or actions that the older engines do not have, which the
/// status then names, or for a version that is unknown.
bool ExportUnVel(ExportContext& context);

}  // namespace fabula::interchange
