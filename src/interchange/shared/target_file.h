#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace fabula::interchange {

/// A text file of one byte a character (Windows-1252) in the making. It is written by `Finish`, as
/// store::WriteFile does it; without that the target is as it was.
class TargetFile {
  public:
    explicit TargetFile(std::filesystem::path target) : target_(std::move(target)) {}

    /// Adds a line and its end "\r\n". When it holds a character that can't be written, adds nothing and
    /// gives that character, as "U+4E2D".
    std::optional<std::string> WriteLine(std::string_view line);

    /// Puts the file in its place. Throws fabula::Error when that fails.
    void Finish();

  private:
    std::filesystem::path target_;
    std::string bytes_;
};

}  // namespace fabula::interchange
