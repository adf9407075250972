#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "engine/output/transcript.h"

namespace fabula::player {

/// The file of a transcript that the player switches on and off while a game goes on.
class TranscriptFile {
  public:
    /// Starts a new file; one that was open is closed. Throws fabula::Error when it can't be written, or
    /// store::CheckTarget has something against it: that changes nothing.
    void Open(const std::filesystem::path& file);
    /// The sentence that tells a failure to write its end; nullopt when there was none, or nothing to
    /// close.
    std::optional<std::string> Close();
    bool IsOpen() const { return output_.is_open(); }

    /// Where to write; nullptr while it is closed.
    engine::Transcript* Lines() { return lines_ ? &*lines_ : nullptr; }

    /// Hands what was written to the system; the sentence that tells a failure, once: the file is then
    /// closed.
    std::optional<std::string> Flush();

  private:
    std::filesystem::path file_;
    std::ofstream output_;
    std::optional<engine::Transcript> lines_;
};

}  // namespace fabula::player
