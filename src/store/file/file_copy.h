#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "store/file/temporary_file.h"

namespace fabula::store {

class Connection;

/// Writes a copy of the open adventure `source` to `target`: into a file beside it, checked and on the disk
/// before it takes the target's place. What is open is copied, whatever lies now where it was opened.
/// Throws fabula::Error and leaves `target` as it was.
void WriteCopy(const Connection& source, const std::filesystem::path& target);

/// A copy of the open adventure in memory. Throws fabula::Error when there is not enough of it.
std::unique_ptr<Connection> CopyOf(const Connection& source);

/// Puts a finished file in the place of `target`: its bytes and the change of name are on the disk when
/// this returns. A link stays and its file is replaced; the new file has the mode of the old one, and its
/// owner where that may be given. What CheckTarget refuses is refused.
///
/// A journal that was left beside an adventure is used up first, as it would spoil the new file, after the
/// adventure was opened with the usual checks. Whatever else lies in a journal's place is left alone: a
/// text does not mind it, and an adventure is not put beside it.
///
/// Throws fabula::Error; `target` is then as it was.
void MoveIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& target);

/// Writes a file whole: one that is there already is replaced, as above, when the new one is complete. A
/// device or a pipe is written to, and so is the standard output for kStandardOutput. Throws fabula::Error
/// and leaves the file as it was.
void WriteFile(const std::filesystem::path& file, std::string_view bytes);
inline constexpr const char* kStandardOutput = "-";

/// What is to be written to a file.
enum class Content { Adventure, Text };

/// The one guard of all that write. Throws fabula::Error when `target` may not be written, whoever agrees:
/// it is a folder or can't be written, or it is an adventure that is to become a text, or one that is open
/// for change somewhere, or a file of another kind of this program's own by its extension. `extension` is
/// that of the files that the writer makes (".sav"), "" for texts that have none of their own.
void CheckTarget(const std::filesystem::path& target, Content content, std::string_view extension = "");

/// Whether two names are those of one file that is there.
bool IsSameFile(const std::filesystem::path& left, const std::filesystem::path& right);

}  // namespace fabula::store
