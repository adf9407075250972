#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interchange/shared/job_status.h"
#include "store/adventure.h"

namespace fabula::interchange {

// What a game has and the sections of PC and ACE sources have no place for (the start, limits, colours,
// short descriptions, pictures of rooms, drawings, notes on flags and processes) stands in comments of a
// form of its own, which other programs skip:
//
//     #! Adventure startloc 3
//     #! Locations 7 locshortdesc The shed
//
// Behind "!": a table, the key of its record (the settings have none, that of a word is "LAMP/2", its
// spelling and the number of its type), a field that travels, and its value to the end of the line. "<CR>"
// is a line end. The fields of one record may stand in any order.
//
// The author's comment to an entry of a process table, whose key is that of its order, stands in front of
// the entry, a line of the comment to a line of the source:
//
//     #! comment The lamp burns for twenty turns.

/// Whether a line is a comment of that form.
bool IsExtra(std::string_view line, char comment);

/// Is given what stands behind the comment character, and the name of the record.
using WriteExtraLine = std::function<void(const std::string& record, const std::string& line)>;

/// Writes all that an adventure has of such fields. Words are written with their first `letters`. Tells in
/// the status what was written there.
void WriteExtras(store::Adventure& adventure, std::size_t letters, JobStatus& status,
                 const WriteExtraLine& writeLine);

/// Writes the comments alone, those of entries too: for a form whose reader numbers entries from 0, in the
/// order of the process tables and in them of the keys. Entries that `isWritten` does not know have no
/// number.
void WriteComments(store::Adventure& adventure, std::size_t letters,
                   const std::function<bool(std::int64_t canum)>& isWritten,
                   const WriteExtraLine& writeLine);

/// The lines in front of an entry that hold its comment, without the comment character.
std::vector<std::string> CommentLines(std::string_view comment);
/// The line of a comment that such a line holds; nothing for any other line.
std::optional<std::string_view> LineOfComment(std::string_view line);

/// Puts the value of one such line, without its comment character, into the adventure. A record that isn't
/// there yet is added, but for a location. Gives what is wrong with the line, or "".
std::string ApplyExtra(store::Adventure& adventure, std::string_view line);

}  // namespace fabula::interchange
