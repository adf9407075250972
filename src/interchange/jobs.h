#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "interchange/file_kinds.h"
#include "interchange/shared/job_status.h"
#include "interchange/shared/source_map.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/person.h"
#include "store/adventure.h"

namespace fabula::interchange {

/// What jobs need of their surroundings.
struct JobHost {
    platform::Person& person;
    const platform::Clock& clock;
    platform::EventPump& events;
    JobObserver& observer;
    std::filesystem::path defaultData;     ///< the file Fabula.ini
    Encoding encoding = Encoding::Detect;  ///< of sources
};

/// What an import or export came to.
struct JobResult {
    bool done = false;
    int faults = 0;  ///< lines of the source that were left out
    int losses = 0;  ///< records that the target does not carry whole
    std::string status;
    std::vector<Fault> allFaults;  ///< those that `faults` counts
    SourceMap places;              ///< of an import: where the records stand in the source
};

/// Told where no file is named.
inline constexpr const char* kNoSourceFile = "Source File not specified";

/// Reads `source` into a new adventure file. It is made beside `target` and takes its place when all is
/// well; else nothing is left of it, and `target` is as it was. An existing target is replaced: who calls
/// has asked. What is open elsewhere stays open.
///
/// A failing machine is thrown as fabula::Error; nothing is left then either.
JobResult ImportIt(const FileKind& kind, const std::filesystem::path& source,
                   const std::filesystem::path& target, const JobHost& host);

/// Checks an adventure for export to a kind, writes what it finds into the status, and gives true when it
/// may go.
using Verifier = std::function<bool(store::Adventure&, const FileKind&, JobStatus&)>;

/// Verifies `adventure` for the kind and writes it to `target`, which is replaced when the file is
/// complete. `version` names the form of the file, for kinds that have several.
JobResult ExportIt(const FileKind& kind, store::Adventure& adventure, const std::filesystem::path& target,
                   const Verifier& verify, const JobHost& host, const std::string& version = {});

}  // namespace fabula::interchange
