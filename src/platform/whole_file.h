#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace fabula::platform {

/// The bytes of a file of at most `most` bytes. Only ordinary files are read, behind links too: a pipe or a
/// device might wait without end. `doing` completes "Could not ..." ("read the template stars.tpl").
///
/// Throws fabula::Error with the reason: there is no such file, it is no file, it is too large, or what the
/// machine says.
std::string ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most, std::string_view doing);

/// The first `most` bytes, or all when there are fewer; otherwise as above.
std::string ReadStartOfFile(const std::filesystem::path& file, std::uintmax_t most, std::string_view doing);

/// For those that read a file piece by piece: throws the same unless it is there and an ordinary file.
void CheckIsFile(const std::filesystem::path& file, std::string_view doing);

}  // namespace fabula::platform
