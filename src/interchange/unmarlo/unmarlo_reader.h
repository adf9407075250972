#pragma once

#include <filesystem>
#include <string>

#include "interchange/listing/listing_lines.h"
#include "interchange/shared/job_host.h"
#include "store/setup.h"

namespace fabula::interchange {

/// The adventure of an UnMarlo listing: type Marlo. That it has pictures is seen when they are read.
store::AdventureSetup SetupOfUnMarlo(const std::filesystem::path& listing);

/// Reads the listing of an UnMarlo decompiler into a new adventure of type Marlo. A line that can't be
/// understood is reported and left out. Gives false, with the reason in the status, when the file is no
/// such listing; one that ends too early is taken as far as it goes.
bool LoadUnMarlo(ImportContext& context);

/// What the first two lines of a listing tell.
struct UnMarloHead {
    std::string version;  ///< of the decompiler
    int maxObjects = 0;   ///< how many objects the player can carry
};

/// Reads the two lines. Nothing, with the reason in the status, when they are not those of a listing.
std::optional<UnMarloHead> ReadUnMarloHead(ListingLines& lines, JobStatus& status);

}  // namespace fabula::interchange
