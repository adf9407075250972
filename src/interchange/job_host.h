#pragma once

#include <filesystem>

#include "interchange/job_status.h"
#include "platform/operator.h"
#include "store/adventure.h"

namespace fabula::interchange {

/// What a reader works with. The adventure is a new one of the default data, in one transaction that the
/// job keeps when the reader gives true.
struct ImportContext {
    std::filesystem::path source;
    store::Adventure& adventure;
    platform::Operator& person;
    JobStatus& status;
};

/// What a writer works with.
struct ExportContext {
    store::Adventure& adventure;
    std::filesystem::path target;
    platform::Operator& person;
    JobStatus& status;
};

}  // namespace fabula::interchange
