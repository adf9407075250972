#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "interchange/job_status.h"
#include "store/adventure.h"

namespace fabula::interchange {

// What a game has and the sections of PC and ACE sources have no place for (the start, limits, colours,
// short descriptions, pictures of rooms, drawings, notes on flags and processes) stands in comments of a
// form of its own, which other programs skip:
//
//     #! Adventure startloc 3
//     #! Locations 7 locshortdesc The shed
//
// Behind "!": a table, the key of its record (the settings have none), a field that travels, and its value
// to the end of the line. "<CR>" is a line end. The fields of one record may stand in any order.

/// Whether a line is a comment of that form.
bool IsExtra(std::string_view line, char comment);

/// Writes all that an adventure has of such fields, through `writeLine`, which is given what stands behind
/// the comment character and the name of the record. Tells in the status what was written there.
void WriteExtras(store::Adventure& adventure, JobStatus& status,
                 const std::function<void(const std::string& record, const std::string& line)>& writeLine);

/// Puts the value of one such line, without its comment character, into the adventure. A record that isn't
/// there yet is added, but for a location. Gives what is wrong with the line, or "".
std::string ApplyExtra(store::Adventure& adventure, std::string_view line);

}  // namespace fabula::interchange
