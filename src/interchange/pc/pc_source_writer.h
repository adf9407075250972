#pragma once

#include "interchange/shared/job_host.h"

namespace fabula::interchange {

// Writers of the two kinds of keyword-sectioned sources. They give false, with the reason in the status,
// when the adventure uses what the source can't say, or a character that can't be written in one byte. What
// would come back otherwise than it is (a comment character in a text, a line that begins with "/", a word
// of more letters than count) is named in the status, record by record, and the export goes on.

/// A source of the PC engine.
bool ExportPCVel(ExportContext& context);
/// The same dialect with the names and tags of ACE.
bool ExportAce(ExportContext& context);

}  // namespace fabula::interchange
