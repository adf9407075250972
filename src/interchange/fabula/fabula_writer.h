#pragma once

#include "interchange/shared/job_host.h"

namespace fabula::interchange {

/// Writes the whole adventure as an export file. Gives false, with the reason in the status, when a
/// character can't be written in one byte. What the format can't carry ("<CR>" and "|" in a text, line ends
/// in a text of one line) is named in the status, record by record, and the export goes on.
bool ExportFabula(ExportContext& context);

}  // namespace fabula::interchange
