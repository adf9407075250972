#pragma once

#include "interchange/pc/pc_source_job.h"

namespace fabula::interchange {

/// Gives an imported game the commands that control scripts: TURN SCRIP ON, TURN SCRIP OFF and LOAD SCRIP,
/// with the words they need. What the game has already is not added again, and what its words leave no room
/// for is left out.
void AddScriptCommands(PcSourceJob& job);

}  // namespace fabula::interchange
