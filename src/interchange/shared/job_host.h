#pragma once

#include <filesystem>
#include <string>

#include "interchange/shared/job_status.h"
#include "interchange/shared/source_file.h"
#include "interchange/shared/source_map.h"
#include "platform/person.h"
#include "store/adventure.h"

namespace fabula::interchange {

/// What a reader works with. The adventure is a new one of the default data, in one transaction that the
/// job keeps when the reader gives true.
struct ImportContext {
    std::filesystem::path source;
    store::Adventure& adventure;
    platform::Person& person;
    JobStatus& status;
    Encoding encoding = Encoding::Detect;
    SourceMap* places = nullptr;  ///< where the records come from is noted here, if given
};

/// What a writer works with.
struct ExportContext {
    store::Adventure& adventure;
    std::filesystem::path target;
    platform::Person& person;
    JobStatus& status;
    std::string version = {};  ///< the form of the file, for kinds that have several; "" for the usual one
};

}  // namespace fabula::interchange
