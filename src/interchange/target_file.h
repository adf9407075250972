#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "store/file_copy.h"

namespace fabula::interchange {

/// A text file of one byte a character (Windows-1252) in the making: written beside its target, and in its
/// place only when it is complete. Without `Finish` nothing is left of it. Throws fabula::Error when the
/// disk fails.
class TargetFile {
  public:
    explicit TargetFile(std::filesystem::path target);

    /// Adds a line and its end "\r\n". When it holds a character that can't be written, adds nothing and
    /// gives that character, as "U+4E2D".
    std::optional<std::string> WriteLine(std::string_view line);

    /// Puts the file in its place.
    void Finish();

  private:
    void Flush();

    std::filesystem::path target_;
    store::TemporaryFile temporary_;
    std::ofstream stream_;
    std::string pending_;
};

}  // namespace fabula::interchange
